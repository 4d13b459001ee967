#include "testbase.h"
#include "visibletext.h"

#include <QJsonDocument>
#include <QJsonObject>

/// Names from files, made harmless.
class TestVisibleText : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void whatDisturbsIsAQuestionMark_data();
    void whatDisturbsIsAQuestionMark();
    void jsonStaysTheSameToItsReaders();
};

void TestVisibleText::whatDisturbsIsAQuestionMark_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("controls") << QStringLiteral("a\n\t\x1b[31m\u007f\u0085\u009bz") << "a???[31m???z";
    QTest::newRow("zero") << QString(QChar(0)) << "?";
    QTest::newRow("lines and paragraphs") << QStringLiteral("a\u2028\u2029z") << "a??z";
    QTest::newRow("overrides and embeddings") << QStringLiteral("\u202a\u202b\u202c\u202d\u202ez") << "?????z";
    QTest::newRow("isolates") << QStringLiteral("\u2066\u2067\u2068\u2069z") << "????z";
    const QString letters =
        QStringLiteral("D\u00fcngung \u2013 \u5c3f\u7d20 \u0646\u0645\u06cc\u200c\u062f\u0627\u0646\u0645 \U0001f33e");
    QTest::newRow("letters of all kinds") << letters << letters;
}

void TestVisibleText::whatDisturbsIsAQuestionMark()
{
    QFETCH(QString, text);
    QTEST(VisibleText::of(text), "shown");
    QCOMPARE(VisibleText::of(text, text), text);
}

void TestVisibleText::jsonStaysTheSameToItsReaders()
{
    const QJsonDocument json(QJsonObject{{QStringLiteral("a"), QStringLiteral("x\n\u202e\u009b\u00fc\\")}});
    const QByteArray written = VisibleText::ofJson(json.toJson());
    QVERIFY2(!QString::fromUtf8(written).contains(QChar(0x202e)), written.constData());
    QVERIFY2(written.contains("\\u202e\\u009b\u00fc"), written.constData());
    QCOMPARE(QJsonDocument::fromJson(written), json);
}

RXMAP_TEST(TestVisibleText, None)
#include "tst_visibletext.moc"
