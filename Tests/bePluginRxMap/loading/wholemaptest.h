#pragma once

#include "fixture.h"
#include "testbase.h"

#include <QStringList>
#include <QTest>

#include <initializer_list>

/// Base of the tests that take whole maps as their rows.
class WholeMapTest : public TestBase {
protected:
    /// Adds rows of "path" and "columns": the fixtures of those names and the sample; if the real data are at hand,
    /// also its maps of those names and its parcels.
    static void addMapRows(std::initializer_list<const char *> fixtures, std::initializer_list<const char *> realMaps)
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("columns");
        for (const char *name : fixtures)
            QTest::newRow(name) << fixture(name) << QStringList();
        QTest::newRow("sample") << sourcePath("Simulator/Resources/sample/sample-field.shp") << QStringList();
        if (realData(QString()).isEmpty())
            return;
        for (const char *name : realMaps)
            QTest::newRow(name) << realData(QLatin1String(name)) << QStringList();
        QTest::newRow("parcels") << realData(QStringLiteral("parcels-holes/parcels.shp"))
                                 << QStringList(QStringLiteral("AREA_HA"));
    }
};
