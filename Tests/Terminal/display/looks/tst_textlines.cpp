#include "testbase.h"
#include "textlines.h"
#include "theme.h"

#include <QElapsedTimer>

/// Texts broken into lines of a given width.
class TestTextLines : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void linesEndWithWords_data();
    void linesEndWithWords();
    void aNameOfAnyLengthIsLaidOutAtOnce();
};

void TestTextLines::linesEndWithWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("letters");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("none") << "" << 10 << QStringList{""};
    QTest::newRow("fits") << "mmm mmm" << 10 << QStringList{"mmm mmm"};
    QTest::newRow("a word") << "mmm mmm" << 5 << QStringList{"mmm", "mmm"};
    QTest::newRow("an underscore") << "mmm_mmm" << 6 << QStringList{"mmm_", "mmm"};
    QTest::newRow("no word ends") << "mmmmmm" << 4 << QStringList{"mmmm", "mm"};
    QTest::newRow("less than a letter") << "mm" << 0 << QStringList{"m", "m"};
}

void TestTextLines::linesEndWithWords()
{
    QFETCH(QString, text);
    QFETCH(int, letters);
    const QFontMetrics metrics(Theme::font(20));
    const int width = letters > 0 ? metrics.horizontalAdvance(QString(letters, QLatin1Char('m'))) : 1;
    QFETCH(QStringList, lines);
    // The last line is shortened where not even one letter fits.
    if (letters == 0)
        lines.last() = metrics.elidedText(QStringLiteral("m"), Qt::ElideMiddle, width);
    QCOMPARE(TextLines::of(text, metrics, width, 2), lines);
}

void TestTextLines::aNameOfAnyLengthIsLaidOutAtOnce()
{
    constexpr int letters = 100000;
    constexpr int milliseconds = 10000;
    const QFontMetrics metrics(Theme::font(20));
    QElapsedTimer timer;
    timer.start();
    const QStringList lines = TextLines::of(QString(letters, QLatin1Char('k')), metrics, 200, 3);
    QVERIFY2(timer.elapsed() < milliseconds, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(lines.size(), 3);
    for (const QString &line : lines)
        QVERIFY(metrics.horizontalAdvance(line) <= 200);
}

RXMAP_TEST(TestTextLines, Widgets)
#include "tst_textlines.moc"
