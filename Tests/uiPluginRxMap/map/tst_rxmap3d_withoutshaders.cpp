#include "drawingtest.h"

#include <QOpenGLShader>

/// The drawable on a host that lacks its shader sources: nothing checks for them, and nothing may crash.
class TestRxMap3DWithoutShaders : public DrawingTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void initAndDrawGoOn();

private:
    void expectUnlinked(const QString &call, int times);
};

void TestRxMap3DWithoutShaders::expectUnlinked(const QString &call, int times)
{
    for (int i = 0; i < times; ++i)
        messages().expectWarning(QStringLiteral("QOpenGLShaderProgram::%1: shader program is not linked").arg(call));
}

void TestRxMap3DWithoutShaders::initTestCase()
{
    Q_CLEANUP_RESOURCE(terminal);
}

void TestRxMap3DWithoutShaders::initAndDrawGoOn()
{
    for (const char *file : {"vert", "frag"})
        messages().expectWarning(
            QStringLiteral("QOpenGLShader: Unable to open file \":/colorpoly_%1.glsl\"").arg(QLatin1String(file)));
    map->init();
    QCOMPARE(map->findChildren<QOpenGLShader *>().size(), 2);
    QCOMPARE(gl->count(QStringLiteral("glLinkProgram")), 1);
    addBank(6);
    gl->clear();
    expectUnlinked(QStringLiteral("uniformLocation(u_mvp)"), 1);
    expectUnlinked(QStringLiteral("attributeLocation(a_position)"), 3); // To enable, point and disable it.
    expectUnlinked(QStringLiteral("attributeLocation(color)"), 3);
    map->draw(QMatrix4x4());
    QCOMPARE(gl->count(QStringLiteral("glDrawArrays 4 0 6")), 1);

    // The driver says in its own words why linking failed, once in init() and once when the program is bound for the
    // draw.
    const QStringList reasons = messages().warnings().filter(QStringLiteral("QOpenGLShader::link: "));
    QCOMPARE(reasons.size(), 2);
    for (const QString &reason : reasons)
        messages().expectWarning(reason);
}

RXMAP_TEST(TestRxMap3DWithoutShaders, Widgets)
#include "tst_rxmap3d_withoutshaders.moc"
