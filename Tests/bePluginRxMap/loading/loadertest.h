#pragma once

#include "fixture.h"
#include "layerwriter.h"
#include "prescriptionloader.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

/// Base of the tests of the loader: loads, and layers that a test writes itself.
class LoaderTest : public TestBase {
    Q_OBJECT

protected:
    static std::unique_ptr<LoadedMap> load(const LoadRequest &request, const std::vector<LocalPlane> &planes = {});
    static std::unique_ptr<LoadedMap> load(const QString &path, const QStringList &columns = {});
    /// A request for the terminal's usual products: seeds, fertiliser by weight, spray by volume.
    static LoadRequest usualRequest(const QString &path);
    /// Not a number where there is none.
    static double rateAt(const LoadedMap &map, double x, double y, int mapping = 0);
    /// Outer rings less holes, square metres.
    static double areaOf(const LoadedMap &map);
    /// Writes the layer into the test's folder, in place of the one before; its path, empty when GDAL cannot.
    QString write(const LayerSketch &sketch, const char *name);

    QTemporaryDir folder;
};
