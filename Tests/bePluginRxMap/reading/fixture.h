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
    for (const char *name : {"Seed", "Fertiliser", "Spray"}) {
        MachineProduct product;
        product.name = QString::fromLatin1(name);
        product.rateCalName = QStringLiteral("product%1").arg(request.products.size() + 1);
        product.defaultRate = request.products.size() + 1.0;
        request.products.append(product);
    }
    return request;
}
