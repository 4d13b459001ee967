#include "datadictionary.h"

#include "Backend/backendtext.h"

#include <algorithm>

const std::vector<DataDictionary::Entry> &DataDictionary::entries()
{
    static const std::vector<Entry> table = {
        {1, "Setpoint Volume Per Area Application Rate", "mm³/m²", 0.01},
        {2, "Actual Volume Per Area Application Rate", "mm³/m²", 0.01},
        {3, "Default Volume Per Area Application Rate", "mm³/m²", 0.01},
        {4, "Minimum Volume Per Area Application Rate", "mm³/m²", 0.01},
        {5, "Maximum Volume Per Area Application Rate", "mm³/m²", 0.01},
        {6, "Setpoint Mass Per Area Application Rate", "mg/m²", 1.0},
        {7, "Actual Mass Per Area Application Rate", "mg/m²", 1.0},
        {8, "Default Mass Per Area Application Rate", "mg/m²", 1.0},
        {9, "Minimum Mass Per Area Application Rate", "mg/m²", 1.0},
        {10, "Maximum Mass Per Area Application Rate", "mg/m²", 1.0},
        {11, "Setpoint Count Per Area Application Rate", "/m²", 0.001},
        {12, "Actual Count Per Area Application Rate", "/m²", 0.001},
        {13, "Default Count Per Area Application Rate", "/m²", 0.001},
        {14, "Minimum Count Per Area Application Rate", "/m²", 0.001},
        {15, "Maximum Count Per Area Application Rate", "/m²", 0.001},
        {16, "Setpoint Spacing Application Rate", "mm", 1.0},
        {17, "Actual Spacing Application Rate", "mm", 1.0},
        {18, "Default Spacing Application Rate", "mm", 1.0},
        {19, "Minimum Spacing Application Rate", "mm", 1.0},
        {20, "Maximum Spacing Application Rate", "mm", 1.0},
        {21, "Setpoint Volume Per Volume Application Rate", "mm³/m³", 1.0},
        {22, "Actual Volume Per Volume Application Rate", "mm³/m³", 1.0},
        {23, "Default Volume Per Volume Application Rate", "mm³/m³", 1.0},
        {24, "Minimum Volume Per Volume Application Rate", "mm³/m³", 1.0},
        {25, "Maximum Volume Per Volume Application Rate", "mm³/m³", 1.0},
        {26, "Setpoint Mass Per Mass Application Rate", "mg/kg", 1.0},
        {27, "Actual Mass Per Mass Application Rate", "mg/kg", 1.0},
        {28, "Default Mass Per Mass Application Rate", "mg/kg", 1.0},
        {29, "Minimum Mass Per Mass Application Rate", "mg/kg", 1.0},
        {30, "MaximumMass Per Mass Application Rate", "mg/kg", 1.0},
        {31, "Setpoint Volume Per Mass Application Rate", "mm³/kg", 1.0},
        {32, "Actual Volume Per Mass Application Rate", "mm³/kg", 1.0},
        {33, "Default Volume Per Mass Application Rate", "mm³/kg", 1.0},
        {34, "Minimum Volume Per Mass Application Rate", "mm³/kg", 1.0},
        {35, "Maximum Volume Per Mass Application Rate", "mm³/kg", 1.0},
        {36, "Setpoint Volume Per Time Application Rate", "mm³/s", 1.0},
        {37, "Actual Volume Per Time Application Rate", "mm³/s", 1.0},
        {38, "Default Volume Per Time Application Rate", "mm³/s", 1.0},
        {39, "Minimum Volume Per Time Application Rate", "mm³/s", 1.0},
        {40, "Maximum Volume Per Time Application Rate", "mm³/s", 1.0},
        {41, "Setpoint Mass Per Time Application Rate", "mg/s", 1.0},
        {42, "Actual Mass Per Time Application Rate", "mg/s", 1.0},
        {43, "Default Mass Per Time Application Rate", "mg/s", 1.0},
        {44, "Minimum Mass Per Time Application Rate", "mg/s", 1.0},
        {45, "Maximum Mass Per Time Application Rate", "mg/s", 1.0},
        {46, "Setpoint Count Per Time Application Rate", "/s", 0.001},
        {47, "Actual Count Per Time Application Rate", "/s", 0.001},
        {48, "Default Count Per Time Application Rate", "/s", 0.001},
        {49, "Minimum Count Per Time Application Rate", "/s", 0.001},
        {50, "Maximum Count Per Time Application Rate", "/s", 0.001},
        {66, "Setpoint Working Width", "mm", 1.0},
        {67, "Actual Working Width", "mm", 1.0},
        {68, "Default Working Width", "mm", 1.0},
        {69, "Minimum Working Width", "mm", 1.0},
        {70, "Maximum Working Width", "mm", 1.0},
        {140, "Setpoint Percentage Application Rate", "ppm", 1.0},
        {308, "Actual Percentage Application Rate", "ppm", 1.0},
        {309, "Minimum Percentage Application Rate", "ppm", 1.0},
        {310, "Maximum Percentage Application Rate", "ppm", 1.0},
        {432, "Setpoint Application Rate of Nitrogen [N2]", "mg/m²", 1.0},
        {433, "Actual Application Rate of Nitrogen [N2]", "mg/m²", 1.0},
        {434, "Minimum Application Rate of Nitrogen [N2]", "mg/m²", 1.0},
        {435, "Maximum Application Rate of Nitrogen [N2]", "mg/m²", 1.0},
        {436, "Setpoint Application Rate of Ammonium", "mg/m²", 1.0},
        {437, "Actual Application Rate of Ammonium", "mg/m²", 1.0},
        {438, "Minimum Application Rate of Ammonium", "mg/m²", 1.0},
        {439, "Maximum Application Rate of Ammonium", "mg/m²", 1.0},
        {440, "Setpoint Application Rate of Phosphor", "mg/m²", 1.0},
        {441, "Actual Application Rate of Phosphor", "mg/m²", 1.0},
        {442, "Minimum Application Rate of Phosphor", "mg/m²", 1.0},
        {443, "Maximum Application Rate of Phosphor", "mg/m²", 1.0},
        {444, "Setpoint Application Rate of Potassium", "mg/m²", 1.0},
        {445, "Actual Application Rate of Potassium", "mg/m²", 1.0},
        {446, "Minimum Application Rate of Potassium", "mg/m²", 1.0},
        {447, "Maximum Application Rate of Potassium", "mg/m²", 1.0},
        {448, "Setpoint Application Rate of Dry Matter", "ppm", 1.0},
        {449, "Actual Application Rate of Dry Matter", "ppm", 1.0},
        {450, "Minimum Application Rate of Dry Matter", "ppm", 1.0},
        {451, "Maximum Application Rate of Dry Matter", "ppm", 1.0},
        {574, "Setpoint Electrical Energy per Area Application Rate", "kWh/m²", 1e-07},
        {575, "Actual Electrical Energy per Area Application Rate", "kWh/m²", 1e-07},
        {576, "Maximum Electrical Energy per Area Application Rate", "kWh/m²", 1e-07},
        {577, "Minimum Electrical Energy per Area Application Rate", "kWh/m²", 1e-07},
        {588, "Setpoint Volume Per Area Application Rate", "ml/m²", 0.1},
        {589, "Actual Volume Per Area Application Rate", "ml/m²", 0.1},
        {590, "Minimum Volume Per Area Application Rate", "ml/m²", 0.1},
        {591, "Maximum Volume Per Area Application Rate", "ml/m²", 0.1},
        {592, "Default Volume Per Area Application Rate", "ml/m²", 0.1},
    };
    return table;
}

const DataDictionary::Entry *DataDictionary::find(int number)
{
    const auto found = std::lower_bound(entries().begin(), entries().end(), number,
                                        [](const Entry &entry, int wanted) { return entry.number < wanted; });
    return found == entries().end() || found->number != number ? nullptr : &*found;
}

QString DataDictionary::Entry::measured() const
{
    const struct {
        const char *word;
        QString text;
    } known[] = {
        {"Nitrogen", QStringLiteral("N")},
        {"Ammonium", QStringLiteral("NH4")},
        {"Phosphor", QStringLiteral("P")},
        {"Potassium", QStringLiteral("K")},
        {"Dry Matter", BackendText::tr("Dry matter")},
        {"Energy", BackendText::tr("Energy")},
        {"Spacing", BackendText::tr("Spacing")},
        {"Width", BackendText::tr("Width")},
        {"Percentage", BackendText::tr("Share")},
        {"Count", BackendText::tr("Seeds", "what is sown")},
        // Before mass: a volume may be that of a mass.
        {"Volume", BackendText::tr("Volume")},
        {"Mass", BackendText::tr("Mass")},
    };
    const auto named = std::find_if(std::begin(known), std::end(known), [this](const auto &any) {
        return QLatin1String(name).contains(QLatin1String(any.word));
    });
    return named == std::end(known) ? QString() : named->text;
}

QString DataDictionary::Entry::rateUnit() const
{
    const QString text = QString::fromUtf8(unit);
    return text.startsWith(QLatin1Char('/')) ? QStringLiteral("seeds") + text : text;
}
