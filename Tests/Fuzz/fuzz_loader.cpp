// A byte for the format, then the parts of a prescription: each but the last follows two bytes with its length.
#include "chaincheck.h"
#include "files.h"
#include "fixture.h"
#include "fuzzinput.h"
#include "prescriptionloader.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

/// What is opened, and the files that it consists of.
struct Format {
    const char *target;
    std::vector<const char *> parts;
};

const std::vector<Format> &formats()
{
    static const std::vector<Format> all = {
        {"map.shp", {"map.shx", "map.dbf", "map.prj", "map.shp"}},
        {"map.gpkg", {"map.gpkg"}},
        {"map.geojson", {"map.geojson"}},
        {"map.geojsonl", {"map.geojsonl"}},
        {"map.kml", {"map.kml"}},
        {"map.fgb", {"map.fgb"}},
        {"map.gml", {"map.gml"}},
        {"map.zip", {"map.zip"}},
        {".", {"GRD00001.BIN", "TSK00001.XML", "TASKDATA.XML"}},
    };
    return all;
}

void writeParts(const Format &format, const QTemporaryDir &folder, FuzzInput &input)
{
    for (const char *part : format.parts) {
        const QByteArray content = part == format.parts.back() ? input.rest() : input.bytes(input.number<quint16>());
        require(!writeFile(folder.filePath(QLatin1String(part)), content).isEmpty(), "the part can be written");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argumentCount = 0;
    static const QCoreApplication application(argumentCount, nullptr);
    FuzzInput input(data, size);
    const Format &format = formats()[input.number<quint8>() % formats().size()];
    const QTemporaryDir folder;
    writeParts(format, folder, input);

    const QString target = folder.filePath(QLatin1String(format.target));
    const auto map = PrescriptionLoader(requestFor(target), {}, LoadControl()).load();
    if (map->report.isOk())
        require(holdsTogether(*map), "the map is as its counts say");
    else
        require(isOneLineAbout(map->report.error, target), "one line says why not:", map->report.error);
    return 0;
}
