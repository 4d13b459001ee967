#pragma once

#include <QPointF>

#include <deque>
#include <vector>

/// Finds out for one product how early or late its rate changed at the borders that the implement crossed.
///
/// A change's moment is that of the sharp step from the rate wanted before the border to the one wanted after it that
/// would have applied the same amount between the middles to the neighbouring borders, or within `reach` seconds where
/// these are farther. When the implement goes down while nothing is applied, as when the machine sets off, the missing
/// amount belongs to no border: amounts count from when the wanted rate is reached.
class BorderWatch {
public:
    static constexpr double reach = 10.0;

    /// Positive: late.
    struct Lateness {
        double metres = 0.0;
        double seconds = 0.0;
    };
    struct Change {
        /// Where the implement's middle crossed the border.
        QPointF place;
        /// The rates wanted on either side.
        double before = 0.0;
        double after = 0.0;
        Lateness late;
    };

    /// The implement went down; `time` (seconds) and `way` (metres) go on over the whole drive. `target`: the rate that
    /// is wanted on the ground there.
    void begin(double time, double way, double target);
    /// Adds a step that ended then, in which `mean` was applied.
    void step(double time, double way, double mean);
    /// Within the step that is added next the rate wanted on the ground changed, at that place.
    void border(double time, double way, const QPointF &place, double target);
    /// The implement went up.
    void end();

    const std::vector<Change> &changes() const { return found; }
    /// The middle one of each; zero when there are no changes.
    Lateness median() const;

private:
    /// A moment, and what had been applied since the implement went down.
    struct Sample {
        double time;
        double way;
        double overTime;
        double overWay;
    };
    struct Border {
        double time;
        double way;
        QPointF place;
        double before;
        double after;
    };

    Sample at(double time) const;
    void settle(double until);

    std::vector<Change> found;
    std::deque<Sample> samples;
    std::deque<Border> borders;
    double formerBorder = 0.0;
    double target = 0.0;
    bool isFilling = false; ///< Nothing was applied at first, and the wanted rate is not reached yet.
};
