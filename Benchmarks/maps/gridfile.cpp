#include "gridfile.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <array>
#include <cmath>
#include <random>
#include <stdexcept>
#include <utility>

namespace {

constexpr int side = 500;
constexpr int zones = 12;

/// The zone whose centre is nearest to the cell, once the cell has been moved by two long waves: neighbouring zones
/// then meet in smooth curves.
class ZoneMap {
public:
    ZoneMap()
    {
        std::mt19937 random(12);
        std::uniform_real_distribution<double> share(0.0, double(side));
        for (Place &centre : centres)
            centre = {share(random), share(random)};
    }

    int at(int row, int column) const
    {
        const double x = column + 25.0 * std::sin(0.03 * row);
        const double y = row + 25.0 * std::cos(0.027 * column);
        int nearest = 0;
        double least = HUGE_VAL;
        for (int i = 0; i < zones; ++i) {
            const Place &centre = centres[size_t(i)];
            const double distance = std::hypot(centre.x - x, centre.y - y);
            if (distance < least) {
                least = distance;
                nearest = i;
            }
        }
        return nearest;
    }

private:
    struct Place {
        double x;
        double y;
    };
    std::array<Place, zones> centres;
};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("the grid cannot be written");
}

} // namespace

void writeGridFile(const QString &folder, GridContent content)
{
    write(folder + QStringLiteral("/TASKDATA.XML"),
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ISO11783_TaskData VersionMajor=\"4\" VersionMinor=\"3\">\n"
          "<TSK A=\"TSK1\" B=\"Grid\" G=\"1\">\n<GRD A=\"48.0\" B=\"11.0\" C=\"1.8E-5\" D=\"2.68E-5\" E=\"500\" "
          "F=\"500\" G=\"GRD00001\" H=\"1000000\" I=\"2\" J=\"1\"/>\n<TZN A=\"1\"><PDV A=\"0006\" B=\"0\"/></TZN>\n"
          "</TSK>\n</ISO11783_TaskData>\n");
    const ZoneMap map;
    QByteArray rates;
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const int step = content == GridContent::Zones ? 1000 * map.at(row, column) : row * side + column;
            const qint32 rate = qToLittleEndian(qint32(10000 + step));
            rates.append(reinterpret_cast<const char *>(&rate), sizeof rate);
        }
    }
    write(folder + QStringLiteral("/GRD00001.BIN"), rates);
}
