#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/object3d.h"
#include "Framework/uigraphicslist.h"

namespace {

class Drawable : public Object3D {
public:
    void draw(QMatrix4x4) override { }
    void init() override { }
    float drawingOrder() const override { return 0.0f; }
};

class PointList : public UiGraphicsList {
public:
    using UiGraphicsList::broker;
    using UiGraphicsList::objects;
    using UiGraphicsList::UiGraphicsList;

    QString getPointDescription(QVector3D) override { return {}; }
    void init() override { }
};

} // namespace

class TestUiGraphicsList : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aNewListIsEmptyAndKnowsItsBroker();
    void theHostSeesTheListsOwnDrawables();
    void theBaseLeavesDrawablesToTheirList();
};

void TestUiGraphicsList::aNewListIsEmptyAndKnowsItsBroker()
{
    DataBroker broker;
    QObject parent;
    auto *const list = new PointList(&broker, &parent);
    QCOMPARE(list->broker, &broker);
    QCOMPARE(list->parent(), &parent);
    QVERIFY(list->drawables() != nullptr);
    QVERIFY(list->drawables()->isEmpty());
}

void TestUiGraphicsList::theHostSeesTheListsOwnDrawables()
{
    PointList list(nullptr);
    Drawable drawable;
    list.objects.append(&drawable);
    UiGraphicsList &asHostSeesIt = list;
    QCOMPARE(asHostSeesIt.drawables(), &list.objects);
    QCOMPARE(*asHostSeesIt.drawables(), QList<Object3D *>{&drawable});
}

void TestUiGraphicsList::theBaseLeavesDrawablesToTheirList()
{
    // The drawable is on the stack: a base that deleted it would crash in this function.
    Drawable drawable;
    {
        PointList list(nullptr);
        list.objects.append(&drawable);
    }
    QCOMPARE(drawable.drawingOrder(), 0.0f);
}

RXMAP_TEST(TestUiGraphicsList, Core)
#include "tst_uigraphicslist.moc"
