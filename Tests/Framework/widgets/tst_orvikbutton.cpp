#include "paintedtexts.h"
#include "paths.h"
#include "testbase.h"
#include "testimages.h"

#include "Framework/orvikbutton.h"

#include <QImage>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>

namespace {

const QSize buttonSize(100, 60);
const QPoint inside(50, 30);
const QPoint outside(140, 30);
const QPoint plainSpot(50, 12);    // where neither a text nor an edge stands
constexpr int longTouchTime = 800; // ms

} // namespace

class tst_OrvikButton : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheSizeOfItsFirstImageAtItsPosition();
    void showsTheImageOfTheIndex();
    void ignoresAnIndexOutsideTheList();
    void reportsItsIdWhenTouchedAndLifted();
    void aLiftOutsideReportsNothing();
    void aFingerThatSlidesOutAndBackCounts();
    void anotherMouseButtonDoesNothing();
    void aHoldIsALongTouchAndNoRelease();
    void aLongHoldCountsWhereNobodyWaitsForIt();
    void repeatsWhileHeldWhenAsked();
    void looksPressedUnderTheFingerOnly();
    void withoutHighlightItLooksTheSame();
    void aDisabledButtonReportsNothing();
    void aButtonDisabledUnderTheFingerReportsNothing();
    void aButtonHiddenUnderTheFingerReportsNothing();
    void aTouchThatArrivesWhileItIsHiddenReportsNothing();
    void looksDisabledInDisableModeOnly();
    void showsItsTextInItsColor();
    void replacesATextItem();
    void ignoresTheColorOfAnUnknownTextItem();
    void aTextThatIsALittleLongIsMadeSmallerAndStaysWhole();
    void aTextThatFitsStaysWhole_data();
    void aTextThatFitsStaysWhole();
    void aLongTextStaysOnTheButton();
    void theTextStandsOnWhatTheImageDraws();
    void mayBeDeletedByASlot();

private:
    /// Whether the filled square of a text in red shows on the button, as a whole.
    bool showsRedSquare() const;
    void moveFinger(const QPoint &place);
    QColor colorAt(const QPoint &place) const { return button->grab().toImage().pixelColor(place); }

    QScopedPointer<TestImages> files;
    QScopedPointer<QWidget> window;
    OrvikButton *button = nullptr;
    QScopedPointer<QSignalSpy> released;
};

void tst_OrvikButton::init()
{
    TestBase::init();
    files.reset(new TestImages);
    window.reset(new QWidget);
    window->resize(300, 200);
    const QStringList names{files->add(QStringLiteral("off.png"), buttonSize, Qt::lightGray),
                            files->add(QStringLiteral("on.png"), buttonSize, Qt::darkBlue)};
    button = new OrvikButton(42, files->directory(), names, QPoint(20, 30), window.data(), false);
    released.reset(new QSignalSpy(button, &OrvikButton::buttonReleased));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void tst_OrvikButton::cleanup()
{
    released.reset();
    window.reset();
    files.reset();
    TestBase::cleanup();
}

bool tst_OrvikButton::showsRedSquare() const
{
    const QImage image = button->grab().toImage();
    QImage square(7, 7, image.format());
    square.fill(Qt::red);
    for (int y = 0; y + square.height() <= image.height(); ++y) {
        for (int x = 0; x + square.width() <= image.width(); ++x) {
            if (image.copy(QRect(QPoint(x, y), square.size())) == square)
                return true;
        }
    }
    return false;
}

void tst_OrvikButton::moveFinger(const QPoint &place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

void tst_OrvikButton::hasTheSizeOfItsFirstImageAtItsPosition()
{
    QCOMPARE(button->geometry(), QRect(QPoint(20, 30), buttonSize));
    QCOMPARE(button->id(), 42);
    const OrvikButton imageless(0, files->directory(), {}, QPoint(1, 2), nullptr, false);
    QCOMPARE(imageless.size(), QSize(0, 0));
}

void tst_OrvikButton::showsTheImageOfTheIndex()
{
    QCOMPARE(button->currentImage(), 0);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    button->setCurrentImage(1);
    QCOMPARE(button->currentImage(), 1);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
}

void tst_OrvikButton::ignoresAnIndexOutsideTheList()
{
    button->setCurrentImage(1);
    button->setCurrentImage(2);
    button->setCurrentImage(-1);
    QCOMPARE(button->currentImage(), 1);
}

void tst_OrvikButton::reportsItsIdWhenTouchedAndLifted()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.first().first().toInt(), 42);
    QCOMPARE(released->count(), 0);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
    QCOMPARE(released->first().first().toInt(), 42);
}

void tst_OrvikButton::aLiftOutsideReportsNothing()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    moveFinger(outside);
    QTest::mouseRelease(button, Qt::LeftButton, {}, outside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aFingerThatSlidesOutAndBackCounts()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    moveFinger(outside);
    moveFinger(inside);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::anotherMouseButtonDoesNothing()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    QTest::mousePress(button, Qt::RightButton, {}, inside);
    QCOMPARE(pressed.count(), 0);
    QTest::mouseRelease(button, Qt::RightButton, {}, inside);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::mouseRelease(button, Qt::RightButton, {}, inside);
    QCOMPARE(released->count(), 0);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::aHoldIsALongTouchAndNoRelease()
{
    QSignalSpy longTouch(button, &OrvikButton::longTouch);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime / 2);
    QCOMPARE(longTouch.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(longTouch.count(), 1, longTouchTime);
    QCOMPARE(longTouch.first().first().toInt(), 42);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aLongHoldCountsWhereNobodyWaitsForIt()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime + 60);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::repeatsWhileHeldWhenAsked()
{
    OrvikButton repeating(3, files->directory(), {QStringLiteral("off.png")}, QPoint(0, 0), window.data(), true);
    repeating.show();
    QSignalSpy repeated(&repeating, &OrvikButton::buttonReleased);
    QSignalSpy longTouch(&repeating, &OrvikButton::longTouch);
    QTest::mousePress(&repeating, Qt::LeftButton, {}, inside);
    QTRY_VERIFY_WITH_TIMEOUT(repeated.count() >= 3, 2000);
    QTest::mouseRelease(&repeating, Qt::LeftButton, {}, inside);
    QCOMPARE(longTouch.count(), 0);
}

void tst_OrvikButton::looksPressedUnderTheFingerOnly()
{
    const QColor normal = colorAt(plainSpot);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    const QColor pressed = colorAt(plainSpot);
    QVERIFY(pressed != normal);
    moveFinger(outside);
    QCOMPARE(colorAt(plainSpot), normal);
    moveFinger(inside);
    QCOMPARE(colorAt(plainSpot), pressed);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(colorAt(plainSpot), normal);
}

void tst_OrvikButton::withoutHighlightItLooksTheSame()
{
    button->setHighLight(false);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
}

void tst_OrvikButton::aDisabledButtonReportsNothing()
{
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aButtonDisabledUnderTheFingerReportsNothing()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    button->setEnabled(false);
    button->setEnabled(true);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aButtonHiddenUnderTheFingerReportsNothing()
{
    QSignalSpy longTouch(button, &OrvikButton::longTouch);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    button->hide();
    QTest::qWait(longTouchTime + 60);
    button->show();
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(longTouch.count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aTouchThatArrivesWhileItIsHiddenReportsNothing()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    window->hide();
    QMouseEvent press(QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(button, &press);
    QCoreApplication::sendEvent(button, &release);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::looksDisabledInDisableModeOnly()
{
    button->setCurrentImage(1);
    button->setEnabled(false);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
    button->setDisableMode(true);
    QVERIFY(colorAt(plainSpot) != QColor(Qt::darkBlue));
    button->setEnabled(true);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
}

void tst_OrvikButton::showsItsTextInItsColor()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(40);
    button->addText(0, QStringLiteral("\u25a0"), Qt::red, font); // a filled square, so that its middle has its colour
    QCOMPARE(button->text(0), QStringLiteral("\u25a0"));
    QCOMPARE(button->textColor(0), QColor(Qt::red));
    QCOMPARE(colorAt(inside), QColor(Qt::red));
    button->setTextColor(0, Qt::yellow);
    QCOMPARE(button->textColor(0), QColor(Qt::yellow));
    QCOMPARE(colorAt(inside), QColor(Qt::yellow));
}

void tst_OrvikButton::replacesATextItem()
{
    button->addText(0, QStringLiteral("P01"), Qt::red, QFont());
    button->addText(1, QStringLiteral("other"), Qt::black, QFont());
    button->addText(0, QStringLiteral("P02"), Qt::white, QFont());
    QCOMPARE(button->text(0), QStringLiteral("P02"));
    QCOMPARE(button->textColor(0), QColor(Qt::white));
    QCOMPARE(button->text(1), QStringLiteral("other"));
}

void tst_OrvikButton::ignoresTheColorOfAnUnknownTextItem()
{
    button->setTextColor(5, Qt::red);
    QCOMPARE(button->text(5), QString());
    QVERIFY(!button->textColor(5).isValid());
}

void tst_OrvikButton::aTextThatIsALittleLongIsMadeSmallerAndStaysWhole()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    button->addText(0, QStringLiteral("UAN 2\u25a0"), Qt::red, font); // its last character is a filled square
    QVERIFY(showsRedSquare());
}

void tst_OrvikButton::aTextThatFitsStaysWhole_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Milho", "Canola", "Water", "Inject", "Wheat", "UAN 28", "Bin16"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_OrvikButton::aTextThatFitsStaysWhole()
{
    QFETCH(QString, text);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSize(24);
    button->addText(0, text, Qt::red, font);
    QCOMPARE(paintedTexts(*button), QStringList{text});
    // On the smaller plate of the terminal's product buttons, too.
    const QDir images(buildPath("Simulator/Resources/images"));
    OrvikButton product(1, images, {QStringLiteral("productButtonOff.png")}, QPoint(0, 0), window.data(), false);
    product.addText(0, text, Qt::red, font);
    QCOMPARE(paintedTexts(product), QStringList{text});
}

void tst_OrvikButton::aLongTextStaysOnTheButton()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    button->addText(0, QStringLiteral("\u25a0 Ammonium nitrate, granular"), Qt::red, font);
    QVERIFY2(showsRedSquare(), "the text loses its beginning");
    const QImage image = button->grab().toImage();
    int redPixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::lightGray))
                continue;
            ++redPixels;
            QVERIFY2(x >= 4 && x < image.width() - 4, "the text touches the button's edge");
        }
    }
    QVERIFY(redPixels > 0);
}

void tst_OrvikButton::theTextStandsOnWhatTheImageDraws()
{
    const QRect plate(34, 0, 60, buttonSize.height());
    QImage image(buttonSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(plate, Qt::lightGray);
    image.save(files->directory().filePath(QStringLiteral("plate.png")));
    OrvikButton plated(1, files->directory(), {QStringLiteral("plate.png")}, QPoint(0, 0), window.data(), false);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(32);
    plated.addText(0, QStringLiteral("\u25a0 in \u25a0"), Qt::red, font);
    const QImage shown = plated.grab().toImage();
    int left = shown.width();
    int right = 0;
    for (int x = 0; x < shown.width(); ++x) {
        if (shown.pixelColor(x, buttonSize.height() / 2) == QColor(Qt::red)) {
            left = qMin(left, x);
            right = x;
        }
    }
    QVERIFY(left < right);
    QVERIFY(left > plate.left() && right < plate.right());
    QVERIFY2(qAbs(left - plate.left() - (plate.right() - right)) <= 2, "the text is not in the middle of the plate");
}

void tst_OrvikButton::mayBeDeletedByASlot()
{
    QPointer<OrvikButton> shortLived = button;
    connect(button, &OrvikButton::buttonReleased, this, [shortLived] { delete shortLived.data(); });
    QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    QVERIFY(shortLived.isNull());
}

RXMAP_TEST(tst_OrvikButton, Widgets)
#include "tst_orvikbutton.moc"
