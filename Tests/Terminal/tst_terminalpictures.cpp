#include "fieldview.h"
#include "machine.h"
#include "openglcheck.h"
#include "paths.h"
#include "picture.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"
#include "windowstack.h"

#include <QOpenGLContext>
#include <QScopeGuard>

/// The display, compared with stored pictures.
class TestTerminalPictures : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theMapLooksAsStored_data();
    void theMapLooksAsStored();
    void openGlEsDrawsTheSame();
    void theNightLooksAsStored();
    void anEmptyTerminalLooksAsStored();
    void aChangedPictureIsNoticed();
};

void TestTerminalPictures::theMapLooksAsStored_data()
{
    QTest::addColumn<int>("product");
    QTest::newRow("sample-seed") << 1;
    QTest::newRow("sample-herbicide") << 3;
}

void TestTerminalPictures::theMapLooksAsStored()
{
    QFETCH(int, product);
    TerminalHost host;
    QCOMPARE(host.problem(), QString());
    Terminal &terminal = host.terminal();
    const LoadReport report =
        terminal.open({{TerminalHost::sampleField()}, {"SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    terminal.machine()->setActiveProduct(product);
    terminal.touch(QPointF(-100, 60));
    QCOMPARE(Picture::compare(WindowStack::picture(terminal.window()), QString::fromLatin1(QTest::currentDataTag())),
             QString());
}

void TestTerminalPictures::openGlEsDrawsTheSame()
{
    const QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    const auto restore = qScopeGuard([&format] {
        qunsetenv("QT_OPENGL");
        QSurfaceFormat::setDefaultFormat(format);
    });
    qputenv("QT_OPENGL", "es2");
    OpenGlCheck::chooseKind();
    QCOMPARE(OpenGlCheck::problem(), QString());
    TerminalHost host;
    QCOMPARE(host.problem(), QString());
    host.terminal().window()->fieldView()->makeCurrent();
    QVERIFY(QOpenGLContext::currentContext()->isOpenGLES());
    host.terminal().window()->fieldView()->doneCurrent();
    QVERIFY(host.terminal()
                .open({{TerminalHost::sampleField()}, {"SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"}})
                .first()
                .isOk());
    host.terminal().touch(QPointF(-100, 60));
    QCOMPARE(Picture::compare(WindowStack::picture(host.terminal().window()), QStringLiteral("sample-seed")),
             QString());
}

void TestTerminalPictures::theNightLooksAsStored()
{
    TerminalHost host;
    QCOMPARE(host.problem(), QString());
    Terminal &terminal = host.terminal();
    QVERIFY(terminal.open({{TerminalHost::sampleField()}, {"SEED_KS_HA"}}).first().isOk());
    terminal.touch(QPointF(-100, 60));
    const QImage day = WindowStack::picture(terminal.window());
    terminal.window()->setTheme(Theme::Kind::Night);
    const QImage night = WindowStack::picture(terminal.window());
    terminal.window()->setTheme(Theme::Kind::Day);
    QCOMPARE(Picture::compare(night, QStringLiteral("sample-seed-night")), QString());
    // Nothing remains of the night.
    QCOMPARE(WindowStack::picture(terminal.window()), day);
}

void TestTerminalPictures::anEmptyTerminalLooksAsStored()
{
    TerminalHost host(UnitSystem::Us);
    QCOMPARE(host.problem(), QString());
    QCOMPARE(Picture::compare(WindowStack::picture(host.terminal().window()), QStringLiteral("no-map")), QString());
}

void TestTerminalPictures::aChangedPictureIsNoticed()
{
    QImage stored(sourcePath("Tests/Terminal/pictures/no-map.png"));
    QVERIFY(!stored.isNull());
    stored = stored.convertToFormat(QImage::Format_RGB32);
    for (int y = 300; y < 400; ++y) {
        for (int x = 500; x < 600; ++x)
            stored.setPixel(x, y, qRgb(200, 40, 40));
    }
    QVERIFY(Picture::compare(stored, QStringLiteral("no-map")).contains(QLatin1String("10000 pixels differ")));
}

RXMAP_TEST(TestTerminalPictures, Widgets)
#include "tst_terminalpictures.moc"
