// Writes by name. Each write is a byte for the group, one for the property (or a name that does not exist), one for the
// kind of value, and the value.
#include "fuzzinput.h"
#include "samplegroup.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"

#include <QMetaProperty>
#include <QVariant>

namespace {

QVariant readValue(FuzzInput &input, int depth = 0)
{
    const quint8 kind = input.number<quint8>() % 12;
    switch (depth > 3 ? 0 : kind) {
    case 0:
        return input.number<qint32>();
    case 1:
        return input.number<quint32>();
    case 2:
        return input.number<qint64>();
    case 3:
        return input.number<quint64>();
    case 4:
        return input.number<double>();
    case 5:
        return input.number<float>();
    case 6:
        return (input.number<quint8>() & 1) != 0;
    case 7:
        return QString::fromUtf8(input.bytes(input.number<quint8>()));
    case 8:
        return input.bytes(input.number<quint8>());
    case 9: {
        const QVariant first = readValue(input, depth + 1);
        return QVariantList{first, readValue(input, depth + 1)};
    }
    case 10:
        return QVariantMap{{QStringLiteral("name"), readValue(input, depth + 1)}};
    default:
        return {};
    }
}

/// The name of one of the group's properties, or a name read from the input.
QByteArray readProperty(FuzzInput &input, const QMetaObject &group)
{
    const quint8 choice = input.number<quint8>();
    return choice == 0xff ? input.bytes(input.number<quint8>())
                          : QByteArray(group.property(choice % group.propertyCount()).name());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    DataBroker broker;
    const QVector<DataBrokerGroup *> groups{new SampleGroup(QStringLiteral("sample")),
                                            new DbGroupAAM(QStringLiteral("aam")),
                                            new DbGroupJob(QStringLiteral("job")),
                                            new DbGroupProductGroupInfo(QStringLiteral("info")),
                                            new DbGroupQmlUnitsConverter(QStringLiteral("units")),
                                            new DbGroupSingleProductNode(QStringLiteral("node"))};
    for (DataBrokerGroup *group : groups)
        broker.publishGroup(group);
    while (!input.isAtEnd()) {
        const DataBrokerGroup *const group = groups.at(input.number<quint8>() % groups.size());
        const QByteArray name = group->name().toLatin1();
        const QByteArray property = readProperty(input, *group->metaObject());
        const QVariant asked = readValue(input);
        QVariant before;
        QVariant after;
        const int found = broker.getProperty(name.constData(), property.constData(), before);
        const int code = broker.setProperty(name.constData(), property.constData(), asked);
        require(broker.getProperty(name.constData(), property.constData(), after) == found, "it stays as readable");
        require(code == DataBrokerGroup::Success || code == DataBrokerGroup::ErrUnknownProperty
                    || code == DataBrokerGroup::ErrWrongType || code == DataBrokerGroup::ErrInvalidToken,
                "the answer is a code:", QString::number(code));
        require(after.userType() == before.userType(), "a property keeps its type:", QString::fromLatin1(property));
        if (asked.userType() == before.userType() && code == DataBrokerGroup::Success
            && before.userType() == QMetaType::QString)
            require(after == asked, "a text is taken whole:", QString::fromLatin1(property));
    }
    return 0;
}
