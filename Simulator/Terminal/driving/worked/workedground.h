#pragma once

#include "activemap.h"
#include "pose.h"

#include <QColor>
#include <QObject>

#include <limits>
#include <vector>

class Simulation;

/// The ground that the implement has passed over, as strips with the rate that was applied to each. A strip goes on as
/// long as the machine drives straight on and no product's rate comes into another class of its legend.
///
/// Strips are numbered as they come. When there are maxStrips, a new one takes the place of the oldest: with the rates
/// of 16 products that is 6 MiB, and no less than 1.8 hours of driving if every step makes a strip of its own.
class WorkedGround : public QObject {
    Q_OBJECT

public:
    static constexpr int maxStrips = 65536;

    /// Corners in metres of the local plane: left and right at the strip's beginning, right and left at its end.
    struct Strip {
        struct Corner {
            float x;
            float y;
        };
        Corner corners[4];
    };

    /// `simulation` is not owned and outlives this.
    explicit WorkedGround(Simulation *simulation, QObject *parent = nullptr);

    /// The number of the oldest strip kept, and the number that the next one will have.
    qint64 oldest() const { return next - qint64(strips.size()); }
    qint64 end() const { return next; }
    /// A strip's place among maxStrips.
    static int slot(qint64 number) { return int(number % maxStrips); }
    const Strip &strip(qint64 number) const { return strips[size_t(slot(number))]; }
    /// Mean rate of a product (by number from 1) over a strip, base units.
    double rate(qint64 number, int product) const;
    /// The colour of the active product's applied rate in its legend; invalid without one, and where the strip lies on
    /// another plane than the product's map.
    QColor color(qint64 number) const;
    /// Number of the first strip that looks different since this was asked last; end() when none does.
    qint64 takeChanges();

private:
    void take();
    void forget();
    void findLegends();
    /// Finds out which plane is shown.
    void findPlane();
    /// The legend's colours of the rates that are applied, by product.
    std::vector<QColor> colorsNow() const;
    QColor appliedColor(int product, double rate) const;
    void begin();
    void extend();

    Simulation *simulation;
    std::vector<Strip> strips;
    /// For each slot, by product.
    std::vector<float> rates;
    /// For each slot, the place in `planes`.
    std::vector<int> planeOf;
    /// Origins of the planes that were shown, degrees of longitude and latitude.
    QVector<QPointF> planes;
    /// Place in `planes` of the plane shown; -1 before any map was shown.
    int plane = -1;
    qint64 next = 0;
    qint64 firstChanged = 0;
    struct Legend {
        ActiveMap map;
        bool hasSingleRates = false;
    };
    /// By product.
    std::vector<Legend> legends;

    // The newest strip's.
    bool isOpen = false;
    Pose endPose;
    double width = 0.0;
    double length = 0.0;
    std::vector<QColor> colors;
};
