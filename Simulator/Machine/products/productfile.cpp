#include "productfile.h"

#include "regularfile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <cmath>
#include <limits>

namespace {

constexpr int maxBins = 99;

const QMap<QString, Product::Kind> &kinds()
{
    static const QMap<QString, Product::Kind> table = {
        {QStringLiteral("count"), Product::Kind::Count},       {QStringLiteral("injection"), Product::Kind::Injection},
        {QStringLiteral("pressure"), Product::Kind::Pressure}, {QStringLiteral("ratio"), Product::Kind::Ratio},
        {QStringLiteral("unknown"), Product::Kind::Unknown},   {QStringLiteral("volume"), Product::Kind::Volume},
        {QStringLiteral("weight"), Product::Kind::Weight},
    };
    return table;
}

constexpr double longestTime = 60.0; // Seconds.
/// Base units: no machine puts out more, and single precision and the dialog can still hold it.
constexpr double greatestRate = 1.0e6;

const QMap<QString, double ActuatorSettings::*> &actuatorFields()
{
    static const QMap<QString, double ActuatorSettings::*> table = {
        {QStringLiteral("deadtime"), &ActuatorSettings::deadTime},
        {QStringLiteral("timeconstant"), &ActuatorSettings::timeConstant},
        {QStringLiteral("minrate"), &ActuatorSettings::minRate},
        {QStringLiteral("maxrate"), &ActuatorSettings::maxRate},
    };
    return table;
}

QString plainKey(const QString &key)
{
    QString plain;
    for (const QChar c : key) {
        if (c.isLetterOrNumber())
            plain.append(c.toLower());
    }
    return plain;
}

/// A value or a key as it stands in the file; of a long one, the beginning.
QString written(const QJsonValue &value)
{
    constexpr int longest = 30;
    QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    text = text.mid(1, text.size() - 2);
    const QString line = QString::fromUtf8(text);
    return line.size() > longest ? line.left(longest - 2) + QStringLiteral("...") : line;
}

/// Reads one value into `product`; the reason when it cannot.
QString readValue(const QString &key, const QJsonValue &value, Product &product)
{
    const QString plain = plainKey(key);
    const auto complaint = [&key, &value](const QString &wanted) {
        return QStringLiteral("%1 is %2; %3 is wanted").arg(written(key), written(value), wanted);
    };
    if (plain == QLatin1String("name") || plain == QLatin1String("shortname")) {
        const QString text = value.toString().trimmed();
        if (text.isEmpty())
            return complaint(QStringLiteral("a text"));
        (plain == QLatin1String("name") ? product.name : product.shortName) = text;
    } else if (plain == QLatin1String("kind")) {
        const auto kind = kinds().constFind(value.toString().toLower());
        if (kind == kinds().constEnd())
            return complaint(QStringLiteral("one of ") + QStringList(kinds().keys()).join(QStringLiteral(", ")));
        product.kind = *kind;
    } else if (plain == QLatin1String("bin")) {
        const double bin = value.toDouble(-1.0);
        if (bin < 1.0 || bin > maxBins || bin != std::floor(bin))
            return complaint(QStringLiteral("a whole number from 1 to 99"));
        product.bin = int(bin);
    } else if (plain == QLatin1String("defaultrate")) {
        const double rate = value.toDouble(-1.0);
        if (!(rate >= 0.0 && rate <= greatestRate))
            return complaint(QStringLiteral("a number from 0 to 1000000"));
        product.defaultRate = rate;
    } else if (plain == QLatin1String("undervra") || plain == QLatin1String("iscarrier")) {
        if (!value.isBool())
            return complaint(QStringLiteral("true or false"));
        (plain == QLatin1String("undervra") ? product.underVra : product.isCarrier) = value.toBool();
    } else {
        const auto field = actuatorFields().constFind(plain);
        if (field == actuatorFields().constEnd())
            return QStringLiteral("unknown key %1").arg(written(key));
        const double number = value.toDouble(-1.0);
        const bool isRate = plain.endsWith(QLatin1String("rate"));
        if (!(number >= 0.0 && (!isRate || number <= greatestRate)))
            return complaint(isRate ? QStringLiteral("a number from 0 to 1000000") : QStringLiteral("a number from 0"));
        product.actuator.*field.value() = number;
    }
    return {};
}

/// Fills in what the file leaves open with what is usual for the kind; the reason when the rates contradict each other.
QString completeActuator(Product &product)
{
    const ActuatorSettings usual = Product::usualActuator(product.kind);
    for (double ActuatorSettings::*field : actuatorFields()) {
        if (std::isnan(product.actuator.*field))
            product.actuator.*field = usual.*field;
    }
    const ActuatorSettings &set = product.actuator;
    if (set.deadTime > longestTime || set.timeConstant > longestTime)
        return QStringLiteral("a dead time or time constant is longer than %1 s").arg(longestTime);
    return set.minRate <= set.maxRate
        ? QString()
        : QStringLiteral("its minimum rate of %1 is above its maximum of %2").arg(set.minRate).arg(set.maxRate);
}

struct SizeField {
    double MachineSize::*field;
    double least;
    double most;
};

const QMap<QString, SizeField> &sizeFields()
{
    static const QMap<QString, SizeField> table = {
        {QStringLiteral("width"), {&MachineSize::width, 0.5, 200.0}},
        {QStringLiteral("antennaoffset"), {&MachineSize::antennaOffset, -20.0, 20.0}},
        {QStringLiteral("minradius"), {&MachineSize::minRadius, 0.1, 200.0}},
        {QStringLiteral("acceleration"), {&MachineSize::acceleration, 0.05, 20.0}},
    };
    return table;
}

Result<MachineSize> readSize(const QJsonObject &object)
{
    MachineSize size;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QString plain = plainKey(entry.key());
        if (plain == QLatin1String("products"))
            continue;
        const auto field = sizeFields().constFind(plain);
        if (field == sizeFields().constEnd())
            return Result<MachineSize>::failure(QStringLiteral("unknown key %1").arg(written(entry.key())));
        const double number = entry.value().toDouble(std::nan(""));
        if (!(number >= field->least && number <= field->most))
            return Result<MachineSize>::failure(QStringLiteral("%1 is %2; a number from %3 to %4 is wanted")
                                                    .arg(written(entry.key()), written(entry.value()),
                                                         QString::number(field->least), QString::number(field->most)));
        size.*field->field = number;
    }
    return {size, {}};
}

Result<Product> readProduct(const QJsonValue &value, int number)
{
    if (!value.isObject())
        return Result<Product>::failure(
            QStringLiteral("is %1; an object with \"name\" and \"kind\" is wanted").arg(written(value)));
    constexpr double open = std::numeric_limits<double>::quiet_NaN();
    Product product;
    product.bin = number;
    product.actuator = {open, open, open, open};
    bool hasKind = false;
    const QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QString error = readValue(entry.key(), entry.value(), product);
        if (!error.isEmpty())
            return Result<Product>::failure(error);
        hasKind = hasKind || plainKey(entry.key()) == QLatin1String("kind");
    }
    if (product.name.isEmpty())
        return Result<Product>::failure(QStringLiteral("has no \"name\""));
    if (!hasKind)
        return Result<Product>::failure(QStringLiteral("has no \"kind\""));
    if (product.shortName.isEmpty())
        product.shortName = ProductFile::shortNameOf(product.name);
    const QString problem = completeActuator(product);
    return problem.isEmpty() ? Result<Product>{product, {}} : Result<Product>::failure(problem);
}

Product standardProduct(int bin, const QString &name, const QString &shortName, Product::Kind kind, double defaultRate)
{
    Product product;
    product.name = name;
    product.shortName = shortName;
    product.kind = kind;
    product.bin = bin;
    product.defaultRate = defaultRate;
    product.actuator = Product::usualActuator(kind);
    return product;
}

} // namespace

Result<MachineSetup> ProductFile::read(const QString &path)
{
    const QString problem = regularFileProblem(path);
    if (!problem.isEmpty())
        return Result<MachineSetup>::failure(QStringLiteral("%1: %2").arg(path, problem));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result<MachineSetup>::failure(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return parse(file.readAll(), path);
}

Result<MachineSetup> ProductFile::parse(const QByteArray &json, const QString &name)
{
    const auto failure = [&name](const QString &reason) {
        return Result<MachineSetup>::failure(QStringLiteral("%1: %2").arg(name, reason));
    };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return failure(
            QStringLiteral("is no JSON list of products (at byte %1: %2)").arg(error.offset).arg(error.errorString()));
    const QJsonValue list =
        document.isArray() ? QJsonValue(document.array()) : document.object().value(QStringLiteral("products"));
    if (!list.isArray())
        return failure(QStringLiteral("holds no list of products"));
    const QJsonArray entries = list.toArray();
    if (entries.isEmpty() || entries.size() > maxProducts)
        return failure(
            QStringLiteral("describes %1 products; a machine has 1 to %2").arg(entries.size()).arg(maxProducts));

    const Result<MachineSize> size = readSize(document.object());
    if (!size.isOk())
        return failure(size.error);
    Products products;
    for (int i = 0; i < entries.size(); ++i) {
        const Result<Product> product = readProduct(entries.at(i), i + 1);
        if (!product.isOk())
            return failure(QStringLiteral("product %1: %2").arg(i + 1).arg(product.error));
        products.append(product.value);
    }
    return {{size.value, products, false}, {}};
}

QString ProductFile::shortNameOf(const QString &name)
{
    return name.left(shortNameLength).trimmed();
}

Products ProductFile::standard()
{
    return {
        standardProduct(1, tr("Seed"), tr("Seed", "short"), Product::Kind::Count, 80.0),
        standardProduct(2, tr("Fertiliser"), tr("Fert", "short"), Product::Kind::Weight, 150.0),
        standardProduct(3, tr("Herbicide"), tr("Herb", "short"), Product::Kind::Volume, 2.0),
    };
}
