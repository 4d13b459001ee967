#include "fieldview.h"

#include "Framework/object3d.h"
#include "Framework/uigraphicslist.h"

#include <QMatrix4x4>
#include <QOpenGLFunctions>

namespace {

/// From the view's axes (x east, z south) to the clip space of a picture with north up.
const QMatrix4x4 fromAbove(2.0F / fieldSize, 0, 0, -1, 0, 0, -2.0F / fieldSize, -1, 0, 0, 0, 0, 0, 0, 0, 1);

} // namespace

FieldView::FieldView()
{
    surface.create();
}

FieldView::~FieldView()
{
    loseContext();
}

void FieldView::makeContext()
{
    if (context)
        return;
    context.reset(new QOpenGLContext);
    if (!context->create() || !context->makeCurrent(&surface))
        qFatal("there is no OpenGL context");
    target.reset(new QOpenGLFramebufferObject(fieldSize, fieldSize));
}

void FieldView::loseContext()
{
    target.reset();
    context.reset();
}

FieldPicture FieldView::pictureOf(UiGraphicsList &list)
{
    FieldPicture picture{};
    if (context.isNull()) {
        for (Object3D *object : *list.drawables())
            object->draw(fromAbove);
        return picture;
    }
    QOpenGLFunctions *gl = context->functions();
    target->bind();
    gl->glViewport(0, 0, fieldSize, fieldSize);
    gl->glDisable(GL_BLEND);
    gl->glClearColor(0, 0, 0, 0);
    gl->glClear(GL_COLOR_BUFFER_BIT);
    for (Object3D *object : *list.drawables())
        object->draw(fromAbove);
    gl->glReadPixels(0, 0, fieldSize, fieldSize, GL_RGBA, GL_UNSIGNED_BYTE, picture.data());
    return picture;
}
