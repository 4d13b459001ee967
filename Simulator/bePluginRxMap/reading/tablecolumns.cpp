#include "tablecolumns.h"

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
