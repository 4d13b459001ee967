#pragma once

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QScopedPointer>

#include <array>

class UiGraphicsList;

/// A field of 16 × 16 m seen from above, one pixel per square metre.
constexpr int fieldSize = 16;
/// Colours of the field, row by row from the south; red in the lowest byte, then green, blue, alpha.
using FieldPicture = std::array<quint32, fieldSize * fieldSize>;

/// The host's field view: an OpenGL context that it loses and makes again.
class FieldView {
public:
    FieldView();
    ~FieldView();

    bool isCurrent() const { return !context.isNull(); }
    void makeContext();
    void loseContext();
    /// What the list draws; all 0 without a context.
    FieldPicture pictureOf(UiGraphicsList &list);

private:
    QOffscreenSurface surface;
    QScopedPointer<QOpenGLContext> context;
    QScopedPointer<QOpenGLFramebufferObject> target;
};
