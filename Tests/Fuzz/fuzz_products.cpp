// A file of products.
#include "fuzzinput.h"
#include "productfile.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString name = QStringLiteral("machine.json");
    const auto machine = ProductFile::parse(FuzzInput(data, size).rest(), name);
    if (!machine.isOk()) {
        require(isOneLineAbout(machine.error, name), "one line says why not:", machine.error);
        return 0;
    }
    const Products &products = machine.value.products;
    require(!products.isEmpty() && products.size() <= ProductFile::maxProducts, "there are products, and not too many");
    for (const Product &product : products) {
        require(!product.name.isEmpty() && product.bin >= 1, "a product has a name and a bin");
        const ActuatorSettings &actuator = product.actuator;
        for (const double number :
             {product.defaultRate, actuator.deadTime, actuator.timeConstant, actuator.minRate, actuator.maxRate})
            require(std::isfinite(number) && number >= 0.0, "a number is one, from 0");
        require(actuator.minRate <= actuator.maxRate, "the rates are in order");
    }
    return 0;
}
