#include "dialoghost.h"
#include "dialogprobe.h"
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
    void allOfAProductButtonThatIsSeenCanBeTouched_data();
    void allOfAProductButtonThatIsSeenCanBeTouched();
    void tenProductButtonsFitTheDialog();
    void captionsStandOffTheProductColumn();
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
    QTest::newRow("productButtonOff") << QSize(103, 72);
    QTest::newRow("productButtonOn") << QSize(103, 72);
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
    // An operator must be able to see which of the two is shown.
    QVERIFY(imageOf(first) != imageOf(second));
}

void TestDialogImages::allOfAProductButtonThatIsSeenCanBeTouched_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"productButtonOff", "productButtonOn"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDialogImages::allOfAProductButtonThatIsSeenCanBeTouched()
{
    QFETCH(QString, name);
    const QImage image = imageOf(name);
    const auto isDrawn = [&image](int x, int y) { return qAlpha(image.pixel(x, y)) > 0; };
    DialogHost host(1);
    RxMapWidgetDialog01 dialog(&host.broker, host.images, nullptr);
    dialog.show();
    const QWidget *button = DialogProbe(dialog).productButton(0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(!isDrawn(x, y) || dialog.childAt(button->pos() + QPoint(x, y)) == button);
    }
    constexpr int captionEnd = 55; // Of the vertical caption over the buttons.
    QVERIFY(isDrawn(captionEnd - button->x(), image.height() / 2));
    QVERIFY2(isDrawn(64, 0) && isDrawn(64, image.height() - 1), "there is a margin that takes room from other buttons");
}

void TestDialogImages::tenProductButtonsFitTheDialog()
{
    QVERIFY(10 * imageOf(QStringLiteral("productButtonOff")).height()
            <= imageOf(QStringLiteral("RxOptionsPopup")).height());
}

void TestDialogImages::captionsStandOffTheProductColumn()
{
    const QImage page = imageOf(QStringLiteral("RxOptionsPopup"));
    constexpr int captions = 133;
    for (int x = captions - 8; x <= captions; ++x)
        QCOMPARE(QColor(page.pixel(x, 360)), QColor(Qt::white));
}

RXMAP_TEST(TestDialogImages, Widgets)
#include "tst_dialogimages.moc"
