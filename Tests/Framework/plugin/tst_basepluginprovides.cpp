#include "testbase.h"

#include "Framework/basepluginprovides.h"

#include <QObject>

namespace {

/// Records its destruction.
class Module : public QObject, public BasePlugInProvides {
public:
    explicit Module(bool *givenIsGone)
        : isGone(givenIsGone)
    {
    }
    ~Module() override { *isGone = true; }

    void close() override { }
    void getInterfaceVersion(unsigned long &, unsigned long &) override { }
    void getDbVersion(unsigned long &, unsigned long &) override { }
    QString getPluginName() override { return QStringLiteral("module"); }
    void getPluginVersion(unsigned long &, unsigned long &) override { }

private:
    bool *isGone;
};

} // namespace

class TestBasePlugInProvides : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aModuleIsFoundAndEndedThroughTheInterface();
};

void TestBasePlugInProvides::aModuleIsFoundAndEndedThroughTheInterface()
{
    bool isGone = false;
    QObject *const module = new Module(&isGone);
    auto *const provides = dynamic_cast<BasePlugInProvides *>(module);
    QVERIFY(provides);
    QCOMPARE(provides->getPluginName(), QStringLiteral("module"));
    delete provides;
    QVERIFY(isGone);
}

RXMAP_TEST(TestBasePlugInProvides, None)
#include "tst_basepluginprovides.moc"
