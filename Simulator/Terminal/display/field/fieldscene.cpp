#include "fieldscene.h"

#include "camera.h"
#include "roundstep.h"
#include "theme.h"

#include "Framework/uigraphicslist.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <algorithm>

namespace {

constexpr double minGridPixels = 22.0;
constexpr GLenum switchedOff[] = {GL_DEPTH_TEST,   GL_CULL_FACE,       GL_STENCIL_TEST,
                                  GL_SCISSOR_TEST, GL_SAMPLE_COVERAGE, GL_SAMPLE_ALPHA_TO_COVERAGE};
constexpr GLenum rowLengths[] = {GL_PACK_ROW_LENGTH, GL_UNPACK_ROW_LENGTH};

} // namespace

QColor FieldScene::groundColor()
{
    return Theme::colors().ground;
}

QColor FieldScene::onGround(const QColor &color)
{
    const QColor ground = groundColor();
    const double share = 0.5 * color.alphaF();
    const auto blend = [share](int own, int below) { return int(own * share + below * (1.0 - share)); };
    return QColor(blend(color.red(), ground.red()), blend(color.green(), ground.green()),
                  blend(color.blue(), ground.blue()));
}

void FieldScene::initialize()
{
    initializeOpenGLFunctions();
    grid.init();
    for (Object3D *aid : qAsConst(aids))
        aid->init();
    isInitialised = true;
    for (const QPointer<UiGraphicsList> &list : qAsConst(lists)) {
        if (list)
            list->init();
    }
}

void FieldScene::addGraphicsList(UiGraphicsList *list)
{
    lists.append(list);
    if (isInitialised)
        list->init();
}

void FieldScene::addAid(Object3D *aid)
{
    aids.append(aid);
    if (isInitialised)
        aid->init();
}

void FieldScene::draw(const Camera &camera, Aids shown)
{
    const QColor ground = groundColor();
    glDisable(GL_SCISSOR_TEST);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glClearColor(float(ground.redF()), float(ground.greenF()), float(ground.blueF()), 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);

    QList<Object3D *> drawables = guests();
    if (shown == Aids::Shown) {
        fitGrid(camera);
        drawables.prepend(&grid);
        drawables.append(aids);
    }
    std::stable_sort(drawables.begin(), drawables.end(),
                     [](const Object3D *a, const Object3D *b) { return a->drawingOrder() < b->drawingOrder(); });
    const QMatrix4x4 matrix = camera.matrix();
    const Target target = currentTarget();
    for (Object3D *drawable : drawables) {
        setGuestState(target);
        drawable->draw(matrix);
    }
    // Guests may leave any state behind; what reads the frame afterwards starts from a known one.
    setGuestState(target);
    glUseProgram(0);
}

FieldScene::Target FieldScene::currentTarget()
{
    Target target{};
    glGetIntegerv(GL_FRAMEBUFFER_BINDING, &target.framebuffer);
    glGetIntegerv(GL_VIEWPORT, target.viewport.data());
    return target;
}

void FieldScene::setGuestState(const Target &target)
{
    glBindFramebuffer(GL_FRAMEBUFFER, GLuint(target.framebuffer));
    glViewport(target.viewport[0], target.viewport[1], target.viewport[2], target.viewport[3]);
    glEnable(GL_BLEND);
    glBlendEquation(GL_FUNC_ADD);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    for (const GLenum effect : switchedOff)
        glDisable(effect);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glActiveTexture(GL_TEXTURE0);
    setNewerState();
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
}

void FieldScene::setNewerState()
{
    QOpenGLContext *context = QOpenGLContext::currentContext();
    const bool isNew = context->format().majorVersion() >= 3;
    const char *extension = context->isOpenGLES() ? "GL_OES_vertex_array_object" : "GL_ARB_vertex_array_object";
    if (isNew || context->hasExtension(extension))
        context->extraFunctions()->glBindVertexArray(0);
    if (!context->isOpenGLES())
        glDisable(GL_COLOR_LOGIC_OP);
    if (!context->isOpenGLES() || isNew) {
        for (const GLenum length : rowLengths)
            glPixelStorei(length, 0);
    }
}

QList<Object3D *> FieldScene::guests() const
{
    QList<Object3D *> drawables;
    for (const QPointer<UiGraphicsList> &list : lists) {
        if (list)
            drawables.append(*list->drawables());
    }
    return drawables;
}

void FieldScene::fitGrid(const Camera &camera)
{
    const double width = camera.viewport().width();
    const double height = camera.viewport().height();
    const QPointF farLeft = camera.fieldPoint({0.0, 0.0}).value_or(camera.target());
    const QPointF farRight = camera.fieldPoint({width, 0.0}).value_or(camera.target());
    const QPointF near = camera.fieldPoint({width / 2.0, height}).value_or(camera.target());
    const double spacing = roundStep(minGridPixels * camera.metresPerPixel(camera.target()));
    grid.setRegion(QRectF(farLeft.x(), near.y(), farRight.x() - farLeft.x(), farLeft.y() - near.y()), spacing);
}
