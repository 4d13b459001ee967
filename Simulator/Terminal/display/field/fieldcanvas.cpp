#include "fieldcanvas.h"

#include <QOpenGLFramebufferObject>

namespace {

constexpr int samplesOfSmoothEdges = 4;

}

FieldCanvas::FieldCanvas() = default;

FieldCanvas::~FieldCanvas()
{
    makeCurrent();
    drawn.reset();
    resolved.reset();
    doneCurrent();
}

bool FieldCanvas::create()
{
    if (isReady)
        return true;
    if (!context.create())
        return false;
    surface.setFormat(context.format());
    surface.create();
    isReady = context.makeCurrent(&surface);
    return isReady;
}

bool FieldCanvas::makeCurrent()
{
    return isReady && context.makeCurrent(&surface);
}

void FieldCanvas::provideBuffers(const QSize &pixels, Edges edges)
{
    if (drawn && drawn->size() == pixels && drawnEdges == edges)
        return;
    drawnEdges = edges;
    QOpenGLFramebufferObjectFormat format;
    format.setSamples(edges == Edges::Smooth ? samplesOfSmoothEdges : 0);
    drawn.reset(new QOpenGLFramebufferObject(pixels, format));
    resolved.reset(drawn->format().samples() > 0 ? new QOpenGLFramebufferObject(pixels) : nullptr);
}

QImage FieldCanvas::draw(FieldScene &scene, const Camera &camera, FieldScene::Aids aids, const QSize &pixels,
                         Edges edges)
{
    if (pixels.isEmpty() || !makeCurrent())
        return {};
    provideBuffers(pixels, edges);
    drawn->bind();
    context.functions()->glViewport(0, 0, pixels.width(), pixels.height());
    scene.draw(camera, aids);
    if (resolved)
        QOpenGLFramebufferObject::blitFramebuffer(resolved.data(), drawn.data());
    QImage image = (resolved ? resolved : drawn)->toImage();
    drawn->release();
    doneCurrent();
    // The ground covers everything, so every pixel is opaque; OpenGL ES has the bytes in another order.
    if (image.format() == QImage::Format_ARGB32_Premultiplied && image.reinterpretAsFormat(QImage::Format_RGB32))
        return image;
    return image.convertToFormat(QImage::Format_RGB32);
}

void FieldCanvas::forgetFrame()
{
    if (!drawn || !makeCurrent())
        return;
    drawn->bind();
    QOpenGLFunctions &gl = *context.functions();
    gl.glFinish();
    gl.glClear(GL_COLOR_BUFFER_BIT);
    gl.glFinish();
    drawn->release();
    doneCurrent();
}
