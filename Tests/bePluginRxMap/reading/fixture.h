#pragma once

#include "Backend/loadrequest.h"
#include "paths.h"

#include <QString>

/// The small prescriptions of Tests/fixtures.
inline QString fixture(const char *name)
{
    return sourcePath("Tests/fixtures/%1").arg(QLatin1String(name));
}

/// A request for a machine of three products.
inline LoadRequest requestFor(const QString &path, const QStringList &columns = {})
{
    LoadRequest request;
    request.path = path;
    request.columns = columns;
    request.rateCalNames =
        QStringList({QStringLiteral("product1"), QStringLiteral("product2"), QStringLiteral("product3")});
    request.productNames = QStringList({QStringLiteral("Seed"), QStringLiteral("Fertiliser"), QStringLiteral("Spray")});
    request.defaultRates = {1.0, 2.0, 3.0};
    return request;
}
