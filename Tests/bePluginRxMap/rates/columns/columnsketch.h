#pragma once

#include "columnpolicy.h"

#include <QStringList>

#include <cmath>
#include <vector>

/// Files of four records, and a machine of three products, for the tests of columns.
namespace ColumnSketch {

const double none = std::nan("");
const std::vector<double> anyRates = {5.0, 5.0, 6.0, 5.0};

SourceColumn column(const QString &name, std::vector<double> values = anyRates, std::vector<int> unreadable = {});
RawPrescription mapOf(std::vector<SourceColumn> columns);
/// Columns of these names, with different rates in each column.
RawPrescription tableOf(const QStringList &names);
/// Record 0 has two parts, record 2 has a hole: 200, 400, 800 and 100 square metres.
std::vector<PlanePolygon> polygons();

MachineProduct product(const char *name, DbGroupProductGroupInfo::RateKind kind);
/// Seed is counted, fertiliser weighed, spray a volume.
QList<MachineProduct> machine();

/// "product:column" for each feed, products from 1.
QStringList feeds(const ColumnPolicy &policy, const RawPrescription &map);
QStringList textsOf(const QList<MapFinding> &findings);

} // namespace ColumnSketch
