#include "debugline.h"
#include "testbase.h"

namespace {

struct Line {
    QtMsgType type = QtFatalMsg;
    QByteArray category;
    bool namesItsPlace = true;
    QString text;
};

QList<Line> lines;

void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool namesItsPlace = context.file != nullptr || context.line != 0 || context.function != nullptr;
    lines.append({type, QByteArray(context.category), namesItsPlace, text});
}

} // namespace

class TestDebugLine : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void itIsOneDebugLineOfTheDefaultCategoryWithoutItsPlace();
};

void TestDebugLine::itIsOneDebugLineOfTheDefaultCategoryWithoutItsPlace()
{
    lines.clear();
    const QtMessageHandler former = qInstallMessageHandler(keep);
    debugLine() << "written" << 7;
    qInstallMessageHandler(former);

    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().type, QtDebugMsg);
    QCOMPARE(lines.first().category, QByteArray("default"));
    QVERIFY(!lines.first().namesItsPlace);
    QCOMPARE(lines.first().text, QStringLiteral("written 7"));
}

RXMAP_TEST(TestDebugLine, None)
#include "tst_debugline.moc"
