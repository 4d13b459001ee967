#pragma once

#include <limits>
#include <optional>

/// Why a channel commands what it does.
enum class CommandSource {
    Prescription,
    Default,     ///< No rate is prescribed there.
    ZeroShutoff, ///< Zero is prescribed, and the zero-rate shut-off is on.
    MinRate,     ///< Less than the channel can do is prescribed, and it stays on.
    NoPosition,  ///< For longer than two seconds.
    Stopped,
    NotControlled, ///< No prescription drives the product.
};

/// As scripts and records name it.
const char *sourceName(CommandSource source);

/// What a channel is asked to do, rates in base units.
struct RateCommand {
    /// Not a number where none is prescribed.
    double prescribed = std::numeric_limits<double>::quiet_NaN();
    double commanded = 0.0;
    /// A channel that is on does not go below its least rate.
    bool isOn = false;
    CommandSource source = CommandSource::NotControlled;
};

/// What a channel's command depends on, rates in base units.
struct RateSituation {
    bool isControlled = false;
    bool isStopped = true;
    bool hasPosition = true;
    std::optional<double> prescribed;
    double defaultRate = 0.0;
    bool zeroRateShutoff = false;
    /// The least rate that the channel can do.
    double minRate = 0.0;

    RateCommand command() const;
};
