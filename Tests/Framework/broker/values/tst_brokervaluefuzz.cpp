#include "samplegroup.h"
#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"

#include <QColor>
#include <QMetaProperty>
#include <QUrl>

#include <limits>
#include <random>

namespace {

using namespace OrvikTypes;

class ValueSource {
public:
    QVariant next()
    {
        switch (random() % 20) {
        case 0:
            return {};
        case 1:
            return int(random());
        case 2:
            return int(random() % 5) - 2;
        case 3:
            return uint(random());
        case 4:
            return qlonglong((quint64(random()) << 32) | random());
        case 5:
            return qulonglong((quint64(random()) << 32) | random());
        case 6:
            return real();
        case 7:
            return float(real());
        case 8:
            return (random() & 1) != 0;
        case 9:
            return text();
        case 10:
            return text().toUtf8() + char(random());
        case 11:
            return QVariantList{next(), next()};
        case 12:
            return QVariantMap{{text(), next()}};
        case 13:
            return QVariant::fromValue<void *>(reinterpret_cast<void *>(quintptr(random())));
        case 14:
            return QVariant::fromValue(nullptr);
        case 15:
            return QVariant::fromValue(XYZ(real(), real(), real()));
        case 16:
            return QVariant::fromValue(taggedSettings(int(random() % 4), int(random())));
        case 17:
            return list();
        case 18:
            return record();
        default:
            return QVariant::fromValue(QColor(Qt::red));
        }
    }

private:
    quint32 random() { return static_cast<quint32>(engine()); }

    double real()
    {
        const double edges[] = {
            qQNaN(),      qInf(),       -qInf(),       -0.0, 1e300,
            4294967295.0, 4294967296.0, -2147483648.0, 0.5,  std::numeric_limits<double>::denorm_min()};
        const quint32 choice = random() % 16;
        return choice < 10 ? edges[choice] : (double(random()) - 2147483648.0) / (1 + random() % 8);
    }

    QString text()
    {
        const char *const samples[] = {"", "0", "1", "-1", "3.5", "1e12", "nan", "true", "12,5", "4294967295", " 7"};
        const quint32 choice = random() % 16;
        if (choice < 11)
            return QString::fromLatin1(samples[choice]);
        QString result;
        for (quint32 i = random() % 12; i > 0; --i)
            result.append(QChar(ushort(random())));
        return result;
    }

    QVariant list()
    {
        switch (random() % 5) {
        case 0:
            return QVariant::fromValue(QList<float>{float(real()), float(real())});
        case 1:
            return QVariant::fromValue(QList<QList<RX_RATECOLOR>>{{{real(), Qt::blue}}, {}});
        case 2:
            return QVariant::fromValue(QList<RX_RATECOLOR>{{real(), Qt::blue}});
        case 3:
            return QVariant::fromValue(QList<int>{int(random())});
        default:
            return QVariant::fromValue(QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>{RX_DBFCOLUMN_TO_RATECAL_MAPPING()});
        }
    }

    QVariant record()
    {
        switch (random() % 4) {
        case 0:
            return QVariant::fromValue(SPN_OperationalSetStruct((random() & 1) != 0));
        case 1:
            return QVariant::fromValue(SPN_SwitchByteCalSettingsStruct((random() & 1) != 0));
        case 2:
            return QUrl(QStringLiteral("file:///") + QString::number(random()));
        default:
            return QVariant::fromValue(RX_SETTINGS());
        }
    }

    std::mt19937 engine{20240607};
};

template <typename T> bool sameRecord(const QVariant &a, const QVariant &b)
{
    return a.value<T>() == b.value<T>();
}

bool sameNumber(double a, double b)
{
    return a == b || (qIsNaN(a) && qIsNaN(b));
}

bool sameFloats(const QList<float> &a, const QList<float> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](float x, float y) { return sameNumber(x, y); });
}

bool sameColors(const QList<QList<RX_RATECOLOR>> &a, const QList<QList<RX_RATECOLOR>> &b)
{
    const auto sameClass = [](const RX_RATECOLOR &x, const RX_RATECOLOR &y) {
        return sameNumber(x.rate, y.rate) && x.color == y.color;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [sameClass](const QList<RX_RATECOLOR> &x, const QList<RX_RATECOLOR> &y) {
                          return std::equal(x.begin(), x.end(), y.begin(), y.end(), sameClass);
                      });
}

/// Whether two values of one property are equal; a NaN equals itself.
bool sameValue(const QVariant &a, const QVariant &b)
{
    const int type = a.userType();
    if (type != b.userType())
        return false;
    if (type == QMetaType::Double)
        return sameNumber(a.toDouble(), b.toDouble());
    if (type == qMetaTypeId<XYZ>()) {
        const XYZ p = a.value<XYZ>();
        const XYZ q = b.value<XYZ>();
        return sameNumber(p.x, q.x) && sameNumber(p.y, q.y) && sameNumber(p.z, q.z);
    }
    if (type == qMetaTypeId<QList<RX_SETTINGS>>())
        return sameRecord<QList<RX_SETTINGS>>(a, b);
    if (type == qMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>())
        return sameRecord<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(a, b);
    if (type == qMetaTypeId<QList<QList<RX_RATECOLOR>>>())
        return sameColors(a.value<QList<QList<RX_RATECOLOR>>>(), b.value<QList<QList<RX_RATECOLOR>>>());
    if (type == qMetaTypeId<QList<float>>())
        return sameFloats(a.value<QList<float>>(), b.value<QList<float>>());
    if (type == qMetaTypeId<SPN_OperationalSetStruct>())
        return a.value<SPN_OperationalSetStruct>().isRatioRate() == b.value<SPN_OperationalSetStruct>().isRatioRate();
    if (type == qMetaTypeId<SPN_SwitchByteCalSettingsStruct>()) {
        return a.value<SPN_SwitchByteCalSettingsStruct>().isInjection()
            == b.value<SPN_SwitchByteCalSettingsStruct>().isInjection();
    }
    return a == b;
}

/// Whether `stored` is exactly what was asked for.
bool isWhatWasAskedFor(const QVariant &asked, const QVariant &stored)
{
    if (asked.userType() == stored.userType())
        return sameValue(asked, stored);
    if (stored.userType() == QMetaType::Double || asked.userType() == QMetaType::Double
        || asked.userType() == QMetaType::Float)
        return sameNumber(asked.toDouble(), stored.toDouble());
    if (stored.userType() == QMetaType::VoidStar)
        return stored.value<void *>() == nullptr;
    return asked.toString() == stored.toString() || asked.toDouble() == stored.toDouble();
}

QString described(const QVariant &value)
{
    QString text;
    QDebug(&text) << value;
    return QLatin1Char(' ') + text;
}

} // namespace

/// Random values written to every property of every group, by name: each is accepted whole or refused whole.
class TestBrokerValueFuzz : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyValueIsTakenWholeOrRefusedWhole_data();
    void everyValueIsTakenWholeOrRefusedWhole();
};

void TestBrokerValueFuzz::everyValueIsTakenWholeOrRefusedWhole_data()
{
    QTest::addColumn<QByteArray>("group");
    for (const char *name : {"sample", "aam", "job", "info", "units", "node"})
        QTest::newRow(name) << QByteArray(name);
}

void TestBrokerValueFuzz::everyValueIsTakenWholeOrRefusedWhole()
{
    QFETCH(QByteArray, group);
    DataBroker broker;
    broker.publishGroup(new SampleGroup(QStringLiteral("sample")));
    broker.publishGroup(new DbGroupAAM(QStringLiteral("aam")));
    broker.publishGroup(new DbGroupJob(QStringLiteral("job")));
    broker.publishGroup(new DbGroupProductGroupInfo(QStringLiteral("info")));
    broker.publishGroup(new DbGroupQmlUnitsConverter(QStringLiteral("units")));
    broker.publishGroup(new DbGroupSingleProductNode(QStringLiteral("node")));
    const QMetaObject *const meta = broker.getGroup(QString::fromLatin1(group), true)->metaObject();
    ValueSource source;
    int taken = 0;
    int refused = 0;
    for (int round = 0; round < 2000; ++round) {
        for (int index = DataBrokerGroup::staticMetaObject.propertyCount(); index < meta->propertyCount(); ++index) {
            const char *const property = meta->property(index).name();
            const QVariant asked = source.next();
            QVariant before;
            QVariant after;
            QCOMPARE(broker.getProperty(group.constData(), property, before), 0);
            const int code = broker.setProperty(group.constData(), property, asked);
            QCOMPARE(broker.getProperty(group.constData(), property, after), 0);
            QCOMPARE(after.userType(), before.userType());
            if (code == DataBrokerGroup::Success) {
                ++taken;
                QVERIFY2(isWhatWasAskedFor(asked, after),
                         qPrintable(QString::fromLatin1(property) + described(asked) + described(after)));
            } else {
                ++refused;
                QCOMPARE(code, int(DataBrokerGroup::ErrWrongType));
                QVERIFY2(sameValue(before, after), property);
            }
        }
    }
    QVERIFY(taken > 0);
    QVERIFY(refused > 0);
    QVERIFY(messages().debugLines().isEmpty());
}

RXMAP_TEST(TestBrokerValueFuzz, Core)
#include "tst_brokervaluefuzz.moc"
