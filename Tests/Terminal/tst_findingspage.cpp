#include "findingspage.h"
#include "productfile.h"
#include "screenfit.h"
#include "screenwindow.h"
#include "terminalwindow.h"
#include "testbase.h"

#include <QAbstractButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

/// The list of findings, touched in the window that is on the screen.
class TestFindingsPage : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRowIsChosenHoweverLongTheTouch_data();
    void aRowIsChosenHoweverLongTheTouch();
    void aDragScrollsAndChoosesNothing();

private:
    QAbstractButton *row(int number)
    {
        return page->findChild<QAbstractButton *>(QStringLiteral("finding%1").arg(number));
    }
    QPoint placeOf(QWidget *widget) const;

    QScopedPointer<TerminalWindow> display;
    QScopedPointer<ScreenWindow> screen;
    FindingsPage *page = nullptr;
};

void TestFindingsPage::init()
{
    TestBase::init();
    display.reset(new TerminalWindow(ProductFile::standard()));
    page = new FindingsPage(display.data());
    page->setGeometry(100, 100, 900, 600);
    FindingsPage::Entry entry;
    entry.finding.place = QPointF();
    page->setEntries(QVector<FindingsPage::Entry>(20, entry).toList());
    page->show();
    screen.reset(new ScreenWindow(display.data()));
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
}

void TestFindingsPage::cleanup()
{
    screen.reset();
    display.reset();
    TestBase::cleanup();
}

/// The middle of a control of the display, in the window on the screen.
QPoint TestFindingsPage::placeOf(QWidget *widget) const
{
    const QPointF pixel = widget->mapTo(display.data(), widget->rect().center());
    return ScreenFit(QSizeF(screen->size())).toWindow().map(pixel).toPoint();
}

void TestFindingsPage::aRowIsChosenHoweverLongTheTouch_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("tap") << 0;
    QTest::newRow("held") << 400;
}

void TestFindingsPage::aRowIsChosenHoweverLongTheTouch()
{
    QFETCH(int, milliseconds);
    QSignalSpy chosen(page, &FindingsPage::chosen);
    const QPoint place = placeOf(row(2));
    QTest::mousePress(screen->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(milliseconds);
    QTest::mouseRelease(screen->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_COMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toInt(), 2);
}

void TestFindingsPage::aDragScrollsAndChoosesNothing()
{
    QSignalSpy chosen(page, &FindingsPage::chosen);
    const QScrollBar *bar = page->findChild<QScrollArea *>(QStringLiteral("findingsList"))->verticalScrollBar();
    QAbstractButton *touched = row(4);
    const QPoint place = placeOf(touched);
    QTest::mousePress(screen->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    for (int moved = 20; moved <= 200; moved += 20)
        QTest::mouseMove(screen->windowHandle(), place - QPoint(0, moved));
    QTRY_VERIFY(bar->value() > 100);
    QVERIFY(!touched->isDown());
    QTest::mouseRelease(screen->windowHandle(), Qt::LeftButton, Qt::NoModifier, place - QPoint(0, 200));
    QVERIFY(!touched->isDown());
    QCOMPARE(chosen.size(), 0);
}

RXMAP_TEST(TestFindingsPage, Widgets)
#include "tst_findingspage.moc"
