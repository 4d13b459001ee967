#include "files.h"
#include "testbase.h"
#include "widgetpage.h"

#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>

#include <type_traits>

/// What the Rx options button consists of and what it shows.
class TestRxMapWidget : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withAMapTheButtonIsEnabled();
    void theButtonShowsItsImages_data();
    void theButtonShowsItsImages();
    void onlyAPrescriptionsNameEnablesIt();
    void theFontIsTheTerminals_data();
    void theFontIsTheTerminals();
    void bothSignalsOfTheButtonAreConnected();
    void theWidgetHasTheButtonsSizeAndItsPosition();
    void withoutABrokerTheButtonIsDisabled();
    void keptOperationsAreTheHosts();
    void slotsComeInTheirOrder();
    void pageShownLeavesTheButtonAlone();
};

namespace {

/// The widget's font is set up but nothing draws with it, so the only way to see it is to get round its access: an
/// explicit instantiation may name a private member.
template <QFont RxMapWidget::*member> struct FontAccess {
    friend const QFont &widgetFont(const RxMapWidget &widget) { return widget.*member; }
};
const QFont &widgetFont(const RxMapWidget &widget);
template struct FontAccess<&RxMapWidget::font>;

QColor shownColor(OrvikButtonQgw &button)
{
    QImage image(button.size().toSize(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    button.paint(&painter, nullptr, nullptr);
    return image.pixelColor(2, 2);
}

} // namespace

void TestRxMapWidget::withAMapTheButtonIsEnabled()
{
    DialogHost host;
    WidgetPage page(host);
    QVERIFY(page.button);
    QCOMPARE(page.button->currentImage(), 0);
    QCOMPARE(page.button->id(), 0);
    QCOMPARE(page.button->parentItem(), &page.widget);
}

void TestRxMapWidget::theButtonShowsItsImages_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QColor>("color");
    QTest::newRow("enabled") << true << QColor(0, 128, 0);
    QTest::newRow("disabled") << false << QColor(128, 0, 0);
}

void TestRxMapWidget::theButtonShowsItsImages()
{
    QFETCH(bool, hasMap);
    const QTemporaryDir images;
    QPixmap image(60, 60);
    image.fill(QColor(0, 128, 0));
    image.save(images.filePath(QStringLiteral("RxOptions_11_01.png")));
    image.fill(QColor(128, 0, 0));
    image.save(images.filePath(QStringLiteral("RxOptionsDisable_11_01.png")));
    DialogHost host;
    host.images = QDir(images.path());
    if (!hasMap)
        host.broker.removeGroup(QStringLiteral("rxMap.field"));
    WidgetPage page(host);
    QTEST(shownColor(*page.button), "color");
}

void TestRxMapWidget::onlyAPrescriptionsNameEnablesIt()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    host.broker.publishGroup(new DbGroupRxMap(QStringLiteral("rxMapper")));
    WidgetPage page(host);
    QCOMPARE(page.button->currentImage(), 1);
}

void TestRxMapWidget::theFontIsTheTerminals_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("family");
    QTest::newRow("not set") << QByteArray() << "Liberation Sans";
    QTest::newRow("set") << QByteArray("[main.general]\nfont=Liberation Mono\n") << "Liberation Mono";
}

void TestRxMapWidget::theFontIsTheTerminals()
{
    QFETCH(QByteArray, settings);
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("terminal.ini")), settings);
    DialogHost host(3, file);
    WidgetPage page(host);
    QTEST(widgetFont(page.widget).family(), "family");
    QCOMPARE(widgetFont(page.widget).weight(), 50);
    QCOMPARE(widgetFont(page.widget).pointSize(), 15);
}

void TestRxMapWidget::bothSignalsOfTheButtonAreConnected()
{
    DialogHost host;
    WidgetPage page(host);
    // A disconnect succeeds only where there is a connection.
    QVERIFY(disconnect(page.button, SIGNAL(longTouch(int)), &page.widget, SLOT(onLongTouch(int))));
    QVERIFY(disconnect(page.button, SIGNAL(buttonReleased(int)), &page.widget, SLOT(onButtonReleased(int))));
}

void TestRxMapWidget::theWidgetHasTheButtonsSizeAndItsPosition()
{
    DialogHost host;
    WidgetPage page(host);
    QVERIFY(!page.button->size().isEmpty());
    QCOMPARE(page.widget.size(), page.button->size());
    QCOMPARE(page.widget.pos(), QPointF(30, 40));
    QCOMPARE(page.button->pos(), QPointF(0, 0));
    QCOMPARE(page.widget.gridPosition(), QPoint(1, 2));
}

void TestRxMapWidget::withoutABrokerTheButtonIsDisabled()
{
    DialogHost host;
    const QScopedPointer<RxMapWidget> widget(newWidget(host, nullptr));
    QVERIFY(rxOptionsOf(*widget));
    QCOMPARE(rxOptionsOf(*widget)->currentImage(), 1);
    QCOMPARE(widgetFont(*widget).family(), QStringLiteral("Liberation Sans"));
}

void TestRxMapWidget::keptOperationsAreTheHosts()
{
    // The class in the type of an operation's pointer is the one that declared it last.
    class Open : public RxMapWidget {
    public:
        using RxMapWidget::mousePressEvent;
        using RxMapWidget::mouseReleaseEvent;
    };
    using Touch = void (UiGWidget::*)(QGraphicsSceneMouseEvent *);
    static_assert(std::is_same<decltype(&Open::mousePressEvent), Touch>::value, "touches stay the host's");
    static_assert(std::is_same<decltype(&Open::mouseReleaseEvent), Touch>::value, "touches stay the host's");
    static_assert(std::is_same<decltype(&RxMapWidget::checkForRequiredDbGroups), bool (UiGWidget::*)(bool)>::value,
                  "the check of required groups stays the host's");
    static_assert(std::is_same<decltype(&RxMapWidget::userHasLongTouchedThisWidget), void (UiGWidget::*)()>::value,
                  "long touches beside the button stay the host's");
    static_assert(std::is_same<decltype(&RxMapWidget::pageShown), void (RxMapWidget::*)()>::value,
                  "the widget has a pageShown() of its own");
    DialogHost host;
    WidgetPage page(host);
    QVERIFY(!page.widget.requiresDbGroups());
    QVERIFY(page.widget.checkForRequiredDbGroups(true));
    QCOMPARE(messages().debugLines(), QStringList());
}

void TestRxMapWidget::slotsComeInTheirOrder()
{
    const QMetaObject &meta = RxMapWidget::staticMetaObject;
    QCOMPARE(QString::fromLatin1(meta.className()), QStringLiteral("RxMapWidget"));
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(signatures, (QStringList{"onLongTouch(int)", "onButtonReleased(int)"}));
}

void TestRxMapWidget::pageShownLeavesTheButtonAlone()
{
    DialogHost host;
    WidgetPage page(host);
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    page.widget.pageShown();
    QCOMPARE(page.button->currentImage(), 0);
}

RXMAP_TEST(TestRxMapWidget, Widgets)
#include "tst_rxmapwidget.moc"
