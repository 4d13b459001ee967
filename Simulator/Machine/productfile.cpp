#include "productfile.h"

#include "regularfile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <cmath>

namespace {

constexpr int shortNameLength = 5;
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

QString plainKey(const QString &key)
{
    QString plain;
    for (const QChar c : key) {
        if (c.isLetterOrNumber())
            plain.append(c.toLower());
    }
    return plain;
}

/// A value as it stands in the file; of a long one, the beginning.
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
        return QStringLiteral("\"%1\" is %2; %3 is wanted").arg(key, written(value), wanted);
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
        if (!(rate >= 0.0))
            return complaint(QStringLiteral("a number from 0"));
        product.defaultRate = rate;
    } else if (plain == QLatin1String("undervra") || plain == QLatin1String("iscarrier")) {
        if (!value.isBool())
            return complaint(QStringLiteral("true or false"));
        (plain == QLatin1String("undervra") ? product.underVra : product.isCarrier) = value.toBool();
    } else {
        return QStringLiteral("unknown key \"%1\"").arg(key);
    }
    return {};
}

Result<Product> readProduct(const QJsonValue &value, int number)
{
    if (!value.isObject())
        return Result<Product>::failure(
            QStringLiteral("is %1; an object with \"name\" and \"kind\" is wanted").arg(written(value)));
    Product product;
    product.bin = number;
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
        product.shortName = product.name.left(shortNameLength).trimmed();
    return {product, {}};
}

Product standardProduct(int bin, const QString &name, const QString &shortName, Product::Kind kind, double defaultRate)
{
    Product product;
    product.name = name;
    product.shortName = shortName;
    product.kind = kind;
    product.bin = bin;
    product.defaultRate = defaultRate;
    return product;
}

} // namespace

Result<Products> ProductFile::read(const QString &path)
{
    const QString problem = regularFileProblem(path);
    if (!problem.isEmpty())
        return Result<Products>::failure(QStringLiteral("%1: %2").arg(path, problem));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result<Products>::failure(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return parse(file.readAll(), path);
}

Result<Products> ProductFile::parse(const QByteArray &json, const QString &name)
{
    const auto failure = [&name](const QString &reason) {
        return Result<Products>::failure(QStringLiteral("%1: %2").arg(name, reason));
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

    Products products;
    for (int i = 0; i < entries.size(); ++i) {
        const Result<Product> product = readProduct(entries.at(i), i + 1);
        if (!product.isOk())
            return failure(QStringLiteral("product %1: %2").arg(i + 1).arg(product.error));
        products.append(product.value);
    }
    return {products, {}};
}

Products ProductFile::standard()
{
    return {
        standardProduct(1, QStringLiteral("Seed"), QStringLiteral("Seed"), Product::Kind::Count, 80.0),
        standardProduct(2, QStringLiteral("Fertiliser"), QStringLiteral("Fert"), Product::Kind::Weight, 150.0),
        standardProduct(3, QStringLiteral("Herbicide"), QStringLiteral("Herb"), Product::Kind::Volume, 2.0),
    };
}
