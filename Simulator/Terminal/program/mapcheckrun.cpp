#include "mapcheckrun.h"

#include "Backend/prescriptionbackend.h"
#include "commandline.h"
#include "consoleline.h"
#include "findingkind.h"
#include "machine.h"
#include "productadoption.h"
#include "productfile.h"
#include "ratesourcetext.h"

#include "Framework/databroker.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject jsonOf(const MapFinding &finding)
{
    QJsonArray records;
    for (const int record : finding.records)
        records.append(record);
    const QJsonValue area = finding.area ? QJsonValue(*finding.area) : QJsonValue();
    const QJsonValue place = finding.place ? QJsonArray{finding.place->x(), finding.place->y()} : QJsonValue();
    return {{QStringLiteral("kind"), FindingKind::name(finding.kind)},
            {QStringLiteral("text"), finding.text},
            {QStringLiteral("records"), records},
            {QStringLiteral("area"), area},
            {QStringLiteral("at"), place}};
}

QJsonObject jsonOf(const RateSource &source)
{
    return {{QStringLiteral("column"), source.column},
            {QStringLiteral("unit"), source.unit},
            {QStringLiteral("product"), source.product},
            {QStringLiteral("sure"), source.isSure},
            {QStringLiteral("told"), unitTextOf(source)}};
}

QJsonObject jsonOf(const LoadReport &report)
{
    QJsonArray findings;
    for (const MapFinding &finding : report.findings)
        findings.append(jsonOf(finding));
    QJsonObject file{{QStringLiteral("file"), report.path},
                     {QStringLiteral("ok"), report.isOk()},
                     {QStringLiteral("error"), report.isOk() ? QJsonValue() : QJsonValue(report.error)},
                     {QStringLiteral("findings"), findings}};
    if (!report.isOk())
        return file;
    QJsonArray sources;
    for (const RateSource &source : report.sources)
        sources.append(jsonOf(source));
    file.insert(QStringLiteral("sources"), sources);
    file.insert(QStringLiteral("origin"),
                QJsonObject{{QStringLiteral("lon"), report.origin.x()}, {QStringLiteral("lat"), report.origin.y()}});
    return file;
}

QString lineOf(const LoadReport &report, const MapFinding &finding)
{
    return QStringLiteral("%1: %2: %3").arg(report.path, FindingKind::name(finding.kind), finding.text);
}

void print(const LoadReport &report, const QList<MachineProduct> &products)
{
    if (!report.isOk()) {
        writeErrorLine(report.error);
        for (const MapFinding &finding : report.findings)
            writeOutputLine(lineOf(report, finding));
        return;
    }
    for (const RateSource &source : report.sources)
        writeOutputLine(QStringLiteral("%1: product %2 (%3): %4 (%5)")
                            .arg(report.path, QString::number(source.product), products.at(source.product - 1).name,
                                 source.column, unitTextOf(source)));
    writeOutputLine(
        QStringLiteral("%1: origin of the plane: %2, %3 (longitude, latitude)")
            .arg(report.path, QString::number(report.origin.x(), 'f', 7), QString::number(report.origin.y(), 'f', 7)));
    QStringList remarks = report.warnings;
    for (const MapFinding &finding : report.findings) {
        writeOutputLine(lineOf(report, finding));
        remarks.removeOne(QStringLiteral("%1: %2").arg(report.path, finding.text));
    }
    for (const QString &remark : remarks)
        writeErrorLine(remark);
}

} // namespace

int runMapCheck(const CommandLine &line)
{
    MachineSetup setup = ProductFile::standardMachine();
    if (!line.productFile.isEmpty()) {
        const Result<MachineSetup> read = ProductFile::read(line.productFile);
        if (!read.isOk()) {
            writeErrorLine(QStringLiteral("terminal-simulator: ") + read.error);
            return 1;
        }
        setup = read.value;
    }
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    Machine machine(&broker, &backend, setup.products, line.units);
    ProductAdoption adoption(&machine);
    if (setup.takesProductsFromFile)
        adoption.adoptFromNextFile();
    QJsonArray files;
    int status = 0;
    for (const QString &path : line.prescriptions) {
        LoadRequest request{path, line.columns, line.sourceUnits, {}, line.layer, line.task};
        adoption.fillRequest(request);
        const LoadReport report = PrescriptionBackend::checkFile(request, setup.size.width);
        if (!report.isOk())
            status = 1;
        else if (!report.findings.isEmpty() && status == 0)
            status = 2;
        if (line.json)
            files.append(jsonOf(report));
        else
            print(report, adoption.productsFor(report.columnProducts));
    }
    if (line.json)
        writeOutputJson(QJsonDocument(QJsonObject{{QStringLiteral("files"), files}}).toJson());
    return status;
}
