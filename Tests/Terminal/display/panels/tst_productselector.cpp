#include "productselector.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"

#include <QSignalSpy>

/// The column of product buttons.
class TestProductSelector : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void buttonsCarryTheProductsNames();
    void manyProductsCarryTheirShortNames();
    void aTouchTellsTheProductsNumber();
    void oneProductIsActive();
    void anUnknownNumberLeavesTheActiveProduct();
    void choosingFromElsewhereTellsNobody();
    void buttonsAreBigAndSideBySide_data();
    void buttonsAreBigAndSideBySide();
};

namespace {

/// Room below the status line, pixels.
constexpr int room = 720;

Products products(int count)
{
    Products all;
    for (int number = 1; number <= count; ++number) {
        Product product;
        product.name = QStringLiteral("Product name %1").arg(number);
        product.shortName = QStringLiteral("P%1").arg(number);
        product.bin = number + 20;
        all.append(product);
    }
    return all;
}

TouchButton *buttonOf(const ProductSelector &selector, int number)
{
    return selector.findChild<TouchButton *>(QStringLiteral("selectProduct%1").arg(number));
}

/// Numbers of the products whose buttons look chosen.
QList<int> active(const ProductSelector &selector, int count)
{
    QList<int> numbers;
    for (int number = 1; number <= count; ++number) {
        if (buttonOf(selector, number)->isChecked())
            numbers.append(number);
    }
    return numbers;
}

} // namespace

void TestProductSelector::buttonsCarryTheProductsNames()
{
    const ProductSelector selector(products(3));
    QCOMPARE(selector.findChildren<TouchButton *>().size(), 3);
    for (int number = 1; number <= 3; ++number)
        QCOMPARE(buttonOf(selector, number)->text(), QStringLiteral("Product name %1").arg(number));
}

void TestProductSelector::manyProductsCarryTheirShortNames()
{
    const ProductSelector eight(products(8));
    QCOMPARE(buttonOf(eight, 8)->text(), QStringLiteral("Product name 8"));
    const ProductSelector nine(products(9));
    QCOMPARE(buttonOf(nine, 9)->text(), QStringLiteral("P9"));
}

void TestProductSelector::aTouchTellsTheProductsNumber()
{
    ProductSelector selector(products(3));
    QSignalSpy chosen(&selector, &ProductSelector::chosen);
    QTest::mouseClick(buttonOf(selector, 2), Qt::LeftButton);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toInt(), 2);
}

void TestProductSelector::oneProductIsActive()
{
    ProductSelector selector(products(3));
    QCOMPARE(active(selector, 3), QList<int>());
    selector.setActiveProduct(1);
    selector.setActiveProduct(3);
    QCOMPARE(active(selector, 3), QList<int>{3});
}

void TestProductSelector::anUnknownNumberLeavesTheActiveProduct()
{
    ProductSelector selector(products(3));
    selector.setActiveProduct(2);
    selector.setActiveProduct(0);
    selector.setActiveProduct(4);
    QCOMPARE(active(selector, 3), QList<int>{2});
}

void TestProductSelector::choosingFromElsewhereTellsNobody()
{
    ProductSelector selector(products(3));
    QSignalSpy chosen(&selector, &ProductSelector::chosen);
    selector.setActiveProduct(2);
    QVERIFY(chosen.isEmpty());
}

void TestProductSelector::buttonsAreBigAndSideBySide_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("columns");
    for (const int count : {1, 3, 8})
        QTest::addRow("%d", count) << count << 1;
    for (const int count : {9, 15, 16})
        QTest::addRow("%d", count) << count << 2;
}

void TestProductSelector::buttonsAreBigAndSideBySide()
{
    QFETCH(int, count);
    ProductSelector selector(products(count));
    const int height = selector.heightWithin(room);
    QVERIFY(height <= room);
    selector.resize(212, height);
    selector.show();
    QSet<int> lefts;
    for (int number = 1; number <= count; ++number) {
        const QRect place = buttonOf(selector, number)->geometry();
        QVERIFY2(qMin(place.width(), place.height()) >= Theme::touchTarget, qPrintable(QString::number(number)));
        QVERIFY(selector.rect().contains(place));
        lefts.insert(place.left());
        for (int other = 1; other < number; ++other)
            QVERIFY(!place.intersects(buttonOf(selector, other)->geometry()));
    }
    QTEST(lefts.size(), "columns");
}

RXMAP_TEST(TestProductSelector, Widgets)
#include "tst_productselector.moc"
