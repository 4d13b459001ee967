#include "fieldscene.h"
#include "fieldview.h"
#include "legendpanel.h"
#include "productfile.h"
#include "productselector.h"
#include "statusbar.h"
#include "terminalwindow.h"
#include "testbase.h"
#include "touchbutton.h"
#include "windowstack.h"

#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

/// The display as a whole.
class TestTerminalWindow : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void panelsLieOnTheDisplayAndApart();
    void zoomButtonsBringTheFieldNearerAndFurther();
    void theFieldButtonAsksForTheWholeField();
    void aDialogPlacesItselfOnTheDisplayOnce();
    void aPictureShowsTheOpenDialogWhereItIs();
    void closingIsTold();
    void whatIsDroppedIsToldFilesApart_data();
    void whatIsDroppedIsToldFilesApart();
    void nothingIsTakenWhileADialogIsOpen();
    void aButtonSwitchesBetweenDayAndNight();
    void aPlugInsDialogKnowsNothingOfTheTheme_data();
    void aPlugInsDialogKnowsNothingOfTheTheme();

private:
    QScopedPointer<TerminalWindow> window;
};

void TestTerminalWindow::init()
{
    TestBase::init();
    window.reset(new TerminalWindow(ProductFile::standard()));
    window->move(40, 60);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void TestTerminalWindow::cleanup()
{
    window.reset();
    Theme::use(Theme::Kind::Day);
    TestBase::cleanup();
}

void TestTerminalWindow::panelsLieOnTheDisplayAndApart()
{
    QCOMPARE(window->size(), QSize(1280, 800));
    QList<QWidget *> panels{window->statusBar(), window->productSelector(), window->legend()};
    for (const char *name : {"zoomIn", "zoomOut", "showField"})
        panels.append(window->findChild<QWidget *>(QLatin1String(name)));
    for (int i = 0; i < panels.size(); ++i) {
        QVERIFY(!panels.at(i)->geometry().isEmpty());
        QVERIFY(window->rect().contains(panels.at(i)->geometry()));
        for (int other = 0; other < i; ++other)
            QVERIFY(!panels.at(i)->geometry().intersects(panels.at(other)->geometry()));
    }
    QCOMPARE(window->fieldView()->geometry().top(), window->statusBar()->geometry().bottom() + 1);
    QCOMPARE(window->fieldView()->geometry().bottomRight(), window->rect().bottomRight());
}

void TestTerminalWindow::zoomButtonsBringTheFieldNearerAndFurther()
{
    const Camera &camera = window->fieldView()->camera();
    const double distance = camera.distance();
    QTest::mouseClick(window->findChild<TouchButton *>(QStringLiteral("zoomIn")), Qt::LeftButton);
    QVERIFY(camera.distance() < distance);
    QTest::mouseClick(window->findChild<TouchButton *>(QStringLiteral("zoomOut")), Qt::LeftButton);
    QCOMPARE(camera.distance(), distance);
}

void TestTerminalWindow::theFieldButtonAsksForTheWholeField()
{
    QSignalSpy asked(window.data(), &TerminalWindow::frameRequested);
    QTest::mouseClick(window->findChild<TouchButton *>(QStringLiteral("showField")), Qt::LeftButton);
    QCOMPARE(asked.size(), 1);
}

void TestTerminalWindow::aDialogPlacesItselfOnTheDisplayOnce()
{
    const QPoint corner = window->mapToGlobal(QPoint(0, 0));
    QVERIFY(!corner.isNull());
    QDialog dialog;
    dialog.setWindowFlags(Qt::FramelessWindowHint);
    dialog.resize(300, 200);
    dialog.move(240, 100);
    dialog.show();
    QCOMPARE(dialog.pos(), QPoint(240, 100) + corner);
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.pos(), QPoint(240, 100) + corner);
}

void TestTerminalWindow::aPictureShowsTheOpenDialogWhereItIs()
{
    const QColor color(1, 200, 3);
    QDialog dialog;
    dialog.setWindowFlags(Qt::FramelessWindowHint);
    dialog.setPalette(color);
    dialog.resize(300, 200);
    dialog.move(240, 100);
    dialog.show();
    const QImage picture = WindowStack::picture(window.data());
    QCOMPARE(picture.size(), TerminalWindow::displaySize);
    QCOMPARE(picture.pixelColor(240, 100), color);
    QCOMPARE(picture.pixelColor(539, 299), color);
    QVERIFY(picture.pixelColor(239, 100) != color);
    QVERIFY(picture.pixelColor(540, 299) != color);
    dialog.close();
    QVERIFY(WindowStack::picture(window.data()).pixelColor(240, 100) != color);
}

void TestTerminalWindow::closingIsTold()
{
    QSignalSpy closed(window.data(), &TerminalWindow::closed);
    window->close();
    QCOMPARE(closed.size(), 1);
}

void TestTerminalWindow::whatIsDroppedIsToldFilesApart_data()
{
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("others");
    QTest::newRow("files") << QStringList{"file:///a.shp", "file:///b c.shp"} << QStringList{"/a.shp", "/b c.shp"}
                           << QStringList();
    QTest::newRow("a page") << QStringList{"http://example.org/a.shp"} << QStringList()
                            << QStringList{"http://example.org/a.shp"};
    QTest::newRow("both") << QStringList{"ftp://a/b", "file:///a.shp"} << QStringList{"/a.shp"}
                          << QStringList{"ftp://a/b"};
    QTest::newRow("text") << QStringList() << QStringList() << QStringList{"a word"};
}

void TestTerminalWindow::whatIsDroppedIsToldFilesApart()
{
    QFETCH(QStringList, urls);
    QMimeData data;
    QList<QUrl> list;
    for (const QString &url : urls)
        list.append(QUrl(url));
    if (list.isEmpty())
        data.setText(QStringLiteral("a word"));
    else
        data.setUrls(list);
    QSignalSpy dropped(window.data(), &TerminalWindow::dropped);
    QDragEnterEvent enter(QPoint(400, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.data(), &enter);
    QDropEvent drop(QPointF(400, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.data(), &drop);
    QCOMPARE(dropped.size(), 1);
    QTEST(dropped.first().at(0).toStringList(), "files");
    QTEST(dropped.first().at(1).toStringList(), "others");
}

void TestTerminalWindow::nothingIsTakenWhileADialogIsOpen()
{
    const auto isTaken = [this] {
        QMimeData data;
        QDragEnterEvent enter(QPoint(400, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(window.data(), &enter);
        return enter.isAccepted();
    };
    QVERIFY(isTaken());
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QVERIFY(!isTaken());
}

void TestTerminalWindow::aButtonSwitchesBetweenDayAndNight()
{
    auto *button = window->findChild<TouchButton *>(QStringLiteral("themeButton"));
    QVERIFY(button != nullptr);
    const auto *legend = window->legend();
    const QColor day = window->fieldView()->colorAt(QPointF(0, 0));
    QCOMPARE(day, Theme::colors(Theme::Kind::Day).ground);
    QCOMPARE(button->text(), QStringLiteral("Night"));
    button->click();
    QCOMPARE(window->fieldView()->colorAt(QPointF(0, 0)), Theme::colors(Theme::Kind::Night).ground);
    QCOMPARE(legend->palette().color(QPalette::WindowText), Theme::colors(Theme::Kind::Night).text);
    QCOMPARE(button->text(), QStringLiteral("Day"));
    button->click();
    QCOMPARE(window->fieldView()->colorAt(QPointF(0, 0)), day);
    QCOMPARE(legend->palette().color(QPalette::WindowText), Theme::colors(Theme::Kind::Day).text);
}

void TestTerminalWindow::aPlugInsDialogKnowsNothingOfTheTheme_data()
{
    QTest::addColumn<bool>("isTheWindows");
    QTest::newRow("on its own") << false;
    QTest::newRow("the window's") << true;
}

void TestTerminalWindow::aPlugInsDialogKnowsNothingOfTheTheme()
{
    QFETCH(bool, isTheWindows);
    window->setTheme(Theme::Kind::Night);
    QDialog dialog(isTheWindows ? window.data() : nullptr);
    QLabel label(&dialog);
    const auto isAsOfTheApplication = [&] {
        return label.palette() == QApplication::palette() && dialog.styleSheet().isEmpty()
            && dialog.palette() == QApplication::palette();
    };
    QVERIFY(isAsOfTheApplication());
    window->setTheme(Theme::Kind::Day);
    window->setTheme(Theme::Kind::Night);
    QVERIFY(isAsOfTheApplication());
    QVERIFY(qApp->styleSheet().isEmpty() && window->styleSheet().isEmpty());
}

RXMAP_TEST(TestTerminalWindow, Widgets)
#include "tst_terminalwindow.moc"
