#pragma once

#include <QByteArray>
#include <QCoreApplication>

class Machine;
class QXmlStreamWriter;
struct DrivenField;

/// The result of a drive as one page of HTML that needs no other file: texts in the program's language, numbers in the
/// operator's units. The same drive makes the same page.
class ReportPage {
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    static QByteArray make(const DrivenField &field);

private:
    static void writeHead(QXmlStreamWriter &page);
    static void writeSummary(QXmlStreamWriter &page, const DrivenField &field);
    /// Those of the products that a prescription drives.
    static void writeDefaultRates(QXmlStreamWriter &page, const Machine &machine);
};
