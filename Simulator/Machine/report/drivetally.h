#pragma once

#include "borderwatch.h"
#include "errorhistogram.h"
#include "ratecommand.h"

#include <QObject>
#include <QPointF>

#include <map>
#include <optional>
#include <vector>

class Simulation;

/// Adds up what a drive did against what was prescribed. Areas are square metres, amounts a product's base unit times
/// hectares.
class DriveTally : public QObject {
    Q_OBJECT

public:
    /// Ground of one prescribed rate.
    struct RateClass {
        double area = 0.0;
        double planned = 0.0;
        double applied = 0.0;

        RateClass &operator+=(const RateClass &other);
    };
    struct ProductTally {
        /// By prescribed rate. What was worked where no rate is prescribed stands apart: nothing is planned there.
        std::map<double, RateClass> classes;
        RateClass unprescribed;
        /// Applied minus prescribed, where a rate is prescribed.
        ErrorHistogram errors;
        BorderWatch borders;

        /// Adds ground of one prescribed rate, not a number for none, to which `applied` was applied.
        void add(double prescribed, double applied, double squareMetres);
    };

    /// What is counted beside the lateness of changes.
    enum class Ground { Counted, LeftOut };

    /// `simulation` is not owned and outlives the tally. It counts from now on.
    explicit DriveTally(Simulation *simulation, Ground ground = Ground::Counted, QObject *parent = nullptr);

    /// Stops counting.
    void end();

    double seconds() const { return lastTime - firstTime; }
    double distance() const { return way; }
    double workedArea() const { return area; }
    const std::vector<ProductTally> &products() const { return tallies; }

private:
    void count();
    void beginSwath(const QPointF &place, double wayThere);
    void countGround(double length);
    void countBorders(const QPointF &from, const QPointF &to, double length);
    std::vector<double> targetsAt(const QPointF &place) const;

    Simulation *simulation;
    Ground ground;
    std::vector<ProductTally> tallies;
    /// The rates wanted on the ground at the end of the last step, by product.
    std::vector<double> targets;
    bool wasWorking = false;
    double firstTime;
    double lastTime;
    double way = 0.0;
    double area = 0.0;
};
