#pragma once

#include "fixture.h"
#include "layerwriter.h"
#include "prescriptionloader.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

/// Base of the tests of the loader: loading, and layers that a test writes itself.
class LoaderTest : public TestBase {
    Q_OBJECT

protected:
    static std::unique_ptr<LoadedMap> load(const LoadRequest &request, const std::vector<LocalPlane> &planes = {});
    static std::unique_ptr<LoadedMap> load(const QString &path, const QStringList &columns = {});
    /// A request for the terminal's usual products: seeds, fertiliser by weight, spray by volume.
    static LoadRequest usualRequest(const QString &path);
    /// NaN when there is no rate.
    static double rateAt(const LoadedMap &map, double x, double y, int mapping = 0);
    /// Outer rings less holes, square metres.
    static double areaOf(const LoadedMap &map);
    /// Writes the layer into the test's folder, replacing the one before; returns its path, empty when GDAL fails.
    QString write(const LayerSketch &sketch, const char *name);

    QTemporaryDir folder;
};
