#include "drawingtest.h"

#include <QOpenGLShader>
#include <QPointer>

/// An OpenGL context that is destroyed while the drawable stays, as when a host rebuilds its field view.
class TestRxMap3DContextLoss : public DrawingTest {
    Q_OBJECT

private Q_SLOTS:
    void afterTheLossNothingIsDrawnAndProductsAreOnlyRemembered();
    void inAContextOfItsOwnTheMapIsDrawnAgain_data();
    void inAContextOfItsOwnTheMapIsDrawnAgain();
    void whatOneContextHeldIsFreedForThoseThatShareWithIt();
    void aContextMayEndWithTheMap();

private:
    /// Ends the context, and makes its successor current.
    void lose();
    void replace();
};

void TestRxMap3DContextLoss::lose()
{
    gl.reset();
    context.reset();
}

void TestRxMap3DContextLoss::replace()
{
    lose();
    context.reset(new CurrentContext);
    QVERIFY(context->isValid());
    gl.reset(new RecordingGl);
}

void TestRxMap3DContextLoss::afterTheLossNothingIsDrawnAndProductsAreOnlyRemembered()
{
    host->addMap(QStringLiteral("field"), {1});
    map->init();
    addBank(6);
    replace();
    map->draw(QMatrix4x4());
    QCOMPARE(gl->calls(), QStringList());
    map->setAamGroup(host->aam(1));
    QCOMPARE(RxMap3DProbe::boundGroup(*map), nullptr);
    QCOMPARE(RxMap3DProbe::banks(*map).size(), 1);
}

void TestRxMap3DContextLoss::inAContextOfItsOwnTheMapIsDrawnAgain_data()
{
    QTest::addColumn<bool>("isCurrent");
    QTest::newRow("lost while current") << true;
    QTest::newRow("lost while none is current") << false;
}

void TestRxMap3DContextLoss::inAContextOfItsOwnTheMapIsDrawnAgain()
{
    QFETCH(bool, isCurrent);
    addBank(6);
    for (int contexts = 0; contexts < 3; ++contexts) {
        map->init();
        const auto shaders = map->findChildren<QOpenGLShader *>();
        QCOMPARE(shaders.size(), 2);
        gl->clear();
        map->draw(QMatrix4x4());
        QCOMPARE(gl->count(QStringLiteral("glUseProgram")), 1);
        QCOMPARE(gl->count(QStringLiteral("glDrawArrays 4 0 6")), 1);
        const QPointer<QOpenGLShader> vertexShader(shaders.at(0));
        if (!isCurrent)
            QOpenGLContext::currentContext()->doneCurrent();
        replace();
        QVERIFY(vertexShader.isNull());
    }
}

void TestRxMap3DContextLoss::whatOneContextHeldIsFreedForThoseThatShareWithIt()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext sharing;
    sharing.setShareContext(QOpenGLContext::currentContext());
    QVERIFY(sharing.create());
    map->init();
    GLint program = 0;
    map->draw(QMatrix4x4());
    QOpenGLContext::currentContext()->functions()->glGetIntegerv(GL_CURRENT_PROGRAM, &program);
    QVERIFY(program > 0);
    lose();
    QVERIFY(sharing.makeCurrent(&surface));
    QVERIFY(!sharing.functions()->glIsProgram(static_cast<GLuint>(program)));
}

void TestRxMap3DContextLoss::aContextMayEndWithTheMap()
{
    map->init();
    connect(map.data(), &QObject::destroyed, this, [this] { lose(); });
    map.reset();
    QVERIFY(context.isNull());
}

RXMAP_TEST(TestRxMap3DContextLoss, Widgets)
#include "tst_rxmap3d_contextloss.moc"
