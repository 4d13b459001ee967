#include "ratecommand.h"

const char *sourceName(CommandSource source)
{
    switch (source) {
    case CommandSource::Prescription:
        return "prescription";
    case CommandSource::Default:
        return "default";
    case CommandSource::ZeroShutoff:
        return "zeroShutoff";
    case CommandSource::MinRate:
        return "minRate";
    case CommandSource::NoPosition:
        return "noPosition";
    case CommandSource::Stopped:
        return "stopped";
    case CommandSource::NotControlled:
        break;
    }
    return "notControlled";
}

RateCommand RateSituation::command() const
{
    RateCommand command;
    if (!isControlled)
        return command;
    command.prescribed = prescribed.value_or(command.prescribed);
    if (isStopped) {
        command.source = CommandSource::Stopped;
        return command;
    }
    if (!hasPosition || !prescribed) {
        command.source = hasPosition ? CommandSource::Default : CommandSource::NoPosition;
        command.commanded = defaultRate;
        command.isOn = defaultRate > 0.0;
        return command;
    }
    const bool isZero = *prescribed <= 0.0;
    if (isZero && zeroRateShutoff) {
        command.source = CommandSource::ZeroShutoff;
        return command;
    }
    command.source = isZero || *prescribed < minRate ? CommandSource::MinRate : CommandSource::Prescription;
    command.commanded = isZero ? 0.0 : *prescribed;
    command.isOn = true;
    return command;
}
