#pragma once

#include <QList>
#include <QString>

/// Parts of the lines that word findings.
namespace FindingText {

/// "record 4", "records 4 and 7", "records 4, 7 and 5 more".
QString records(const QList<int> &records);
/// "200.0 m2".
QString squareMetres(double area);

} // namespace FindingText
