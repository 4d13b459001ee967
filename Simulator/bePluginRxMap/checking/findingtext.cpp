#include "findingtext.h"

#include "Backend/backendtext.h"

#include <QStringList>

#include <algorithm>

QString FindingText::squareMetres(double area)
{
    return QStringLiteral("%1 m2").arg(BackendText::number(area, 'f', area < 10.0 ? 2 : 1));
}

QString FindingText::records(const QList<int> &records)
{
    constexpr int mostTold = 6;
    if (records.size() == 1)
        return BackendText::tr("record %1").arg(records.first());
    const bool isCut = records.size() > mostTold;
    QStringList numbers;
    for (int i = 0; i < std::min(records.size() - (isCut ? 0 : 1), mostTold); ++i)
        numbers.append(QString::number(records.at(i)));
    const QString last =
        isCut ? BackendText::tr("%1 more").arg(records.size() - mostTold) : QString::number(records.last());
    return BackendText::tr("records %1 and %2").arg(numbers.join(QStringLiteral(", ")), last);
}
