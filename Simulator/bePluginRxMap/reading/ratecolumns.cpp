#include "ratecolumns.h"

#include "columnname.h"

bool RateColumns::isWorthReading(const SourceColumn &column)
{
    const ColumnName name(column.name);
    return !name.namesOther() && (name.namesRate() || (!column.isText && !column.isInteger));
}

int RateColumns::find(const QStringList &names, const QString &wanted)
{
    const int exact = names.indexOf(wanted);
    if (exact >= 0)
        return exact;
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}
