#include "drivereport.h"

#include "drivetally.h"
#include "machine.h"
#include "unitsystem.h"

#include <QJsonArray>

namespace {

QJsonObject classObject(const QJsonValue &rate, const DriveTally::RateClass &ground)
{
    return {{QStringLiteral("rate"), rate},
            {QStringLiteral("area"), ground.area},
            {QStringLiteral("planned"), ground.planned},
            {QStringLiteral("applied"), ground.applied}};
}

QJsonObject changesObject(const BorderWatch &borders)
{
    const bool hasChanges = !borders.changes().empty();
    const BorderWatch::Lateness median = borders.median();
    return {{QStringLiteral("count"), int(borders.changes().size())},
            {QStringLiteral("medianMetres"), hasChanges ? QJsonValue(median.metres) : QJsonValue()},
            {QStringLiteral("medianSeconds"), hasChanges ? QJsonValue(median.seconds) : QJsonValue()}};
}

QJsonArray curveArray(const FieldDrive::Curve &curve)
{
    QJsonArray points;
    for (const auto &[lookAhead, seconds] : curve)
        points.append(
            QJsonObject{{QStringLiteral("lookAheadMs"), lookAhead}, {QStringLiteral("medianSeconds"), seconds}});
    return points;
}

QJsonObject productObject(int number, const Product &product, const DriveTally::ProductTally &tally)
{
    double planned = tally.unprescribed.planned;
    double applied = tally.unprescribed.applied;
    QJsonArray classes;
    for (const auto &[rate, ground] : tally.classes) {
        planned += ground.planned;
        applied += ground.applied;
        classes.append(classObject(rate, ground));
    }
    if (tally.unprescribed.area > 0.0)
        classes.append(classObject(QJsonValue(), tally.unprescribed));
    return {{QStringLiteral("number"), number},
            {QStringLiteral("name"), product.name},
            {QStringLiteral("unit"), rateUnit(product.rateKind(), UnitSystem::Metric)},
            {QStringLiteral("plannedTotal"), planned},
            {QStringLiteral("appliedTotal"), applied},
            {QStringLiteral("classes"), classes},
            {QStringLiteral("changes"), changesObject(tally.borders)}};
}

} // namespace

QJsonObject DriveReport::make(const QString &file, const Machine &machine, const DriveTally &tally,
                              const std::vector<FieldDrive::Curve> &curves)
{
    QJsonArray products;
    for (size_t i = 0; i < tally.products().size(); ++i) {
        QJsonObject product = productObject(int(i) + 1, machine.products().at(int(i)), tally.products()[i]);
        if (i < curves.size() && !curves[i].empty()) {
            product.insert(QStringLiteral("bestLookAheadMs"), FieldDrive::best(curves[i]));
            product.insert(QStringLiteral("lookAheadCurve"), curveArray(curves[i]));
        }
        products.append(product);
    }
    return {{QStringLiteral("file"), file},
            {QStringLiteral("seconds"), tally.seconds()},
            {QStringLiteral("distance"), tally.distance()},
            {QStringLiteral("workedArea"), tally.workedArea()},
            {QStringLiteral("products"), products}};
}
