#include "tablecolumns.h"

#include "Backend/backendtext.h"

#include <ogrsf_frmts.h>

std::vector<SourceColumn> TableColumns::read(OGRFeatureDefn &definition, QStringList &names)
{
    std::vector<SourceColumn> columns;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const OGRFieldDefn *field = definition.GetFieldDefn(i);
        SourceColumn column;
        column.name = QString::fromUtf8(field->GetNameRef());
        column.field = i;
        column.isText = field->GetType() == OFTString;
        column.isInteger = field->GetType() == OFTInteger || field->GetType() == OFTInteger64;
        names.append(column.name);
        // GDAL counts true and false as whole numbers; they say where, not how much.
        const bool isNumeric = column.isInteger || field->GetType() == OFTReal;
        if (column.isText || (isNumeric && field->GetSubType() != OFSTBoolean))
            columns.push_back(std::move(column));
    }
    return columns;
}

int TableColumns::find(const QStringList &names, const QString &wanted)
{
    const int exact = names.indexOf(wanted);
    if (exact >= 0)
        return exact;
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
    }
    bool isNumber = false;
    const int number = wanted.startsWith(QLatin1Char('#')) ? wanted.midRef(1).toInt(&isNumber) : 0;
    return isNumber && number >= 1 && number <= names.size() ? number - 1 : -1;
}

QString TableColumns::list(const QStringList &names)
{
    constexpr int mostNamed = 20;
    if (names.size() <= mostNamed)
        return names.join(QStringLiteral(", "));
    return BackendText::tr("%1 and %2 more")
        .arg(names.mid(0, mostNamed).join(QStringLiteral(", ")), QString::number(names.size() - mostNamed));
}
