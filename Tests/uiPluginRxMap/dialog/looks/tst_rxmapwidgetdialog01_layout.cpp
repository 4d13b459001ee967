#include "openeddialog.h"
#include "testbase.h"

#include "Framework/orvikimage.h"

#include <QPixmap>
#include <QTemporaryDir>

#include <functional>

/// How the dialog is built.
class TestDialogLayout : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theDialogHasTheSizeOfItsBackgroundAndIsCentred_data();
    void theDialogHasTheSizeOfItsBackgroundAndIsCentred();
    void theDialogIsCentredOnAnyDisplay();
    void theWindowHasExactlyTwoFlags();
    void controlsStandAtTheirPlaces_data();
    void controlsStandAtTheirPlaces();
    void controlsAreStackedInTheirOrder();
    void slotsComeInTheirOrder();
    void lineEditsTakeTheirLimits_data();
    void lineEditsTakeTheirLimits();
    void productButtonsAreSpreadOverTheHeight_data();
    void productButtonsAreSpreadOverTheHeight();
    void productButtonsShareTheFirstOnesHeight();
    void productLabels_data();
    void productLabels();
    void membersKeepTheirSizes();
    void membersLieInTheirOrder();
};

void TestDialogLayout::theDialogHasTheSizeOfItsBackgroundAndIsCentred_data()
{
    QTest::addColumn<QSize>("background");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("800 x 800") << QSize(800, 800) << QRect(240, 0, 800, 800);
    QTest::newRow("odd difference") << QSize(801, 795) << QRect(239, 2, 801, 795);
    QTest::newRow("larger than the display") << QSize(1283, 805) << QRect(-1, -2, 1283, 805);
}

void TestDialogLayout::theDialogHasTheSizeOfItsBackgroundAndIsCentred()
{
    QFETCH(QSize, background);
    QFETCH(QRect, geometry);
    QTemporaryDir images;
    QPixmap(background).save(images.filePath(QStringLiteral("RxOptionsPopup.png")));
    DialogHost host;
    host.images = QDir(images.path());
    Opened opened(host);
    QCOMPARE(opened.dialog.geometry(), geometry);
    QCOMPARE(opened.probe.doneButton()->pos(), QPoint(background.width() - 85, 5));
    QCOMPARE(opened.probe.screenSize(), QSize(1280, 800));
    const auto *image = opened.dialog.findChild<OrvikImage *>();
    QVERIFY(image);
    QCOMPARE(image->id(), 0);
    QCOMPARE(image->geometry(), QRect(QPoint(0, 0), background));
}

void TestDialogLayout::theDialogIsCentredOnAnyDisplay()
{
    QTemporaryDir images;
    QPixmap(640, 480).save(images.filePath(QStringLiteral("RxOptionsPopup.png")));
    DataBroker broker(QString(), QSize(1024, 768));
    QDir folder(images.path());
    RxMapWidgetDialog01 dialog(&broker, folder, nullptr);
    QCOMPARE(dialog.geometry(), QRect(192, 144, 640, 480));
    QCOMPARE(DialogProbe(dialog).screenSize(), QSize(1024, 768));
}

void TestDialogLayout::theWindowHasExactlyTwoFlags()
{
    DialogHost host;
    Opened opened(host);
    QCOMPARE(opened.dialog.windowFlags() & ~Qt::WindowType_Mask, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    // It has no type except the one that Qt gives every window.
    QCOMPARE(opened.dialog.windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Window));
}

void TestDialogLayout::controlsStandAtTheirPlaces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("text");
    QTest::newRow("title") << "" << QPoint(143, 50) << "Rx Map Settings";
    QTest::newRow("zero-rate label") << "zeroRateShutoffLabel" << QPoint(201, 107) << "Enable Zero Rate Shutoff";
    QTest::newRow("zero-rate box") << "zeroRateShutoffBox" << QPoint(133, 97) << "";
    QTest::newRow("apply label") << "applyToAllLabel" << QPoint(269, 171) << "Apply to all products";
    QTest::newRow("apply box") << "applyToAllBox" << QPoint(201, 161) << "";
    QTest::newRow("look-ahead label") << "lookAheadLabel" << QPoint(133, 345) << "On look-ahead (seconds)";
    QTest::newRow("look-ahead edit") << "lookAheadEdit" << QPoint(381, 330) << "";
    QTest::newRow("rate edit") << "defaultRateEdit" << QPoint(381, 399) << "";
    QTest::newRow("rate label") << "defaultRateLabel" << QPoint(133, 414) << "Default Rate (kg/ha)";
    QTest::newRow("not under VRA") << "notUnderVraLabel" << QPoint(133, 110)
                                   << "This product node is not under VRA control.";
    QTest::newRow("moving") << "vehicleMovingLabel" << QPoint(133, 725)
                            << "Changes not permitted while vehicle is moving.";
    QTest::newRow("done") << "doneButton" << QPoint(715, 5) << "";
}

void TestDialogLayout::controlsStandAtTheirPlaces()
{
    QFETCH(QString, name);
    QFETCH(QPoint, position);
    QFETCH(QString, text);
    DialogHost host;
    Opened opened(host);
    QWidget *found = nullptr;
    for (QWidget *widget : opened.dialog.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        auto *label = qobject_cast<QLabel *>(widget);
        if (name.isEmpty() ? label != nullptr && label->text() == text : widget->objectName() == name)
            found = widget;
    }
    QVERIFY(found);
    QCOMPARE(found->pos(), position);
    if (auto *label = qobject_cast<QLabel *>(found)) {
        QCOMPARE(label->text(), text);
        QVERIFY(label->testAttribute(Qt::WA_TranslucentBackground));
    }
    if (name == QLatin1String("defaultRateLabel"))
        QCOMPARE(QSize(found->minimumWidth(), found->maximumWidth()), QSize(247, 247));
}

void TestDialogLayout::controlsAreStackedInTheirOrder()
{
    DialogHost host(2);
    Opened opened(host);
    QStringList order;
    for (QObject *child : opened.dialog.children()) {
        if (qobject_cast<OrvikImage *>(child) != nullptr)
            order.append(QStringLiteral("background"));
        else if (auto *label = qobject_cast<QLabel *>(child); label != nullptr && label->objectName().isEmpty())
            order.append(label->text().left(2));
        else if (child->isWidgetType())
            order.append(child->objectName());
    }
    const QStringList expected{"background",
                               "doneButton",
                               "Rx",
                               "zeroRateShutoffLabel",
                               "zeroRateShutoffBox",
                               "applyToAllLabel",
                               "applyToAllBox",
                               "lookAheadLabel",
                               "lookAheadEdit",
                               "defaultRateEdit",
                               "defaultRateLabel",
                               "notUnderVraLabel",
                               "vehicleMovingLabel",
                               "productButton0",
                               "productButton1",
                               "P\n"};
    QCOMPARE(order, expected);
}

void TestDialogLayout::slotsComeInTheirOrder()
{
    const QMetaObject &meta = RxMapWidgetDialog01::staticMetaObject;
    QCOMPARE(QString::fromLatin1(meta.className()), QStringLiteral("RxMapWidgetDialog01"));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QStringList signatures;
    QList<QByteArray> names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        names.append(meta.method(i).parameterNames());
    }
    QCOMPARE(signatures,
             (QStringList{"doneButtonReleased(int)", "onValueChanged(int)", "productSelectionChanged(int)",
                          "testForZeroSpeed()"}));
    QCOMPARE(names, (QList<QByteArray>{"", "id", "buttonIndex"}));
}

void TestDialogLayout::lineEditsTakeTheirLimits_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *title, const char *control, const char *typed, const char *shown) {
        QTest::newRow(title) << control << typed << shown;
    };
    // A key that would leave the limits is refused; what was typed before it stays.
    row("look-ahead, three digits", "lookAheadEdit", "1234", "123");
    row("look-ahead, one decimal", "lookAheadEdit", "123.78", "123.7");
    row("look-ahead, largest", "lookAheadEdit", "999.9", "999.9");
    row("look-ahead, half a second", "lookAheadEdit", "0.5", "0.5");
    row("rate, none", "defaultRateEdit", "0", "0");
    row("rate, below one", "defaultRateEdit", "0.5", "0.5");
    row("rate, largest", "defaultRateEdit", "5000", "5000");
    row("rate, largest with decimal", "defaultRateEdit", "5000.0", "5000.0");
    row("rate, just above", "defaultRateEdit", "5000.1", "5000.");
    row("rate, above", "defaultRateEdit", "5001", "500");
    row("rate, one decimal", "defaultRateEdit", "4999.98", "4999.9");
    row("rate, negative", "defaultRateEdit", "-1", "1");
}

void TestDialogLayout::lineEditsTakeTheirLimits()
{
    QFETCH(QString, control);
    QFETCH(QString, typed);
    DialogHost host;
    Opened opened(host);
    opened.dialog.show();
    auto *edit = opened.dialog.findChild<OrvikLineEdit *>(control);
    QVERIFY(edit);
    edit->setFocus();
    edit->setText(QString());
    // Keys, sent as an operator's keyboard sends them.
    QTest::keyClicks(edit, typed);
    QTEST(edit->getText(), "shown");
}

void TestDialogLayout::productButtonsAreSpreadOverTheHeight_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("buttonHeight");
    QTest::addColumn<int>("dialogHeight");
    QTest::addColumn<QList<int>>("tops");
    QTest::newRow("three of 100") << 3 << 100 << 800 << QList<int>{125, 350, 575};
    QTest::newRow("three of 60 in 481") << 3 << 60 << 481 << QList<int>{75, 210, 345};
    QTest::newRow("one") << 1 << 100 << 800 << QList<int>{350};
    QTest::newRow("twelve overlap") << 12 << 100 << 800
                                    << QList<int>{-30, 40, 110, 180, 250, 320, 390, 460, 530, 600, 670, 740};
    QTest::newRow("none") << 0 << 100 << 800 << QList<int>{};
}

void TestDialogLayout::productButtonsAreSpreadOverTheHeight()
{
    QFETCH(int, products);
    QFETCH(int, buttonHeight);
    QFETCH(int, dialogHeight);
    QFETCH(QList<int>, tops);
    QTemporaryDir images;
    QPixmap(800, dialogHeight).save(images.filePath(QStringLiteral("RxOptionsPopup.png")));
    for (const char *name : {"productButtonOff.png", "productButtonOn.png"})
        QPixmap(100, buttonHeight).save(images.filePath(QString::fromLatin1(name)));
    DialogHost host(products);
    host.images = QDir(images.path());
    Opened opened(host);
    QCOMPARE(opened.probe.productButtonCount(), products);
    for (int i = 0; i < products; ++i)
        QCOMPARE(opened.probe.productButton(i)->pos(), QPoint(23, tops.at(i)));
    const auto *caption = qobject_cast<QLabel *>(opened.dialog.children().constLast());
    QVERIFY(caption);
    QCOMPARE(caption->geometry(), QRect(5, 0, 50, dialogHeight));
}

void TestDialogLayout::productButtonsShareTheFirstOnesHeight()
{
    DialogHost host(3);
    Opened opened(host);
    QList<QPoint> places;
    for (int i = 0; i < 3; ++i)
        places.append(opened.probe.productButton(i)->pos());
    for (int other : {1, 2})
        opened.probe.productButton(other)->resize(100, 7);
    opened.probe.spreadProductButtons();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(opened.probe.productButton(i)->pos(), places.at(i));
}

void TestDialogLayout::productLabels_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<QString>("label");
    QTest::newRow("named") << 0 << "Bin1";
    QTest::newRow("unnamed, ninth") << 8 << "P09";
    QTest::newRow("unnamed, tenth") << 9 << "P10";
    QTest::newRow("unnamed, eleventh") << 10 << "P11";
    QTest::newRow("named empty") << 1 << "";
}

void TestDialogLayout::productLabels()
{
    QFETCH(int, product);
    DialogHost host(8);
    host.bins.at(1)->setCompositionShortName(QString());
    for (int number = 9; number <= 11; ++number)
        host.broker.publishGroup(new NamelessBinGroup(QStringLiteral("system.binGroup.%1").arg(number)));
    Opened opened(host);
    QTEST(opened.probe.productButton(product)->text(0), "label");
    const OrvikButton *button = opened.probe.productButton(product);
    QCOMPARE(button->textColor(0), product == 0 ? QColor(Qt::white) : QColor(129, 129, 129, 255));
    QCOMPARE(button->currentImage(), product == 0 ? 1 : 0);
}

void TestDialogLayout::membersKeepTheirSizes()
{
    DialogHost host;
    Opened opened(host);
    QCOMPARE(opened.probe.pointSizes(), (QList<int>{26, 22, 16, 22, 14}));
    QCOMPARE(opened.probe.largeFont().pointSize(), 22);
}

void TestDialogLayout::membersLieInTheirOrder()
{
    DialogHost host;
    Opened opened(host);
    const std::vector<const void *> places = opened.probe.memberPlaces();
    QCOMPARE(int(places.size()), 30);
    for (std::size_t i = 1; i < places.size(); ++i)
        QVERIFY2(std::less<const void *>()(places[i - 1], places[i]), qPrintable(QString::number(i)));
}

RXMAP_TEST(TestDialogLayout, Widgets)
#include "tst_rxmapwidgetdialog01_layout.moc"
