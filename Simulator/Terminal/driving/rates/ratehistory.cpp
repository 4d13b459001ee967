#include "ratehistory.h"

#include "machine.h"
#include "ratecontroller.h"
#include "simulation.h"
#include "vehicle.h"

RateHistory::RateHistory(Simulation *givenSimulation, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , all(size_t(givenSimulation->machine()->products().size()))
{
    connect(simulation, &Simulation::stepped, this, &RateHistory::take);
    connect(simulation->machine(), &Machine::productsChanged, this,
            [this] { all.resize(size_t(this->simulation->machine()->products().size())); });
}

void RateHistory::setKept(bool isKept)
{
    isOn = isKept;
    for (auto &samples : all)
        samples.clear();
}

void RateHistory::take()
{
    if (!isOn)
        return;
    const std::vector<RateCommand> here = simulation->controller()->commandsAt(simulation->vehicle()->position());
    const double now = simulation->seconds();
    for (size_t i = 0; i < all.size(); ++i) {
        all[i].push_back({now, here[i].prescribed, simulation->rates(int(i) + 1).applied});
        while (all[i].front().time < now - span)
            all[i].pop_front();
    }
}
