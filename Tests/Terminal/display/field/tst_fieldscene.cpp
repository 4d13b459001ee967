#include "camera.h"
#include "fieldscene.h"
#include "guestlist.h"
#include "testbase.h"

#include "Framework/uigraphicslist.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>

namespace {

const QSize viewSize(200, 150);

/// Covers the left half of the view with its colour, if it has one, and records when it is called.
class Veil : public Object3D {
public:
    Veil(float givenOrder, const QColor &givenColor, QStringList *givenJournal)
        : order(givenOrder)
        , color(givenColor)
        , journal(givenJournal)
    {
    }

    void init() override { journal->append(QStringLiteral("init %1").arg(double(order))); }
    void draw(QMatrix4x4) override
    {
        journal->append(QStringLiteral("draw %1").arg(double(order)));
        if (!color.isValid())
            return;
        QOpenGLFunctions *gl = QOpenGLContext::currentContext()->functions();
        gl->glEnable(GL_SCISSOR_TEST);
        gl->glScissor(0, 0, viewSize.width() / 2, viewSize.height());
        gl->glClearColor(float(color.redF()), float(color.greenF()), float(color.blueF()), 1.0F);
        gl->glClear(GL_COLOR_BUFFER_BIT);
    }
    float drawingOrder() const override { return order; }

private:
    float order;
    QColor color;
    QStringList *journal;
};

} // namespace

/// What is drawn in the field view, and in which order.
class TestFieldScene : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aMapsColourOnTheGroundIsHalfWay_data();
    void aMapsColourOnTheGroundIsHalfWay();
    void listsAreInitialisedOnceTheSceneIs();
    void drawablesOfAllListsComeInTheirOrder();
    void drawablesOfTheSameOrderComeAsTheyWereAdded();
    void withoutAidsOnlyTheGroundIsThere();
    void withAidsTheGridLiesOnTheGround();
    void aGuestThatCutsTheViewDoesNotCutTheNextFrame();

private:
    QImage frame(FieldScene &scene, FieldScene::Aids aids);
    static int differing(const QImage &image, const QColor &color);

    QScopedPointer<QOffscreenSurface> surface;
    QScopedPointer<QOpenGLContext> context;
    QScopedPointer<QOpenGLFramebufferObject> buffer;
    QStringList journal;
};

void TestFieldScene::init()
{
    TestBase::init();
    journal.clear();
    surface.reset(new QOffscreenSurface);
    surface->create();
    context.reset(new QOpenGLContext);
    QVERIFY(context->create());
    QVERIFY(context->makeCurrent(surface.data()));
    buffer.reset(new QOpenGLFramebufferObject(viewSize));
    QVERIFY(buffer->bind());
    context->functions()->glViewport(0, 0, viewSize.width(), viewSize.height());
}

void TestFieldScene::cleanup()
{
    buffer.reset();
    context.reset();
    surface.reset();
    TestBase::cleanup();
}

QImage TestFieldScene::frame(FieldScene &scene, FieldScene::Aids aids)
{
    Camera camera;
    camera.setViewport(viewSize);
    buffer->bind();
    scene.draw(camera, aids);
    return buffer->toImage();
}

int TestFieldScene::differing(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).rgb() == color.rgb() ? 0 : 1;
    }
    return count;
}

void TestFieldScene::aMapsColourOnTheGroundIsHalfWay_data()
{
    QTest::addColumn<QColor>("color");
    for (const QColor &color : {QColor(Qt::black), QColor(Qt::white), QColor(200, 10, 101)})
        QTest::newRow(qPrintable(color.name())) << color;
}

void TestFieldScene::aMapsColourOnTheGroundIsHalfWay()
{
    QFETCH(QColor, color);
    const QColor ground = FieldScene::groundColor();
    const QColor seen = FieldScene::onGround(color);
    QVERIFY(qAbs(2 * seen.red() - color.red() - ground.red()) <= 1);
    QVERIFY(qAbs(2 * seen.green() - color.green() - ground.green()) <= 1);
    QVERIFY(qAbs(2 * seen.blue() - color.blue() - ground.blue()) <= 1);
}

void TestFieldScene::listsAreInitialisedOnceTheSceneIs()
{
    GuestList early({new Veil(1.0F, QColor(), &journal)});
    GuestList late({new Veil(2.0F, QColor(), &journal)});
    FieldScene scene;
    scene.addGraphicsList(&early);
    QCOMPARE(journal, QStringList());
    scene.initialize();
    QCOMPARE(journal, QStringList{"init 1"});
    scene.addGraphicsList(&late);
    QCOMPARE(journal, (QStringList{"init 1", "init 2"}));
}

void TestFieldScene::drawablesOfAllListsComeInTheirOrder()
{
    GuestList first({new Veil(3.0F, QColor(), &journal), new Veil(-4.99F, QColor(), &journal)});
    GuestList second({new Veil(0.5F, QColor(), &journal)});
    FieldScene scene;
    scene.initialize();
    scene.addGraphicsList(&first);
    scene.addGraphicsList(&second);
    journal.clear();
    frame(scene, FieldScene::Aids::Shown);
    QCOMPARE(journal, (QStringList{"draw -4.99", "draw 0.5", "draw 3"}));
}

void TestFieldScene::drawablesOfTheSameOrderComeAsTheyWereAdded()
{
    const QColor below(10, 20, 30);
    const QColor above(40, 50, 60);
    GuestList first({new Veil(1.0F, below, &journal)});
    GuestList second({new Veil(1.0F, above, &journal)});
    FieldScene scene;
    scene.initialize();
    scene.addGraphicsList(&first);
    scene.addGraphicsList(&second);
    QCOMPARE(frame(scene, FieldScene::Aids::Hidden).pixelColor(5, 5), above);
}

void TestFieldScene::withoutAidsOnlyTheGroundIsThere()
{
    FieldScene scene;
    scene.initialize();
    QCOMPARE(differing(frame(scene, FieldScene::Aids::Hidden), FieldScene::groundColor()), 0);
}

void TestFieldScene::withAidsTheGridLiesOnTheGround()
{
    FieldScene scene;
    scene.initialize();
    const int lines = differing(frame(scene, FieldScene::Aids::Shown), FieldScene::groundColor());
    QVERIFY2(lines > viewSize.width() && lines < viewSize.width() * viewSize.height() / 2,
             qPrintable(QString::number(lines)));
}

void TestFieldScene::aGuestThatCutsTheViewDoesNotCutTheNextFrame()
{
    FieldScene scene;
    scene.initialize();
    {
        GuestList list({new Veil(1.0F, QColor(Qt::red), &journal)});
        scene.addGraphicsList(&list);
        const QImage veiled = frame(scene, FieldScene::Aids::Hidden);
        QCOMPARE(veiled.pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(veiled.pixelColor(viewSize.width() - 5, 5), FieldScene::groundColor());
        // Other code that draws between the frames may leave this state, too.
        context->functions()->glEnable(GL_SCISSOR_TEST);
        context->functions()->glScissor(0, 0, 1, 1);
    }
    QCOMPARE(differing(frame(scene, FieldScene::Aids::Hidden), FieldScene::groundColor()), 0);
}

RXMAP_TEST(TestFieldScene, Widgets)
#include "tst_fieldscene.moc"
