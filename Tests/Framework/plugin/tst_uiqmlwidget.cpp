#include "testbase.h"

#include "Framework/uiqmlwidget.h"

#include <QPointer>

class TestUiQmlWidget : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void itGoesWithItsParent();
    void itIsKnownByItsClass();
};

void TestUiQmlWidget::itGoesWithItsParent()
{
    QScopedPointer<QObject> parent(new QObject);
    const QPointer<UiQmlWidget> widget(new UiQmlWidget(parent.data()));
    QScopedPointer<UiQmlWidget> orphan(widget->parent() == parent.data() ? nullptr : widget.data());
    QVERIFY(orphan.isNull());
    parent.reset();
    QVERIFY(widget.isNull());
}

void TestUiQmlWidget::itIsKnownByItsClass()
{
    const UiQmlWidget widget;
    QVERIFY(widget.parent() == nullptr);
    QCOMPARE(QByteArray(widget.metaObject()->className()), QByteArray("UiQmlWidget"));
}

RXMAP_TEST(TestUiQmlWidget, None)
#include "tst_uiqmlwidget.moc"
