#pragma once

#include "Framework/frameworkglobal.h"

#include <QMatrix4x4>
#include <QOpenGLFunctions>
#include <QScopedPointer>

class Object3DPrivate;
class QOpenGLShaderProgram;

/// Something drawn in the host's 3D field view. The view's axes: x east, y up, z south, metres.
///
/// The host calls init() and draw() on the user-interface thread with its context current. It sets before each draw():
/// blending on (source alpha, one minus source alpha), depth test off, culling off, no buffer or vertex array bound,
/// texture unit 0; docs/host.md lists the rest. It relies on no state that a drawable leaves behind, and deletes a
/// drawable with the context current.
class FRAMEWORK_EXPORT Object3D : protected QOpenGLFunctions {
public:
    Object3D();
    virtual ~Object3D();

    /// Draws one frame; `mvp` takes view coordinates to clip coordinates.
    virtual void draw(QMatrix4x4 mvp) = 0;
    /// Prepares what drawing needs of the current context.
    virtual void init() = 0;
    /// Place among the host's drawables: lower values are drawn earlier.
    virtual float drawingOrder() const = 0;

protected:
    /// The subclass's shader program, made with the drawable and deleted with it; has no parent.
    QOpenGLShaderProgram &shaderProgram();

private:
    Q_DISABLE_COPY(Object3D)

    QScopedPointer<Object3DPrivate> d;
};
