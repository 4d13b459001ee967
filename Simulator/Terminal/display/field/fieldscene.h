#pragma once

#include "groundgrid.h"

#include <QColor>
#include <QList>
#include <QPointer>

#include <array>

class Camera;
class UiGraphicsList;

/// What is drawn in the 3D field view: the host's grid and other aids, and the drawables of every graphics list. All
/// calls need the view's OpenGL context current, except groundColor().
class FieldScene : protected QOpenGLFunctions {
public:
    enum class Aids { Shown, Hidden };

    /// What the field looks like where nothing is drawn.
    static QColor groundColor();
    /// A map's colour as it looks on the ground: maps are drawn with half of their opacity.
    static QColor onGround(const QColor &color);

    /// Prepares drawing and every list added so far.
    void initialize();
    /// Adds a list (not owned) and initialises it, once the scene itself is.
    void addGraphicsList(UiGraphicsList *list);
    /// Adds a drawing aid of the host's own (not owned) and initialises it, once the scene itself is.
    void addAid(Object3D *aid);
    void removeAid(Object3D *aid) { aids.removeAll(aid); }
    /// Draws one frame into the framebuffer and the viewport that are set; without the aids only the ground and the
    /// guests' drawables.
    void draw(const Camera &camera, Aids shown);

private:
    /// Where a frame goes, in OpenGL's numbers.
    struct Target {
        GLint framebuffer;
        std::array<GLint, 4> viewport;
    };

    Target currentTarget();
    void setGuestState(const Target &target);
    void setNewerState();
    QList<Object3D *> guests() const;
    void fitGrid(const Camera &camera);

    GroundGrid grid;
    QList<Object3D *> aids;
    QList<QPointer<UiGraphicsList>> lists;
    bool isInitialised = false;
};
