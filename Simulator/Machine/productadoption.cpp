#include "productadoption.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "suggestedproducts.h"

#include <QFileInfo>

#include <cmath>

namespace {

/// Never fewer products than before. Those that stay the same keep the rate in use if the operator set it: if it is not
/// the one that they were given.
Products keepingRates(Products products, const Products &given, const QList<MachineProduct> &inUse)
{
    for (int i = 0; i < given.size(); ++i) {
        const double rate = inUse.at(i).defaultRate;
        if (products.at(i).isSameAs(given.at(i)) && rate != given.at(i).defaultRate)
            products[i].defaultRate = rate;
    }
    return products;
}

} // namespace

ProductAdoption::ProductAdoption(Machine *givenMachine, QObject *parent)
    : QObject(parent)
    , machine(givenMachine)
    , given(machine->products())
{
    connect(machine->backend(), &PrescriptionBackend::mapsChanged, this, &ProductAdoption::endWithMapLoaded);
    connect(machine->backend(), &PrescriptionBackend::productsMade, this, &ProductAdoption::adopt);
    connect(machine->backend(), &PrescriptionBackend::finished, this, &ProductAdoption::noteGivenRates);
}

void ProductAdoption::adoptFromNextFile()
{
    source = Source::NextFile;
}

void ProductAdoption::endWithMapLoaded()
{
    if (source == Source::NextFile && !machine->backend()->maps().isEmpty())
        source = Source::PreviewedFiles;
}

void ProductAdoption::fillRequest(LoadRequest &request) const
{
    request.products = machine->loadedProducts();
    if (source == Source::NextFile)
        request.makeProducts = maker();
}

void ProductAdoption::fillRequestForPreview(LoadRequest &request) const
{
    request.products = machine->loadedProducts();
    if (source == Source::Machine || (keepsProducts && keepsProducts()))
        return;
    request.makeProducts = maker();
    const QList<LoadReport> maps = machine->backend()->maps();
    for (const LoadReport &map : maps) {
        if (QFileInfo(map.path) == QFileInfo(request.path))
            continue;
        const QList<int> fed = machine->columnsOf(map.group).keys();
        for (const int number : fed)
            request.products[number - 1].inUseAt = map.origin;
    }
}

QList<MachineProduct> ProductAdoption::productsFor(const QList<ColumnProduct> &columns) const
{
    return columns.isEmpty() ? machine->loadedProducts() : maker()(columns);
}

ProductAdoption::ProductMaker ProductAdoption::maker() const
{
    // What is returned runs in the loading thread, which may not ask the machine.
    return [factors = machine->displayFactors(), before = given,
            inUse = machine->loadedProducts()](const QList<ColumnProduct> &columns) {
        return Machine::asLoaded(keepingRates(SuggestedProducts::of(columns, before.size()), before, inUse), factors);
    };
}

void ProductAdoption::adopt(const QList<ColumnProduct> &columns)
{
    if (source != Source::NextFile)
        return;
    const Products suggested = SuggestedProducts::of(columns, given.size());
    machine->setProducts(keepingRates(suggested, given, machine->loadedProducts()));
    given = suggested;
}

void ProductAdoption::noteGivenRates(const LoadReport &report)
{
    for (const RateSource &fed : report.sources) {
        const double rate = fed.placeRates.defaultRate();
        // A request may name products that the machine does not have.
        if (report.isOk() && !std::isnan(rate) && fed.product <= given.size())
            given[fed.product - 1].defaultRate = rate;
    }
}
