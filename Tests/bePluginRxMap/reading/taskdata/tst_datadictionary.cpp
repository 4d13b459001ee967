#include "taskdata/datadictionary.h"
#include "testbase.h"

/// The table, compared with the facts that it is made from.
class DataDictionaryTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatTheDictionarySays();
    void isSortedAndKnowsNoOtherNumbers();
    void saysInAWordWhatIsMeasured();
};

void DataDictionaryTest::holdsWhatTheDictionarySays()
{
    RXMAP_NEED_REAL_DATA();
    QFile file(realData(QStringLiteral("ddi-rates.tsv")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    file.readLine();
    size_t count = 0;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(QLatin1Char('\t'));
        const DataDictionary::Entry *entry = DataDictionary::find(cells.at(0).toInt());
        QVERIFY2(entry != nullptr, qPrintable(cells.at(0)));
        QCOMPARE(QString::fromUtf8(entry->name), cells.at(1).simplified());
        QCOMPARE(QString::fromUtf8(entry->unit), cells.at(2));
        QCOMPARE(entry->resolution, cells.at(3).toDouble());
        ++count;
    }
    QCOMPARE(DataDictionary::entries().size(), count);
}

void DataDictionaryTest::isSortedAndKnowsNoOtherNumbers()
{
    const std::vector<DataDictionary::Entry> &entries = DataDictionary::entries();
    for (size_t i = 1; i < entries.size(); ++i)
        QVERIFY2(entries[i - 1].number < entries[i].number, entries[i].name);
    QVERIFY(DataDictionary::find(0) == nullptr);
    QVERIFY(DataDictionary::find(60000) == nullptr);
}

void DataDictionaryTest::saysInAWordWhatIsMeasured()
{
    QStringList words;
    for (const DataDictionary::Entry &entry : DataDictionary::entries()) {
        if (!words.contains(entry.measured()))
            words.append(entry.measured());
    }
    QCOMPARE(words.join(QLatin1Char(' ')),
             QStringLiteral("Volume Mass Seeds Spacing Width Share N NH4 P K Dry matter Energy"));
}

RXMAP_TEST(DataDictionaryTest, None)
#include "tst_datadictionary.moc"
