#include "ratehistory.h"

#include "machine.h"
#include "ratecontroller.h"
#include "simulation.h"
#include "vehicle.h"

#include <utility>

RateHistory::RateHistory(Simulation *givenSimulation, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , products(givenSimulation->machine()->products())
    , all(size_t(products.size()))
{
    connect(simulation, &Simulation::stepped, this, &RateHistory::take);
    connect(simulation->machine(), &Machine::productsChanged, this, &RateHistory::takeProducts);
}

void RateHistory::takeProducts()
{
    const Products before = std::exchange(products, simulation->machine()->products());
    all.resize(size_t(products.size()));
    for (int i = 0; i < before.size(); ++i) {
        if (!products.at(i).isSameAs(before.at(i)))
            all[size_t(i)].clear();
    }
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
