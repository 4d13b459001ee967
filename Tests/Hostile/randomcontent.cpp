#include "randomcontent.h"

#include <cmath>
#include <limits>

std::unique_ptr<HandMadeChain> randomChain(int mappings, std::mt19937 &random)
{
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
    auto chain = std::make_unique<HandMadeChain>();
    bool hasHole[4] = {};
    for (int left = below(20) == 0 ? 200 : below(7); left > 0; --left) {
        const int quarter = below(4);
        const int size = 3 + below(6);
        const double west = quarter % 2 * 8 + below(9 - size);
        const double south = quarter / 2 * 8 + below(9 - size);
        Ring ring = square(west, south, size);
        if (below(5) == 0)
            ring.insert(ring.begin() + 1, {NAN, south});
        if (below(9) == 0)
            ring.resize(static_cast<std::size_t>(below(3)));
        std::vector<float> rates;
        for (int i = 0; i < mappings; ++i)
            rates.push_back(below(9) == 0 ? NAN : static_cast<float>(below(12)));
        OrvikTypes::RX_POLYGON &outer = chain->addOuter(ring, rates);
        outer.area = below(9) == 0 ? 0.0 : double(size) * size;
        if (below(9) == 0)
            outer.rates = nullptr;
        if (size < 5 || hasHole[quarter] || below(2) == 0)
            continue;
        hasHole[quarter] = true;
        chain->addHole(square(west + 1.25, south + 1.25, size - 2.5));
    }
    return chain;
}

Legends randomLegends(int mappings, std::mt19937 &random)
{
    Legends legends;
    for (auto left = mappings - (random() % 8 == 0 ? 1 : 0); left > 0; --left) {
        QList<OrvikTypes::RX_RATECOLOR> legend;
        for (auto classes = random() % 4; classes > 0; --classes) {
            const auto color = static_cast<int>(random() & 0xFFFFFFU);
            const int alpha = random() % 3 == 0 ? 100 : 255;
            legend.append(
                {static_cast<double>(random() % 12), QColor(color >> 16, color >> 8 & 255, color & 255, alpha)});
        }
        legends.append(legend);
    }
    return legends;
}

Mappings randomMappings(int seed)
{
    std::mt19937 random(static_cast<unsigned int>(seed));
    Mappings mappings;
    for (auto left = random() % 25 == 0 ? 200 : random() % 7; left > 0; --left) {
        OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
        mapping.auxNumber = static_cast<int>(random() % 1000);
        mapping.rateCalName = QStringLiteral("system.productGroup.%1").arg(random() % 4);
        mapping.defaultRate = static_cast<double>(random() % 100000) / 64.0;
        mappings.append(mapping);
    }
    return mappings;
}

Settings randomSettings(int seed)
{
    std::mt19937 random(static_cast<unsigned int>(seed));
    Settings settings;
    const auto master = random() % 8;
    for (auto i = random() % 7; i > 0; --i) {
        OrvikTypes::RX_SETTINGS entry;
        entry.name = QStringLiteral("entry %1").arg(random() % 100);
        entry.onLookAheadMs = random() % 9 == 0 ? std::numeric_limits<int>::max() : static_cast<int>(random() % 9000);
        entry.zeroRateShutoff = random() % 2 == 0;
        entry.isMaster = i == master;
        entry.followsMaster = random() % 2 == 0;
        settings.append(entry);
    }
    return settings;
}
