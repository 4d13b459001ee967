#pragma once

#include "fieldscene.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QScopedPointer>

class QOpenGLFramebufferObject;

/// Where the field is drawn: an OpenGL context without a window, whose pictures the field view paints at whatever size
/// the display has on the screen. On the user-interface thread.
class FieldCanvas {
public:
    FieldCanvas();
    ~FieldCanvas();

    /// Makes the context, of the default surface format; false when there is no OpenGL.
    bool create();
    bool isValid() const { return isReady; }
    /// False when the context cannot be used, now or ever.
    bool makeCurrent();
    void doneCurrent() { context.doneCurrent(); }

    /// How edges look: Smooth takes several samples per pixel where the driver can; Plain takes one in its middle.
    enum class Edges { Plain, Smooth };
    /// One frame of `scene` as `camera` sees it, in `pixels`. Null without a context.
    QImage draw(FieldScene &scene, const Camera &camera, FieldScene::Aids aids, const QSize &pixels, Edges edges);

    /// Begins and ends an empty frame: software OpenGL keeps all triangles of the last one until then, nearly 400 bytes
    /// for each cell of a map.
    void forgetFrame();

private:
    Q_DISABLE_COPY(FieldCanvas)

    void provideBuffers(const QSize &pixels, Edges edges);

    QOpenGLContext context;
    QOffscreenSurface surface;
    /// Whether the context has been made current on the surface at least once.
    bool isReady = false;
    Edges drawnEdges = Edges::Plain;
    QScopedPointer<QOpenGLFramebufferObject> drawn;
    QScopedPointer<QOpenGLFramebufferObject> resolved; ///< One sample a pixel; null where `drawn` has no more itself.
};
