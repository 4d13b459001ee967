#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

class Terminal;

/// What the terminal shows at a field point (metres of the plane that is shown), a line for each product of the
/// machine: "product 2 (Fertiliser): Rx Rate: 190.00 (FERT_KG_HA, kg/ha)", followed by ", shown in lb/ac" where that is
/// not the file's unit. A product whose map lies on another plane is asked for the same place on the earth. `name`: how
/// the point is called where no rate is prescribed. Afterwards the active product is what it was, and its bubble stands
/// at the point.
QStringList describePoint(Terminal &terminal, const QPointF &field, const QString &name);
