#include "accessjournal.h"
#include "samplegroup.h"
#include "testbase.h"
#include "validatorcall.h"

#include <QSignalSpy>

namespace {

using Settings = QList<OrvikTypes::RX_SETTINGS>;

/// A property that the group's class does not have.
struct MissingProperty {
    using Type = Settings;
    static const char *name() { return "noSuchProperty"; }
    static const char *typeName() { return "QList<OrvikTypes::RX_SETTINGS>"; }
};

struct Logged {
    QtMsgType type;
    QByteArray category;
    QByteArray file;
    int line;
    QByteArray function;
};

QList<Logged> *loggedContexts = nullptr;

void keepContext(QtMsgType type, const QMessageLogContext &context, const QString &)
{
    loggedContexts->append({type, context.category, context.file, context.line, context.function});
}

} // namespace

/// What the accessors write to the debug stream and to the log.
class TestGroupPropertyMessages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void anUnknownPropertyIsLookedUpAndReportedAgain();
    void anUnknownPropertyHasNoHooksAndNoNotifySignal();
    void aGroupNameThatLooksLikeAPlaceholderIsLoggedAsItIs();
    void debugLinesHaveTheDefaultCategoryAndNoPlace();
};

void TestGroupPropertyMessages::anUnknownPropertyIsLookedUpAndReportedAgain()
{
    using Missing = GroupProperty<MissingProperty>;
    SampleGroup group(QStringLiteral("rxMap.a"));
    Settings stored;
    const QString readLine = QStringLiteral("publicGetFn() propertyName failure: \"noSuchProperty\" -1");
    const QString writeLine = QStringLiteral("privateSetFn() propertyName failure: \"noSuchProperty\" -1");

    QVERIFY(Missing::get(group, stored).isEmpty());
    QVERIFY(Missing::get(group, stored).isEmpty());
    QCOMPARE(messages().debugLines(), (QStringList{readLine, readLine}));

    // One line from the public setter, one from the internal one that it calls.
    QCOMPARE(Missing::set(group, stored, taggedSettings(1, 1), nullptr), 0);
    QCOMPARE(messages().debugLines().mid(2), (QStringList{writeLine, writeLine}));
}

void TestGroupPropertyMessages::anUnknownPropertyHasNoHooksAndNoNotifySignal()
{
    using Missing = GroupProperty<MissingProperty>;
    SampleGroup group(QStringLiteral("rxMap.a"));
    QSignalSpy changed(&group, &SampleGroup::settingsChanged);
    Settings stored;
    Missing::internalSet(group, stored, taggedSettings(1, 1));
    QCOMPARE(stored, taggedSettings(1, 1));
    QCOMPARE(changed.count(), 0);

    QVERIFY(!group.setWriteProtected("noSuchProperty", true));
    QVERIFY(!group.setBeforeReadHook("noSuchProperty", AccessJournal::noteBefore, nullptr));
    QVERIFY(!group.setAfterReadHook("noSuchProperty", AccessJournal::noteAfter, nullptr));
    QVERIFY(!group.setWriteValidator("noSuchProperty", ValidatorCall::answer, nullptr));
    QVERIFY(!group.setHoldsStoredValue("noSuchProperty", true));
    QVERIFY(!group.holdsStoredValue("noSuchProperty"));
    QVERIFY(!group.holdsRuntimeValue("noSuchProperty"));
}

void TestGroupPropertyMessages::aGroupNameThatLooksLikeAPlaceholderIsLoggedAsItIs()
{
    SampleGroup group(QStringLiteral("rxMap.%2"));
    group.setWriteProtected("level", true);
    messages().expectWarning(QStringLiteral("set rxMap.%2::level failed: invalid write access token"));
    group.setLevel(1);
    group.setWriteProtected("level", false);
    ValidatorCall validator(5);
    group.setWriteValidator("level", ValidatorCall::answer, &validator);
    messages().expectWarning(QStringLiteral("set rxMap.%2::level failed: 5"));
    group.setLevel(1);
}

void TestGroupPropertyMessages::debugLinesHaveTheDefaultCategoryAndNoPlace()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setWriteProtected("level", true);
    QList<Logged> contexts;
    loggedContexts = &contexts;
    const QtMessageHandler former = qInstallMessageHandler(keepContext);
    group.setLevel(1);
    qInstallMessageHandler(former);

    QCOMPARE(contexts.size(), 2);
    QCOMPARE(contexts[0].type, QtWarningMsg);
    QCOMPARE(contexts[0].category, QByteArray("host.group"));
    QCOMPARE(contexts[1].type, QtDebugMsg);
    QCOMPARE(contexts[1].category, QByteArray("default"));
    QCOMPARE(contexts[1].file, QByteArray());
    QCOMPARE(contexts[1].line, 0);
    QCOMPARE(contexts[1].function, QByteArray());
}

RXMAP_TEST(TestGroupPropertyMessages, Core)
#include "tst_grouppropertymessages.moc"
