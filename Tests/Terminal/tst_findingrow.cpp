#include "findingrow.h"
#include "paintedtexts.h"
#include "testbase.h"
#include "theme.h"

#include <algorithm>

/// A finding in the list of the map check.
class TestFindingRow : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void titleAndTextStandTogether_data();
    void titleAndTextStandTogether();
    void aLongTextIsToldWhole();
    void whatHasNoPlaceIsAsLegible();

private:
    static QString longText();
};

QString TestFindingRow::longText()
{
    return QStringLiteral("no polygon covers 400.0 m2 inside the field (4.0 m wide), beside records 1002, 1005, 1006, "
                          "1007, 1008, 1009, 1010, 1011 and 1012");
}

void TestFindingRow::titleAndTextStandTogether_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << "records 0 and 1 overlap";
    QTest::newRow("two lines") << longText();
}

void TestFindingRow::titleAndTextStandTogether()
{
    QFETCH(QString, text);
    MapFinding finding;
    finding.text = text;
    finding.place = QPointF();
    FindingRow row(finding, {});
    row.resize(1000, FindingRow::rowHeight);
    const QImage image = row.grab().toImage();
    const QRgb ground = image.pixel(image.width() / 2, 3);
    QList<int> written; // Rows of pixels that differ from the background.
    for (int y = 0; y < image.height(); ++y) {
        bool isEmpty = true;
        for (int x = 16; x < image.width() - 16 && isEmpty; ++x)
            isEmpty = image.pixel(x, y) == ground;
        if (!isEmpty)
            written.append(y);
    }
    QVERIFY(written.size() > 20);
    for (int i = 1; i < written.size(); ++i)
        QVERIFY2(written.at(i) - written.at(i - 1) < 12, qPrintable(QString::number(written.at(i))));
    // The same room above as below.
    QVERIFY(qAbs(written.first() - (image.height() - 1 - written.last())) < 8);
}

void TestFindingRow::aLongTextIsToldWhole()
{
    MapFinding finding;
    finding.text = longText();
    FindingRow row(finding, {});
    row.resize(1000, FindingRow::rowHeight);
    const QStringList painted = paintedTexts(row);
    QCOMPARE(painted.mid(1).join(QLatin1Char(' ')), longText());
}

void TestFindingRow::whatHasNoPlaceIsAsLegible()
{
    MapFinding finding;
    finding.text = QStringLiteral("the unit is not known");
    FindingRow row(finding, {});
    QVERIFY(!row.isEnabled());
    row.resize(1000, FindingRow::rowHeight);
    const QImage image = row.grab().toImage();
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
    QVERIFY2(darkest <= qGray(Theme::colors().text.rgb()) + 10, qPrintable(QString::number(darkest)));
}

RXMAP_TEST(TestFindingRow, Widgets)
#include "tst_findingrow.moc"
