#pragma once

#include "pose.h"
#include "ratecommand.h"

#include "Framework/rxsettings.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <vector>

class DbGroupRxMap;
class Machine;
class RxMapLoader;

/// What the controller knows of the vehicle.
struct VehicleFix {
    /// The implement's middle.
    Pose pose;
    /// Metres per second; below 0 backwards.
    double speed = 0.0;
    bool hasPosition = true;
    /// Seconds; never runs backwards.
    double time = 0.0;
};

/// The machine's rate controller: asks the prescription for the rate where each product's implement will be after the
/// product's look-ahead time, straight on at the machine's speed, and turns the answer into a command.
///
/// Look-ahead and default rates are taken from the broker and the loaders at every update. The zero-rate shut-off is
/// that of the first update after a map came, and is read again when "reInit" of "quillSpan" is set. The master's has
/// no effect here, as the settings hold each product's own shut-off.
class RateController : public QObject {
    Q_OBJECT

public:
    /// Seconds for which the last position stands.
    static constexpr double positionHolds = 2.0;

    /// `machine` is not owned and outlives the controller.
    explicit RateController(Machine *machine, QObject *parent = nullptr);

    void update(const VehicleFix &fix);
    /// The command of a product, by number from 1.
    const RateCommand &command(int number) const { return channels.at(size_t(number - 1)).command; }
    /// Where the product's rate was asked for last.
    QPointF askedPoint(int number) const { return channels.at(size_t(number - 1)).asked; }
    /// The product's look-ahead time now, milliseconds.
    int lookAheadMs(int number) const { return settings().value(number - 1).onLookAheadMs; }
    /// What would be commanded for a place if the implement were there and moved, by product.
    std::vector<RateCommand> commandsAt(const QPointF &place) const;

private:
    struct Channel {
        RateCommand command;
        QPointF asked;
        /// What feeds the product; null when nothing does.
        QPointer<DbGroupRxMap> map;
        int mapping = -1;
        /// Holds the product's default rate.
        QPointer<RxMapLoader> loader;
        bool zeroRateShutoff = false;
    };
    /// An answer that stands until the maps change.
    struct Answer {
        const DbGroupRxMap *map;
        QPointF place;
        QList<float> rates;
    };

    /// Adds a channel for each product that has none yet.
    void addChannels();
    void findMaps();
    void takeFlags();
    QList<OrvikTypes::RX_SETTINGS> settings() const;
    RateSituation situation(int index) const;
    /// What the channel's map prescribes; asks the map only where neither list knows the answer, and adds it to
    /// `known`.
    static std::optional<double> prescribedRate(const Channel &channel, const QPointF &place,
                                                std::vector<Answer> &known, const std::vector<Answer> &former);

    Machine *machine;
    std::vector<Channel> channels;
    /// The group that the dialog writes the settings to.
    QPointer<DbGroupRxMap> settingsGroup;
    /// The answers of the last update: a machine that stands does not ask again.
    std::vector<Answer> answers;
    /// Of the one before.
    std::vector<Answer> formerAnswers;
    VehicleFix lastFix;
    double lastPositionTime = 0.0;
};
