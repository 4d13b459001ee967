#include "openoptions.h"

#include "productfile.h"

#include <QJSValue>
#include <QJSValueIterator>

namespace {

const QString columnsOption = QStringLiteral("columns");
const QString unitsOption = QStringLiteral("units");
const QString layerOption = QStringLiteral("layer");
const QString taskOption = QStringLiteral("task");

/// The names that a script's list gives for the products; null and undefined leave a product out, as an empty text
/// does.
Result<QStringList> namesIn(const QJSValue &list, const QString &option)
{
    const quint32 count = list.property(QStringLiteral("length")).toUInt();
    if (count > quint32(ProductFile::maxProducts))
        return Result<QStringList>::failure(
            QStringLiteral("\"%1\" has more than %2 entries").arg(option, QString::number(ProductFile::maxProducts)));
    QStringList names;
    for (quint32 i = 0; i < count; ++i) {
        const QJSValue entry = list.property(i);
        const bool isLeftOut = entry.isNull() || entry.isUndefined();
        if (!entry.isString() && !isLeftOut)
            return Result<QStringList>::failure(
                QStringLiteral("entry %1 of \"%2\" is no text").arg(QString::number(i + 1), option));
        names.append(isLeftOut ? QString() : entry.toString());
    }
    return {names, {}};
}

/// The list that one option of open() gives; empty without it.
Result<QStringList> listIn(const QJSValue &options, const QString &option)
{
    const QJSValue value = options.property(option);
    if (value.isUndefined())
        return {};
    return value.isArray() ? namesIn(value, option)
                           : Result<QStringList>::failure(QStringLiteral("\"%1\" is no list").arg(option));
}

/// A text that one option of open() gives; an empty one without it.
Result<QString> textIn(const QJSValue &options, const QString &option)
{
    const QJSValue value = options.property(option);
    if (value.isUndefined())
        return {};
    return value.isString() ? Result<QString>{value.toString(), {}}
                            : Result<QString>::failure(QStringLiteral("\"%1\" is no text").arg(option));
}

/// What is wrong with the options of open() as a whole.
QString problem(const QJSValue &options)
{
    if (!options.isObject() || options.isArray())
        return QStringLiteral("the options of open() are no object");
    const QStringList known{columnsOption, unitsOption, layerOption, taskOption};
    QJSValueIterator option(options);
    while (option.next()) {
        if (!known.contains(option.name()))
            return QStringLiteral("\"%1\" is no option of open(); it knows %2")
                .arg(option.name(), known.join(QStringLiteral(", ")));
    }
    return {};
}

} // namespace

Result<OpenRequest> OpenOptions::read(const QString &path, const QJSValue &options)
{
    if (path.isEmpty())
        return Result<OpenRequest>::failure(QStringLiteral("open() needs the name of a file"));
    if (options.isUndefined())
        return {{{path}}, {}};
    const QString reason = problem(options);
    if (!reason.isEmpty())
        return Result<OpenRequest>::failure(reason);
    const Result<QStringList> columns = listIn(options, columnsOption);
    const Result<QStringList> units = listIn(options, unitsOption);
    const Result<QString> layer = textIn(options, layerOption);
    const Result<QString> task = textIn(options, taskOption);
    for (const QString &error : {columns.error, units.error, layer.error, task.error}) {
        if (!error.isEmpty())
            return Result<OpenRequest>::failure(error);
    }
    return {{{path}, columns.value, units.value, layer.value, task.value}, {}};
}
