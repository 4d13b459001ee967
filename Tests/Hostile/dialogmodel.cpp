#include "dialogmodel.h"

#include "Framework/binmanager.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/orvikbutton.h"
#include "Framework/orviklineedit.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QCoreApplication>
#include <QLabel>

namespace {

/// By area unit system, then by kind of rate.
const char *const areaUnits[5][3][2] = {
    {{"k/ac", "count per area: 1000/acre"},
     {"k/ha", "count per area: 1000/hectare"},
     {"k/tu", "count per area: 1000/turf"}},
    {{"fl oz/gal", "fluid ounces/galon"}, {"L/L", "liter/liter"}, {"fl oz/gal", "fluid ounces/galon"}},
    {{"fl oz/ac", "fluid ounce/acre"}, {"mL/ha", "milliliter/hectare"}, {"fl oz/tu", "fluid ounce/turf"}},
    {{"gal/ac", "gallons/acre"}, {"L/ha", "liter/hectare"}, {"gal/tu", "gallons/turf"}},
    {{"lb/ac", "pound/acre"}, {"kg/ha", "kilogram/hectare"}, {"lb/tu", "pound/turf"}},
};
enum AreaKind { Count, Ratio, Injection, Volume, Weight };

const char *const pressureUnits[7][2] = {
    {"psi", "unit of pressure: pound-force per square inch"},
    {"kPa", "unit of pressure: kilopascals"},
    {"bar", "metric unit of pressure"},
    {"inHg", "unit of pressure: inch of mercury"},
    {"mmHg", "unit of pressure: millemeter of mercury"},
    {"atm", "unit of pressure: atmosphere"},
    {"hPa", "unit of pressure: hectopascal"},
};

const ProductLineItem *loadedProduct(int index)
{
    return qobject_cast<ProductLineItem *>(BinManager::instance(nullptr)->loadedFilteredProducts().value(index));
}

QString translated(const char *text)
{
    return QCoreApplication::translate("RxMapWidgetDialog01", text);
}

QString unitText(const char *const unit[2])
{
    return QCoreApplication::translate("DbGroupQmlUnitsConverter", unit[0], unit[1]);
}

QVariant binProperty(const DataBroker &broker, int product, const char *property)
{
    QVariant value;
    const QStringList bins = broker.findGroup(QStringLiteral("system.binGroup.*"), true, false);
    if (product >= 0 && product < bins.size())
        broker.getGroup(bins.at(product), false)->getProperty(property, value);
    return value;
}

QString line(const char *name, const QString &text, bool isVisible, bool isEnabled)
{
    return QLatin1String(name) + ": " + (isVisible ? text : QStringLiteral("hidden")) + (isEnabled ? "" : ", disabled");
}

QString line(const char *name, bool isOn, bool isVisible, bool isEnabled)
{
    return line(name, isOn ? QStringLiteral("on") : QStringLiteral("off"), isVisible, isEnabled);
}

QString labelLine(const char *name, const QWidget &dialog)
{
    const auto *label = dialog.findChild<QLabel *>(QLatin1String(name));
    return line(name, label->text(), label->isVisibleTo(&dialog), true);
}

QString editLine(const char *name, const QWidget &dialog)
{
    const auto *edit = dialog.findChild<OrvikLineEdit *>(QLatin1String(name));
    return line(name, edit->getText(), edit->isVisibleTo(&dialog), edit->isEnabled());
}

QString buttonLine(const char *name, const QWidget &dialog)
{
    const auto *button = dialog.findChild<OrvikButton *>(QLatin1String(name));
    return line(name, button->currentImage() == 1, button->isVisibleTo(&dialog), button->isEnabled());
}

} // namespace

DialogModel::DialogModel(const DataBroker &host, Stored &kept)
    : broker(host)
    , stored(kept)
    , units(findGroup<DbGroupQmlUnitsConverter>(host, QStringLiteral("QmlUnitsConverter")))
{
    moving = translated("Changes not permitted while vehicle is moving.");
    notUnderVra = translated("This product node is not under VRA control.");
    caption();
    const QStringList names = broker.findGroup(QStringLiteral("rxMap.*"), true, false);
    first = findGroup<DbGroupRxMap>(broker, names.value(0));
    if (first)
        settings = first->getSettings();
    for (int i = 0; i < broker.findGroup(QStringLiteral("system.binGroup.*"), true, false).size(); ++i) {
        const QVariant name = binProperty(broker, i, "compositionShortName");
        labels.append(name.isValid() ? name.toString() : translated("P") + (i < 9 ? "0" : "") + QString::number(i + 1));
    }
    for (const QString &name : names) {
        if (auto *group = findGroup<DbGroupRxMap>(broker, name)) {
            groups.append(group);
            mappings.append(group->getRateCalMappings());
        }
    }
    int master = 0;
    while (master < settings.size() && !settings.at(master).isMaster)
        ++master;
    if (master < settings.size())
        setMaster(master);
    else
        select(0);
}

int DialogModel::mapping() const
{
    int place = 0;
    while (place < mappings.size() && !mappings.at(place).rateCalName.contains(QString::number(selected + 1)))
        ++place;
    return place < mappings.size() ? place : -1;
}

void DialogModel::select(int product)
{
    selected = product;
    const OrvikTypes::RX_SETTINGS entry = settings.value(selected);
    lookAhead = QString::number(entry.onLookAheadMs / 1000.0, 'f', 1);
    shutoff = entry.zeroRateShutoff;
    appliesToAll = false;
    for (const OrvikTypes::RX_SETTINGS &any : qAsConst(settings))
        appliesToAll = appliesToAll || any.isMaster;
    rateCaption = caption();
    rate = mapping() < 0 ? "????" : QString::number(mappings.at(mapping()).defaultRate * toDisplay, 'g', 6);
    polled();
}

void DialogModel::setMaster(int product)
{
    const int master = product < labels.size() ? product : 0;
    for (OrvikTypes::RX_SETTINGS &entry : settings)
        entry.isMaster = false;
    if (product < 0)
        return;
    if (master < settings.size()) {
        settings[master].isMaster = true;
        for (OrvikTypes::RX_SETTINGS &entry : settings)
            entry.zeroRateShutoff = settings.at(master).zeroRateShutoff;
    }
    select(master);
}

void DialogModel::applyToAllTouched()
{
    appliesToAll = !appliesToAll;
    setMaster(appliesToAll ? selected : -1);
}

void DialogModel::shutoffTouched()
{
    shutoff = !shutoff;
    for (int i = 0; i < settings.size(); ++i) {
        if (appliesToAll ? settings.at(i).followsMaster : i == selected)
            settings[i].zeroRateShutoff = shutoff;
    }
}

void DialogModel::lookAheadTyped(const QString &text)
{
    lookAhead = text;
    if (selected < settings.size())
        settings[selected].onLookAheadMs = static_cast<int>(text.toDouble() * 1000.0);
}

void DialogModel::defaultRateTyped(const QString &text)
{
    rate = text;
    const ProductLineItem *product = loadedProduct(selected);
    if (product != nullptr && lacksUnits(*product))
        return;
    const double typed = text.toDouble() * fromDisplay;
    const RxMapLoader *loader = product == nullptr ? nullptr : product->rxMapLoader();
    if (loader != nullptr && stored.rates[loader] != typed) {
        stored.rates[loader] = typed;
        ++stored.ratesTaken;
    }
    if (mapping() >= 0)
        mappings[mapping()].defaultRate = typed;
}

bool DialogModel::lacksUnits(const ProductLineItem &product) const
{
    return units == nullptr
        && (product.isCountBasedProduct() || product.isVolumeBasedProduct() || product.isWeightBasedProduct()
            || product.isPressureBasedProduct());
}

QString DialogModel::caption()
{
    const ProductLineItem *product = loadedProduct(selected);
    const auto *node =
        product == nullptr ? nullptr : qobject_cast<DbGroupSingleProductNode *>(product->primaryProductNodeGroup());
    if (node == nullptr || lacksUnits(*product))
        return {};
    toDisplay = fromDisplay = 0.0;
    QString unit;
    if (product->isPressureBasedProduct()) {
        const int number = units->getPressureUnit();
        unit = unitText(pressureUnits[number >= 0 && number < 7 ? number : 1]);
        toDisplay = units->getPressureToDisplay();
        fromDisplay = units->getPressureFromDisplay();
    } else if (product->isCountBasedProduct()) {
        unit = areaUnit(Count, units->getCountRateToDisplay(), units->getCountRateFromDisplay());
    } else if (product->isWeightBasedProduct()) {
        unit = areaUnit(Weight, units->getWeightRateToDisplay(), units->getWeightRateFromDisplay());
    } else if (product->isVolumeBasedProduct()) {
        const bool isPlain = node->getIsCarrier();
        if (!isPlain && node->getOperationalSettings().isRatioRate())
            unit = areaUnit(Ratio, units->getRatioRateToDisplay(), units->getRatioRateFromDisplay());
        else if (!isPlain && node->getSwitchByteCalSettings().isInjection())
            unit = areaUnit(Injection, units->getInjectionRateToDisplay(), units->getInjectionRateFromDisplay());
        else
            unit = areaUnit(Volume, units->getVolumeRateToDisplay(), units->getVolumeRateFromDisplay());
    }
    return translated("Default Rate") + " (" + unit + ")";
}

QString DialogModel::areaUnit(int kind, double display, double base)
{
    toDisplay = display;
    fromDisplay = base;
    const int system = units->getAreaUnitSystem();
    return unitText(areaUnits[kind][system == 0 || system == 1 ? system : 2]);
}

void DialogModel::polled()
{
    const bool isStopped = valueOf<bool>(broker.getGroup(QStringLiteral("mainGpsSolution"), false), "vehicleIsStopped");
    showsControls = !binProperty(broker, selected, "rxMapGroupName").toString().isEmpty();
    if (!showsControls)
        return;
    showsMoving = !isStopped;
    isEnabled = isStopped;
    doneImage = isStopped ? 0 : 1;
}

void DialogModel::doneTouched()
{
    if (showsMoving)
        return;
    Mappings left = mappings;
    for (const QPointer<DbGroupRxMap> &group : qAsConst(groups)) {
        if (group.isNull())
            break;
        Stored::Group &kept = stored.groups[group];
        const bool takes = !group->isRemoved() && !kept.isProtected;
        for (OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING &entry : kept.mappings) {
            if (left.isEmpty())
                break;
            const auto next = left.takeFirst();
            if (takes)
                entry = next;
        }
    }
    if (first.isNull())
        return;
    Stored::Group &kept = stored.groups[first];
    bool differs = false;
    for (int i = 0; i < qMin(settings.size(), kept.settings.size()); ++i) {
        differs = differs || settings.at(i).isMaster != kept.settings.at(i).isMaster
            || settings.at(i).zeroRateShutoff != kept.settings.at(i).zeroRateShutoff;
    }
    stored.reInitialisations += differs && broker.getGroup(QStringLiteral("quillSpan"), false) != nullptr ? 1 : 0;
    if (!first->isRemoved() && !kept.isProtected)
        kept.settings = settings;
}

QStringList DialogModel::seen() const
{
    QStringList lines;
    for (int i = 0; i < labels.size(); ++i)
        lines.append("product: " + labels.at(i) + (i == selected ? ", chosen" : ""));
    lines.append(line("lookAheadEdit", lookAhead, showsControls, isEnabled));
    lines.append(line("defaultRateEdit", rate, showsControls, isEnabled));
    lines.append(line("applyToAllBox", appliesToAll, showsControls, isEnabled));
    lines.append(line("zeroRateShutoffBox", shutoff, showsControls, isEnabled));
    lines.append(line("doneButton", doneImage == 1, true, true));
    lines.append(line("defaultRateLabel", rateCaption, showsControls, true));
    lines.append(line("vehicleMovingLabel", moving, showsMoving, true));
    lines.append(line("notUnderVraLabel", notUnderVra, !showsControls, true));
    return lines;
}

QStringList DialogModel::seenIn(const QWidget &dialog)
{
    QStringList lines;
    for (int i = 0;; ++i) {
        const auto *button = dialog.findChild<OrvikButton *>(QStringLiteral("productButton%1").arg(i));
        if (button == nullptr)
            break;
        const bool isChosen = button->currentImage() == 1 && button->textColor(0) == QColor(Qt::white);
        lines.append("product: " + button->text(0) + (isChosen ? ", chosen" : ""));
    }
    lines.append(editLine("lookAheadEdit", dialog));
    lines.append(editLine("defaultRateEdit", dialog));
    for (const char *name : {"applyToAllBox", "zeroRateShutoffBox", "doneButton"})
        lines.append(buttonLine(name, dialog));
    for (const char *name : {"defaultRateLabel", "vehicleMovingLabel", "notUnderVraLabel"})
        lines.append(labelLine(name, dialog));
    return lines;
}
