#include "contrast.h"
#include "testbase.h"
#include "theme.h"

#include <QImage>
#include <QPainter>

namespace {

using Kind = Theme::Kind;

/// A text colour and a colour that it is written on; the table below has every such pair.
struct Pair {
    const char *name;
    QColor Theme::Colors::*text;
    QColor Theme::Colors::*ground;
    double least;
};

/// Text that is read at a glance should have more than the least contrast.
constexpr double atAGlance = 7.0;

const Pair pairs[] = {
    {"text on panel", &Theme::Colors::text, &Theme::Colors::panel, atAGlance},
    {"text on button", &Theme::Colors::text, &Theme::Colors::button, atAGlance},
    {"text on pressed button", &Theme::Colors::text, &Theme::Colors::pressedButton, leastContrast},
    {"faint text on panel", &Theme::Colors::faintText, &Theme::Colors::panel, atAGlance},
    {"faint text on button", &Theme::Colors::faintText, &Theme::Colors::button, leastContrast},
    {"disabled text on panel", &Theme::Colors::disabledText, &Theme::Colors::panel, leastContrast},
    {"disabled text on its button", &Theme::Colors::disabledText, &Theme::Colors::disabledButton, leastContrast},
    {"accent's text on panel", &Theme::Colors::accentText, &Theme::Colors::panel, leastContrast},
    {"accent's text on button", &Theme::Colors::accentText, &Theme::Colors::button, leastContrast},
    {"text on accent", &Theme::Colors::textOnAccent, &Theme::Colors::accent, leastContrast},
    {"text on caution", &Theme::Colors::textOnCaution, &Theme::Colors::caution, leastContrast},
};

} // namespace

Q_DECLARE_METATYPE(QColor)

/// Whether the panels can be read and are drawn as intended.
class TestTheme : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void textStandsOutFromItsGround_data();
    void textStandsOutFromItsGround();
    void aPressedButtonLooksDifferent();
    void whatIsDrawnStandsOutFromItsGround();
    void thePlotsLinesKeepTheirHueByNight();
    void aDarkDesktopHasNight();
    void thePaletteIsThatOfTheThemeInUse();
    void aPanelIsFilledToItsEdgesAndHasRoundCorners();
};

void TestTheme::textStandsOutFromItsGround_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    for (const Kind kind : {Kind::Day, Kind::Night}) {
        const Theme::Colors &colors = Theme::colors(kind);
        const char *when = kind == Kind::Day ? "by day" : "by night";
        for (const Pair &pair : pairs) {
            // What lies under a panel shows through and may have any colour.
            QTest::addRow("%s %s, over black", pair.name, when)
                << colors.*pair.text << blended(colors.*pair.ground, Qt::black) << pair.least;
            QTest::addRow("%s %s, over white", pair.name, when)
                << colors.*pair.text << blended(colors.*pair.ground, Qt::white) << pair.least;
        }
    }
}

void TestTheme::textStandsOutFromItsGround()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QFETCH(double, least);
    QVERIFY2(contrast(text, ground) >= least, qPrintable(QString::number(contrast(text, ground))));
}

void TestTheme::aPressedButtonLooksDifferent()
{
    for (const Kind kind : {Kind::Day, Kind::Night})
        QVERIFY(contrast(Theme::colors(kind).button, Theme::colors(kind).pressedButton) >= 2.0);
}

void TestTheme::whatIsDrawnStandsOutFromItsGround()
{
    // WCAG 2.1, success criterion 1.4.11: what is needed to understand a control or a plot.
    constexpr double leastOfGraphics = 3.0;
    for (const Kind kind : {Kind::Day, Kind::Night}) {
        const Theme::Colors &colors = Theme::colors(kind);
        QVERIFY(contrast(colors.accent, blended(colors.panel, Qt::black)) >= leastOfGraphics);
        QVERIFY(contrast(colors.accent, colors.button) >= leastOfGraphics);
        QVERIFY(contrast(colors.prescribed, blended(colors.panel, Qt::white)) >= leastOfGraphics);
        QVERIFY(contrast(colors.applied, blended(colors.panel, Qt::white)) >= leastOfGraphics);
        QVERIFY(contrast(colors.text, colors.ground) >= leastOfGraphics);
    }
}

void TestTheme::thePlotsLinesKeepTheirHueByNight()
{
    const Theme::Colors &day = Theme::colors(Kind::Day);
    const Theme::Colors &night = Theme::colors(Kind::Night);
    constexpr int alike = 15; // Degrees.
    QVERIFY(qAbs(day.prescribed.hue() - night.prescribed.hue()) <= alike);
    QVERIFY(qAbs(day.applied.hue() - night.applied.hue()) <= alike);
    QVERIFY(qAbs(night.prescribed.hue() - night.applied.hue()) >= 90);
}

void TestTheme::aDarkDesktopHasNight()
{
    QPalette desktop(Qt::black, Qt::white);
    desktop.setColor(QPalette::Window, QColor(239, 240, 241));
    desktop.setColor(QPalette::WindowText, QColor(35, 38, 41));
    QVERIFY(Theme::suiting(desktop) == Kind::Day);
    desktop.setColor(QPalette::Window, QColor(49, 54, 59));
    desktop.setColor(QPalette::WindowText, QColor(239, 240, 241));
    QVERIFY(Theme::suiting(desktop) == Kind::Night);
}

void TestTheme::thePaletteIsThatOfTheThemeInUse()
{
    Theme::use(Kind::Night);
    QCOMPARE(Theme::palette().color(QPalette::WindowText), Theme::colors(Kind::Night).text);
    QCOMPARE(Theme::colors().panel, Theme::colors(Kind::Night).panel);
    Theme::use(Kind::Day);
    QCOMPARE(Theme::palette().color(QPalette::WindowText), Theme::colors(Kind::Day).text);
    QCOMPARE(Theme::colors().panel, Theme::colors(Kind::Day).panel);
}

void TestTheme::aPanelIsFilledToItsEdgesAndHasRoundCorners()
{
    QImage image(80, 60, QImage::Format_ARGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setPen(Qt::red);
        Theme::drawPanel(painter, image.rect(), Qt::blue);
    }
    for (const QPoint &inside : {QPoint(40, 30), QPoint(40, 0), QPoint(40, 59), QPoint(0, 30), QPoint(79, 30)})
        QCOMPARE(image.pixelColor(inside), QColor(Qt::blue));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(79, 0), QPoint(0, 59), QPoint(79, 59)})
        QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
}

RXMAP_TEST(TestTheme, Widgets)
#include "tst_theme.moc"
