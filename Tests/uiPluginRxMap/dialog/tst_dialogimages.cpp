#include "paths.h"
#include "testbase.h"

#include <QImage>

/// The images that the build makes for the dialog.
class TestDialogImages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyImageHasItsSize_data();
    void everyImageHasItsSize();
    void imagesOfOneControlDiffer_data();
    void imagesOfOneControlDiffer();
};

namespace {

QImage imageOf(const QString &name)
{
    return QImage(buildPath("Simulator/Resources/images") + QLatin1Char('/') + name + QStringLiteral(".png"));
}

} // namespace

void TestDialogImages::everyImageHasItsSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("RxOptionsPopup") << QSize(800, 800);
    QTest::newRow("doneButton") << QSize(80, 80);
    QTest::newRow("Cancel") << QSize(80, 80);
    QTest::newRow("xBoxBg") << QSize(56, 46);
    QTest::newRow("xBoxOn") << QSize(56, 46);
    QTest::newRow("productButtonOff") << QSize(100, 100);
    QTest::newRow("productButtonOn") << QSize(100, 100);
    QTest::newRow("lineEditBg") << QSize(182, 56);
}

void TestDialogImages::everyImageHasItsSize()
{
    QTEST(imageOf(QString::fromLatin1(QTest::currentDataTag())).size(), "size");
}

void TestDialogImages::imagesOfOneControlDiffer_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("done") << "doneButton"
                          << "Cancel";
    QTest::newRow("box") << "xBoxBg"
                         << "xBoxOn";
    QTest::newRow("product") << "productButtonOff"
                             << "productButtonOn";
}

void TestDialogImages::imagesOfOneControlDiffer()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    // An operator must see which of the two is shown.
    QVERIFY(imageOf(first) != imageOf(second));
}

RXMAP_TEST(TestDialogImages, Widgets)
#include "tst_dialogimages.moc"
