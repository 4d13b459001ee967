#include "fieldscene.h"
#include "fieldview.h"
#include "productfile.h"
#include "screenfit.h"
#include "screenwindow.h"
#include "terminalwindow.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"
#include "unseenwindows.h"
#include "windowstack.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

namespace {

const QColor patchColor(1, 200, 3);
const QRect patchPlace(400, 300, 200, 100);

/// Closes at Escape.
class Inner : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void keyPressEvent(QKeyEvent *) override { hide(); }
};

} // namespace

/// The window that shows the terminal's display on the screen.
class TestScreenWindow : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theDisplayIsSeenAtAnySize_data();
    void theDisplayIsSeenAtAnySize();
    void atItsOwnSizeTheDisplayIsSeenAsItIs();
    void itIsDrawnInTheScreensOwnPixels();
    void aTouchLandsWhereItIsSeen_data();
    void aTouchLandsWhereItIsSeen();
    void twoFingersMoveTheMapAsTheyAreSeen();
    void theWheelZoomsAtThePointer();
    void aDialogKeepsItsPlaceAndIsTouchedWhereItIsSeen_data();
    void aDialogKeepsItsPlaceAndIsTouchedWhereItIsSeen();
    void nothingBesideADialogIsTouched();
    void whatADialogKeepsFromTouchesLooksSo();
    void aPopupIsSeenAndClosesWhenTouchedBeside();
    void keysGoToWhatHasTheKeyboard();
    void f11FillsTheScreenAndEscapeLeaves();
    void aButtonFillsTheScreenAndLeaves();
    void itIsKeptOnTheScreen();
    void escapeLeavesWhatIsInnermostAlone_data();
    void escapeLeavesWhatIsInnermostAlone();
    void aPartThatChangesIsSeen();
    void nothingIsDrawnWhileNothingChanges();
    void closingItClosesTheDisplay();
    void theWindowStaysWhileADialogIsOpen();

private:
    void resizeTo(const QSize &size);
    QPoint inWindow(const QPointF &pixel) const;
    QColor colorAt(const QPointF &pixel) { return screen->grab().toImage().pixelColor(inWindow(pixel)); }
    void touch(const QPointF &pixel);

    QScopedPointer<TerminalWindow> display;
    QScopedPointer<ScreenWindow> screen;
    QWidget *patch = nullptr;
};

void TestScreenWindow::init()
{
    TestBase::init();
    display.reset(new TerminalWindow(ProductFile::standard()));
    patch = new QWidget(display.data());
    patch->setAutoFillBackground(true);
    patch->setPalette(patchColor);
    patch->setGeometry(patchPlace);
    screen.reset(new ScreenWindow(display.data()));
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
}

void TestScreenWindow::cleanup()
{
    screen.reset();
    display.reset();
    TestBase::cleanup();
}

void TestScreenWindow::resizeTo(const QSize &size)
{
    screen->resize(size);
    QTRY_COMPARE(screen->windowHandle()->size(), size);
}

QPoint TestScreenWindow::inWindow(const QPointF &pixel) const
{
    const QPointF place = ScreenFit(QSizeF(screen->size())).toWindow().map(pixel);
    return QPoint(int(std::floor(place.x())), int(std::floor(place.y())));
}

void TestScreenWindow::touch(const QPointF &pixel)
{
    QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(pixel));
}

void TestScreenWindow::theDisplayIsSeenAtAnySize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(960, 600), QSize(1024, 600), QSize(1280, 800), QSize(1366, 768), QSize(1920, 1080),
                              QSize(2560, 1600), QSize(3840, 2160)})
        QTest::newRow(qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()))) << size;
}

void TestScreenWindow::theDisplayIsSeenAtAnySize()
{
    QFETCH(QSize, size);
    resizeTo(size);
    const QImage seen = screen->grab().toImage();
    const auto colorOf = [&](const QPointF &pixel) { return seen.pixelColor(inWindow(pixel)); };
    // Taken a little inside the edge, since a pixel of the screen may show two of the display.
    const QRectF inner = QRectF(patchPlace).adjusted(2, 2, -2, -2);
    const QRectF outer = QRectF(patchPlace).adjusted(-2, -2, 2, 2);
    for (const QPointF &corner : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()})
        QCOMPARE(colorOf(corner), patchColor);
    for (const QPointF &corner : {outer.topLeft(), outer.topRight(), outer.bottomLeft(), outer.bottomRight()})
        QVERIFY(colorOf(corner) != patchColor);
    const QRectF shown = ScreenFit(QSizeF(size)).toWindow().mapRect(QRectF(display->rect()));
    if (shown.left() > 1.0)
        QCOMPARE(seen.pixelColor(0, size.height() / 2), FieldScene::groundColor());
    if (shown.top() > 1.0)
        QCOMPARE(seen.pixelColor(size.width() / 2, 0), FieldScene::groundColor());
}

void TestScreenWindow::atItsOwnSizeTheDisplayIsSeenAsItIs()
{
    resizeTo(TerminalWindow::displaySize);
    QCOMPARE(screen->grab().toImage().convertToFormat(QImage::Format_RGB32), WindowStack::picture(display.data()));
}

void TestScreenWindow::itIsDrawnInTheScreensOwnPixels()
{
    QLabel text(QStringLiteral("Sharp"), patch);
    text.show();
    resizeTo(QSize(2560, 1600));
    const QImage seen =
        screen->grab(QRect(2 * patchPlace.topLeft(), 2 * text.size())).toImage().convertToFormat(QImage::Format_RGB32);
    int finer = 0;
    for (int y = 0; y + 1 < seen.height(); y += 2) {
        for (int x = 0; x + 1 < seen.width(); x += 2) {
            const QRgb first = seen.pixel(x, y);
            finer += first != seen.pixel(x + 1, y) || first != seen.pixel(x, y + 1) ? 1 : 0;
        }
    }
    // A merely enlarged picture of the display would have one colour in each of its pixels.
    QVERIFY2(finer > 20, qPrintable(QString::number(finer)));
}

void TestScreenWindow::aTouchLandsWhereItIsSeen_data()
{
    theDisplayIsSeenAtAnySize_data();
}

void TestScreenWindow::aTouchLandsWhereItIsSeen()
{
    QFETCH(QSize, size);
    resizeTo(size);
    const FieldView &view = *display->fieldView();
    const QPointF pixel(700, 500);
    const QPointF field = view.camera().fieldPoint(pixel - view.pos()).value();
    QSignalSpy touched(&view, &FieldView::touched);
    touch(pixel);
    QCOMPARE(touched.size(), 1);
    const double reach = 2.0 * view.camera().metresPerPixel(field);
    QVERIFY(QLineF(touched.first().first().toPointF(), field).length() < reach);
}

void TestScreenWindow::twoFingersMoveTheMapAsTheyAreSeen()
{
    resizeTo(QSize(1920, 1200));
    const Camera &camera = display->fieldView()->camera();
    const QPointF first(600, 500);
    const QPointF second(800, 500);
    const QPointF held = camera.fieldPoint((first + second) / 2.0 - display->fieldView()->pos()).value();
    const double distance = camera.distance();
    QTouchDevice *device = QTest::createTouchDevice();
    QWindow *window = screen->windowHandle();
    QTest::touchEvent(window, device).press(0, inWindow(first), window);
    QTest::touchEvent(window, device).stationary(0).press(1, inWindow(second), window);
    QTest::touchEvent(window, device)
        .move(0, inWindow(first - QPointF(100, 0)), window)
        .move(1, inWindow(second + QPointF(100, 0)), window);
    QTest::touchEvent(window, device)
        .release(0, inWindow(first - QPointF(100, 0)), window)
        .release(1, inWindow(second + QPointF(100, 0)), window);
    QVERIFY(std::abs(camera.distance() - distance / 2.0) < 0.01 * distance);
    const QPointF now = camera.project(held).value() + display->fieldView()->pos();
    QVERIFY(QLineF(now, (first + second) / 2.0).length() < 2.0);
}

void TestScreenWindow::theWheelZoomsAtThePointer()
{
    resizeTo(QSize(1024, 600));
    const Camera &camera = display->fieldView()->camera();
    const QPointF pixel(700, 500);
    const QPointF held = camera.fieldPoint(pixel - display->fieldView()->pos()).value();
    const double distance = camera.distance();
    QWheelEvent event(inWindow(pixel), inWindow(pixel), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(screen->windowHandle(), &event);
    QCOMPARE(camera.distance(), distance / 1.44);
    const QPointF now = camera.project(held).value() + display->fieldView()->pos();
    QVERIFY(QLineF(now, pixel).length() < 2.0);
}

void TestScreenWindow::aDialogKeepsItsPlaceAndIsTouchedWhereItIsSeen_data()
{
    theDisplayIsSeenAtAnySize_data();
}

void TestScreenWindow::aDialogKeepsItsPlaceAndIsTouchedWhereItIsSeen()
{
    QFETCH(QSize, size);
    resizeTo(size);
    QDialog dialog;
    dialog.setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    dialog.resize(800, 800);
    dialog.move(240, 0);
    dialog.setPalette(patchColor);
    QPushButton done(&dialog);
    done.setGeometry(715, 5, 80, 60);
    connect(&done, &QPushButton::clicked, &dialog, &QDialog::accept);
    QColor inside;
    QTimer::singleShot(0, &dialog, [&] {
        inside = colorAt(QPointF(300, 500));
        touch(QPointF(240 + 755, 35));
    });
    QTimer::singleShot(5000, &dialog, &QDialog::reject);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.geometry(), QRect(240, 0, 800, 800));
    QCOMPARE(inside, patchColor);
    QVERIFY(colorAt(QPointF(300, 500)) != patchColor);
}

void TestScreenWindow::nothingBesideADialogIsTouched()
{
    resizeTo(QSize(1920, 1080));
    QSignalSpy touched(display->fieldView(), &FieldView::touched);
    QDialog dialog;
    dialog.setWindowFlags(Qt::FramelessWindowHint);
    dialog.setGeometry(240, 0, 300, 300);
    dialog.setModal(true);
    dialog.show();
    touch(QPointF(700, 500));
    QCOMPARE(touched.size(), 0);
    dialog.close();
    touch(QPointF(700, 500));
    QCOMPARE(touched.size(), 1);
}

void TestScreenWindow::whatADialogKeepsFromTouchesLooksSo()
{
    resizeTo(TerminalWindow::displaySize);
    auto *button = display->findChild<TouchButton *>(QStringLiteral("zoomIn"));
    const QPoint ground = button->mapTo(display.data(), QPoint(button->width() / 2, 6));
    QCOMPARE(colorAt(ground), Theme::colors().button);
    QDialog dialog;
    TouchButton done(QStringLiteral("Done"), &dialog);
    done.setGeometry(10, 10, 100, 80);
    dialog.setGeometry(240, 0, 300, 300);
    dialog.setModal(true);
    QRegion seenAnew;
    connect(screen->findChild<UnseenWindows *>(), &UnseenWindows::changed, &dialog,
            [&seenAnew](const QRegion &part) { seenAnew += part; });
    dialog.show();
    QVERIFY(seenAnew.contains(ground));
    QCOMPARE(colorAt(ground), Theme::colors().disabledButton);
    QCOMPARE(colorAt(dialog.pos() + QPoint(60, 16)), Theme::colors().button);
    dialog.close();
    QCOMPARE(colorAt(ground), Theme::colors().button);
}

void TestScreenWindow::aPopupIsSeenAndClosesWhenTouchedBeside()
{
    resizeTo(QSize(1920, 1200));
    QWidget popup(patch, Qt::Popup);
    popup.setPalette(patchColor);
    popup.setGeometry(700, 100, 100, 100);
    QPushButton button(&popup);
    button.setGeometry(10, 10, 50, 50);
    QSignalSpy clicked(&button, &QPushButton::clicked);
    popup.show();
    QCOMPARE(colorAt(QPointF(795, 195)), patchColor);
    touch(QPointF(730, 130));
    QCOMPARE(clicked.size(), 1);
    QVERIFY(popup.isVisible());
    touch(QPointF(300, 600));
    QVERIFY(!popup.isVisible());
}

void TestScreenWindow::keysGoToWhatHasTheKeyboard()
{
    QLineEdit below(patch);
    below.show();
    below.setFocus();
    QTest::keyClick(screen->windowHandle(), Qt::Key_A);
    QCOMPARE(below.text(), QStringLiteral("a"));
    QDialog dialog;
    QLineEdit above(&dialog);
    dialog.setModal(true);
    dialog.show();
    QTRY_VERIFY(above.hasFocus());
    QTest::keyClick(screen->windowHandle(), Qt::Key_B);
    QCOMPARE(above.text(), QStringLiteral("b"));
    dialog.close();
    QTRY_VERIFY(below.hasFocus());
    QTest::keyClick(screen->windowHandle(), Qt::Key_C);
    QCOMPARE(below.text(), QStringLiteral("ac"));
}

void TestScreenWindow::f11FillsTheScreenAndEscapeLeaves()
{
    resizeTo(QSize(1100, 700));
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(screen->windowHandle(), key);
        return screen->isFullScreen();
    };
    QVERIFY(press(Qt::Key_F11));
    QCOMPARE(screen->plainSize(), QSize(1100, 700));
    QVERIFY(!press(Qt::Key_F11));
    QVERIFY(press(Qt::Key_F11));
    QVERIFY(!press(Qt::Key_Escape));
    QVERIFY(!press(Qt::Key_Escape));
}

void TestScreenWindow::aButtonFillsTheScreenAndLeaves()
{
    auto *button = display->findChild<TouchButton *>(QStringLiteral("fullScreenButton"));
    for (const bool isFull : {true, false}) {
        touch(button->mapTo(display.data(), button->rect().center()));
        QCOMPARE(screen->isFullScreen(), isFull);
        QCOMPARE(button->text(), isFull ? QStringLiteral("Leave full screen") : QStringLiteral("Full screen"));
    }
    // However full screen was turned on, the button turns it off.
    QTest::keyClick(screen->windowHandle(), Qt::Key_F11);
    QCOMPARE(button->text(), QStringLiteral("Leave full screen"));
}

void TestScreenWindow::itIsKeptOnTheScreen()
{
    const QRect available = screen->windowHandle()->screen()->availableGeometry();
    const QSize large = 2 * available.size();
    resizeTo(large);
    screen->keepOnScreen();
    const auto activate = [this] {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(screen.data(), &activation);
    };
    activate();
    QTRY_VERIFY(available.contains(screen->geometry()));
    // Only once: the operator may then make it as large as needed.
    resizeTo(large);
    activate();
    QTest::qWait(100);
    QCOMPARE(screen->size(), large);
}

void TestScreenWindow::escapeLeavesWhatIsInnermostAlone_data()
{
    QTest::addColumn<Qt::WindowFlags>("kind");
    QTest::newRow("dialog") << Qt::WindowFlags(Qt::Dialog);
    QTest::newRow("popup") << Qt::WindowFlags(Qt::Popup);
    QTest::newRow("page of the display") << Qt::WindowFlags(Qt::Widget);
}

void TestScreenWindow::escapeLeavesWhatIsInnermostAlone()
{
    QFETCH(Qt::WindowFlags, kind);
    Inner inner(display.data(), kind);
    inner.setWindowModality(kind == Qt::Dialog ? Qt::ApplicationModal : Qt::NonModal);
    QTest::keyClick(screen->windowHandle(), Qt::Key_F11);
    inner.show();
    inner.setFocus();
    QTest::keyClick(screen->windowHandle(), Qt::Key_Escape);
    QVERIFY(!inner.isVisible());
    QVERIFY(screen->isFullScreen());
    QTest::keyClick(screen->windowHandle(), Qt::Key_Escape);
    QVERIFY(!screen->isFullScreen());
}

void TestScreenWindow::aPartThatChangesIsSeen()
{
    resizeTo(QSize(1100, 700));
    QTest::qWait(200);
    const QColor other(200, 2, 3);
    QSignalSpy changed(screen->findChild<QObject *>(QStringLiteral("unseenWindows")), SIGNAL(changed(QRegion)));
    patch->setPalette(other);
    QTRY_VERIFY(!changed.isEmpty());
    QRegion part;
    for (const QList<QVariant> &change : qAsConst(changed))
        part += change.first().value<QRegion>();
    QCOMPARE(part.boundingRect(), patchPlace);
    QCOMPARE(colorAt(patchPlace.center()), other);
}

void TestScreenWindow::nothingIsDrawnWhileNothingChanges()
{
    QTest::qWait(200);
    QSignalSpy changed(screen->findChild<QObject *>(QStringLiteral("unseenWindows")), SIGNAL(changed(QRegion)));
    QTest::qWait(1000);
    QCOMPARE(changed.size(), 0);
}

void TestScreenWindow::closingItClosesTheDisplay()
{
    QSignalSpy closed(display.data(), &TerminalWindow::closed);
    screen->close();
    QCOMPARE(closed.size(), 1);
    QVERIFY(!display->isVisible());
    screen->show();
    display->close();
    QVERIFY(!screen->isVisible());
}

void TestScreenWindow::theWindowStaysWhileADialogIsOpen()
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QVERIFY(!screen->close());
    QVERIFY(display->isVisible());
    dialog.close();
    QVERIFY(screen->close());
}

RXMAP_TEST(TestScreenWindow, Widgets)
#include "tst_screenwindow.moc"
