#include "ratecontroller.h"

#include "Backend/prescriptionbackend.h"
#include "activemap.h"
#include "dbgroupquillspan.h"
#include "machine.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <algorithm>
#include <cmath>
#include <utility>

RateController::RateController(Machine *givenMachine, QObject *parent)
    : QObject(parent)
    , machine(givenMachine)
{
    addChannels();
    connect(machine, &Machine::productsChanged, this, &RateController::addChannels);
    connect(machine, &Machine::mapsChanged, this, &RateController::findMaps);
    connect(machine->quillSpan(), &DbGroupQuillSpan::reInitSet, this, [this](bool isRequested) {
        if (isRequested)
            takeFlags();
    });
    findMaps();
}

void RateController::addChannels()
{
    for (int i = int(channels.size()); i < machine->products().size(); ++i) {
        channels.emplace_back();
        channels.back().loader = machine->backend()->loader(i);
    }
}

void RateController::findMaps()
{
    const DataBroker &broker = *machine->dataBroker();
    const auto mapGroup = [&broker](const QString &name) {
        return qobject_cast<DbGroupRxMap *>(broker.getGroup(name, false));
    };
    answers.clear();
    formerAnswers.clear();
    for (size_t i = 0; i < channels.size(); ++i) {
        const int number = int(i) + 1;
        const ActiveMap map = machine->products().at(int(i)).underVra
            ? ActiveMap::find(broker, Machine::productGroupName(number))
            : ActiveMap();
        channels[i].map = map.isValid() ? mapGroup(map.groupName) : nullptr;
        channels[i].mapping = map.mapping;
    }
    const bool hadSettings = !settingsGroup.isNull() && !settingsGroup->isRemoved();
    settingsGroup = mapGroup(broker.findGroup(QStringLiteral("rxMap.*"), true, false).value(0));
    if (!hadSettings)
        takeFlags();
}

QList<OrvikTypes::RX_SETTINGS> RateController::settings() const
{
    return settingsGroup ? settingsGroup->getSettings() : QList<OrvikTypes::RX_SETTINGS>();
}

void RateController::takeFlags()
{
    const QList<OrvikTypes::RX_SETTINGS> all = settings();
    for (size_t i = 0; i < channels.size(); ++i)
        channels[i].zeroRateShutoff = all.value(int(i)).zeroRateShutoff;
}

std::optional<double> RateController::prescribedRate(const Channel &channel, const QPointF &place,
                                                     std::vector<Answer> &known, const std::vector<Answer> &former)
{
    const auto isAnswer = [&channel, &place](const Answer &answer) {
        return answer.map == channel.map && answer.place.x() == place.x() && answer.place.y() == place.y();
    };
    auto answer = std::find_if(known.begin(), known.end(), isAnswer);
    if (answer == known.end()) {
        const auto same = std::find_if(former.begin(), former.end(), isAnswer);
        if (same == former.end())
            channel.map->setQueryRatesAtXYZ(OrvikTypes::XYZ(place.x(), place.y(), 0.0));
        known.push_back(same != former.end() ? *same : Answer{channel.map, place, channel.map->getRatesAtXYZ()});
        answer = known.end() - 1;
    }
    // "ratesAtXYZValid" speaks for the active product only; another product without a rate has NaN as its entry.
    const bool hasRate = channel.mapping < answer->rates.size() && !std::isnan(answer->rates.at(channel.mapping));
    return hasRate ? std::optional<double>(double(answer->rates.at(channel.mapping))) : std::nullopt;
}

RateSituation RateController::situation(int index) const
{
    const Channel &channel = channels[size_t(index)];
    RateSituation now;
    now.isControlled = !channel.map.isNull();
    now.defaultRate = channel.loader ? channel.loader->defaultRate : 0.0;
    now.zeroRateShutoff = channel.zeroRateShutoff;
    now.minRate = machine->products().at(index).actuator.minRate;
    return now;
}

void RateController::update(const VehicleFix &fix)
{
    if (fix.hasPosition) {
        lastFix = fix;
        lastPositionTime = fix.time;
    }
    // Swapped, so that both keep their memory from step to step.
    std::swap(answers, formerAnswers);
    answers.clear();
    const QPointF forward = lastFix.pose.forward();
    const QList<OrvikTypes::RX_SETTINGS> all = settings();
    for (size_t i = 0; i < channels.size(); ++i) {
        Channel &channel = channels[i];
        RateSituation now = situation(int(i));
        now.isStopped = fix.speed == 0.0;
        // Times are sums of steps, hence the tolerance.
        now.hasPosition = fix.time - lastPositionTime <= positionHolds + 1e-6;
        if (now.isControlled && now.hasPosition) {
            const double ahead = lastFix.speed * double(all.value(int(i)).onLookAheadMs) / 1000.0;
            channel.asked = lastFix.pose.place + ahead * forward;
            now.prescribed = prescribedRate(channel, channel.asked, answers, formerAnswers);
        }
        channel.command = now.command();
    }
}

std::vector<RateCommand> RateController::commandsAt(const QPointF &place) const
{
    std::vector<RateCommand> commands;
    std::vector<Answer> known;
    for (size_t i = 0; i < channels.size(); ++i) {
        RateSituation there = situation(int(i));
        there.isStopped = false;
        if (there.isControlled)
            there.prescribed = prescribedRate(channels[i], place, known, {});
        commands.push_back(there.command());
    }
    return commands;
}
