#include "choicememory.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>
#include <QVariantMap>

namespace {

const QString key = QStringLiteral("choices");
const QString pathKey = QStringLiteral("path");

/// One name for one file, however it is reached.
QString nameOf(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

QVariantMap toMap(const ColumnChoice &choice)
{
    return {{QStringLiteral("column"), choice.column},
            {QStringLiteral("isProductChosen"), choice.isProductChosen},
            {QStringLiteral("product"), choice.product},
            {QStringLiteral("productName"), choice.productName},
            {QStringLiteral("unit"), choice.unit}};
}

ColumnChoice columnFrom(const QVariantMap &map)
{
    return {map.value(QStringLiteral("column")).toString(), map.value(QStringLiteral("isProductChosen")).toBool(),
            map.value(QStringLiteral("product")).toInt(), map.value(QStringLiteral("productName")).toString(),
            map.value(QStringLiteral("unit")).toString()};
}

QVariantMap toMap(const QString &path, const FileChoices &choices)
{
    QVariantList columns;
    for (const ColumnChoice &choice : choices.columns)
        columns.append(toMap(choice));
    return {{pathKey, path},
            {QStringLiteral("layer"), choices.layer},
            {QStringLiteral("task"), choices.task},
            {QStringLiteral("columnNames"), choices.columnNames},
            {QStringLiteral("columns"), columns}};
}

FileChoices choicesFrom(const QVariantMap &map)
{
    FileChoices choices;
    choices.layer = map.value(QStringLiteral("layer")).toString();
    choices.task = map.value(QStringLiteral("task")).toString();
    choices.columnNames = map.value(QStringLiteral("columnNames")).toStringList();
    const QVariantList columns = map.value(QStringLiteral("columns")).toList();
    for (const QVariant &column : columns)
        choices.columns.append(columnFrom(column.toMap()));
    return choices;
}

/// Kept as text: Qt would unpack a damaged list of its own without checking how large it is.
QVariantList filesIn(const QSettings &settings)
{
    return QJsonDocument::fromJson(settings.value(key).toString().toUtf8()).array().toVariantList();
}

} // namespace

ChoiceMemory::ChoiceMemory(QSettings &appSettings)
    : settings(appSettings)
{
}

std::optional<FileChoices> ChoiceMemory::of(const QString &path) const
{
    const QString name = nameOf(path);
    const QVariantList files = filesIn(settings);
    for (const QVariant &file : files) {
        if (file.toMap().value(pathKey).toString() == name)
            return choicesFrom(file.toMap());
    }
    return {};
}

void ChoiceMemory::keep(const QString &path, const FileChoices &choices)
{
    // Another terminal may have kept something meanwhile.
    settings.sync();
    const QString name = nameOf(path);
    QVariantList files{toMap(name, choices)};
    const QVariantList before = filesIn(settings);
    for (const QVariant &file : before) {
        if (files.size() < mostFiles && file.toMap().value(pathKey).toString() != name)
            files.append(file);
    }
    const QJsonDocument text(QJsonArray::fromVariantList(files));
    settings.setValue(key, QString::fromUtf8(text.toJson(QJsonDocument::Compact)));
    settings.sync();
}
