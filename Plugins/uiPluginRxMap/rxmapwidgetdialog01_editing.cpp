// What the dialog's controls do between construction and Done.

#include "controlids.h"
#include "ratemapping.h"
#include "rateunits.h"
#include "rxmapwidgetdialog01.h"

#include "Framework/binmanager.h"
#include "Framework/databroker.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/orvikbutton.h"
#include "Framework/orviklineedit.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QLabel>
#include <QTimer>
#include <QVariant>

#include <cmath>
#include <limits>

namespace {

constexpr int pollIntervalMs = 500;
constexpr int offImage = 0;
constexpr int onImage = 1;

/// A check box's state is the image that it shows; the dialog keeps no flag of its own.
bool isOn(const OrvikButton &box)
{
    return box.currentImage() == onImage;
}

void toggle(OrvikButton &box)
{
    box.setCurrentImage(box.currentImage() ^ 1);
}

int milliseconds(const QString &seconds)
{
    const double value = std::trunc(seconds.toDouble() * 1000.0);
    if (std::isnan(value))
        return 0;
    return static_cast<int>(qBound<double>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

ProductLineItem *loadedProduct(int index)
{
    const BinManager *manager = BinManager::instance(nullptr);
    const QList<QObject *> products = manager == nullptr ? QList<QObject *>() : manager->loadedFilteredProducts();
    return index >= 0 && index < products.size() ? qobject_cast<ProductLineItem *>(products.at(index)) : nullptr;
}

} // namespace

void RxMapWidgetDialog01::productSelectionChanged(int buttonIndex)
{
    setProductButtonLook(selectedProduct, false);
    selectedProduct = buttonIndex;
    setProductButtonLook(selectedProduct, true);

    const OrvikTypes::RX_SETTINGS entry =
        hasSelectedSettings() ? settings.at(selectedProduct) : OrvikTypes::RX_SETTINGS();
    lookAheadEdit->setText(QString::number(entry.onLookAheadMs / 1000.0, 'f', 1));
    bool anyMaster = false;
    for (const OrvikTypes::RX_SETTINGS &any : qAsConst(settings))
        anyMaster = anyMaster || any.isMaster;
    applyToAllBox->setCurrentImage(anyMaster ? onImage : offImage);
    zeroRateShutoffBox->setCurrentImage(entry.zeroRateShutoff ? onImage : offImage);
    showDefaultRate();
    setControlsEnabledState(isVehicleStopped());
}

void RxMapWidgetDialog01::setProductButtonLook(int index, bool selected)
{
    if (index < 0 || index >= productButtons.size())
        return;
    productButtons.at(index)->setCurrentImage(selected ? onImage : offImage);
    productButtons.at(index)->setTextColor(0, selected ? QColor(Qt::white) : QColor(129, 129, 129, 255));
}

bool RxMapWidgetDialog01::hasSelectedSettings() const
{
    return selectedProduct >= 0 && selectedProduct < settings.size();
}

void RxMapWidgetDialog01::showDefaultRate()
{
    defaultRateLabel->setText(getDefaultRateSettings());
    const int mapping = findProductMapping(rateCalMappings, selectedProduct);
    if (mapping < 0) {
        defaultRateEdit->setText(QStringLiteral("????"));
        return;
    }
    // Asked for a second time; that is meant.
    defaultRateLabel->setText(getDefaultRateSettings());
    defaultRateEdit->setText(QString::number(rateCalMappings.at(mapping).defaultRate * toDisplayFactor, 'g', 6));
}

bool RxMapWidgetDialog01::lacksUnits(const ProductLineItem &product) const
{
    return unitsConverter == nullptr && isOfKnownKind(product);
}

QString RxMapWidgetDialog01::getDefaultRateSettings()
{
    const ProductLineItem *product = loadedProduct(selectedProduct);
    const auto *node =
        product == nullptr ? nullptr : qobject_cast<DbGroupSingleProductNode *>(product->primaryProductNodeGroup());
    if (node == nullptr || lacksUnits(*product)) {
        // The factors are meant to stay those of the product before.
        defaultRateEdit->setVisible(false);
        return QString();
    }
    const RateUnit unit = isOfKnownKind(*product) ? rateUnitOf(*product, *node, *unitsConverter) : RateUnit();
    toDisplayFactor = unit.toDisplay;
    fromDisplayFactor = unit.fromDisplay;
    defaultRateEdit->setVisible(true);
    // Empty brackets for a product of no known kind are meant.
    return tr("Default Rate") + QStringLiteral(" (") + unit.text + QStringLiteral(")");
}

void RxMapWidgetDialog01::setMasterProduct(int index)
{
    for (OrvikButton *button : qAsConst(productButtons))
        button->setEnabled(true);
    for (OrvikTypes::RX_SETTINGS &entry : settings)
        entry.isMaster = false;
    if (index < 0)
        return;
    const int master = index < productButtons.size() ? index : 0;
    if (master < settings.size()) {
        settings[master].isMaster = true;
        const bool zeroRateShutoff = settings.at(master).zeroRateShutoff;
        // To every product, whatever it follows: choosing a master is meant to differ here from toggling one.
        for (OrvikTypes::RX_SETTINGS &entry : settings)
            entry.zeroRateShutoff = zeroRateShutoff;
    }
    productSelectionChanged(master);
}

void RxMapWidgetDialog01::onValueChanged(int id)
{
    switch (id) {
    case ApplyToAllId:
        toggle(*applyToAllBox);
        setMasterProduct(isOn(*applyToAllBox) ? selectedProduct : -1);
        break;
    case LookAheadId:
        lookAheadEdited();
        break;
    case ZeroRateShutoffId:
        zeroRateShutoffReleased();
        break;
    case DefaultRateId:
        defaultRateEdited();
        break;
    default:
        break;
    }
}

void RxMapWidgetDialog01::lookAheadEdited()
{
    if (hasSelectedSettings())
        settings[selectedProduct].onLookAheadMs = milliseconds(lookAheadEdit->getText());
}

void RxMapWidgetDialog01::zeroRateShutoffReleased()
{
    toggle(*zeroRateShutoffBox);
    const bool shutoff = isOn(*zeroRateShutoffBox);
    if (isOn(*applyToAllBox)) {
        // The selected product too only when it follows the master.
        for (OrvikTypes::RX_SETTINGS &entry : settings) {
            if (entry.followsMaster)
                entry.zeroRateShutoff = shutoff;
        }
    } else if (hasSelectedSettings()) {
        settings[selectedProduct].zeroRateShutoff = shutoff;
    }
}

void RxMapWidgetDialog01::defaultRateEdited()
{
    const ProductLineItem *product = loadedProduct(selectedProduct);
    // Without its units a typed number means nothing.
    if (product != nullptr && lacksUnits(*product))
        return;
    const double typed = defaultRateEdit->getText().toDouble() * fromDisplayFactor;
    const double rate = std::isfinite(typed) ? typed : 0.0;
    pushDefaultRate(rate);
    const int mapping = findProductMapping(rateCalMappings, selectedProduct);
    if (mapping >= 0)
        rateCalMappings[mapping].defaultRate = rate;
}

// Meant to take effect at every keystroke, and to stay when the dialog is left without saving.
void RxMapWidgetDialog01::pushDefaultRate(double rate)
{
    const ProductLineItem *product = loadedProduct(selectedProduct);
    RxMapLoader *loader = product == nullptr ? nullptr : product->rxMapLoader();
    if (loader == nullptr || loader->defaultRate == rate)
        return;
    loader->defaultRate = rate;
    loader->defaultRateChanged(rate);
}

bool RxMapWidgetDialog01::isVehicleStopped() const
{
    QVariant stopped;
    return broker->getProperty("mainGpsSolution", "vehicleIsStopped", stopped) == 0 && stopped.value<bool>();
}

QString RxMapWidgetDialog01::rxMapGroupName() const
{
    const QStringList binGroups = broker->findGroup(QStringLiteral("system.binGroup.*"), true, false);
    if (selectedProduct < 0 || selectedProduct >= binGroups.size())
        return QString();
    QVariant name;
    const QByteArray group = binGroups.at(selectedProduct).toLatin1();
    return broker->getProperty(group.constData(), "rxMapGroupName", name) == 0 ? name.toString() : QString();
}

void RxMapWidgetDialog01::setControlsEnabledState(bool enabled)
{
    const bool underVra = !rxMapGroupName().isEmpty();
    // Under control all eight are shown, also a rate field that was hidden for want of a node; that is meant.
    for (QWidget *widget : {static_cast<QWidget *>(lookAheadLabel), static_cast<QWidget *>(zeroRateShutoffLabel),
                            static_cast<QWidget *>(applyToAllLabel), static_cast<QWidget *>(defaultRateLabel),
                            static_cast<QWidget *>(lookAheadEdit), static_cast<QWidget *>(applyToAllBox),
                            static_cast<QWidget *>(zeroRateShutoffBox), static_cast<QWidget *>(defaultRateEdit)})
        widget->setVisible(underVra);
    notUnderVraLabel->setVisible(!underVra);
    if (underVra) {
        vehicleMovingLabel->setVisible(!enabled);
        doneButton->setCurrentImage(enabled ? 0 : 1);
        lookAheadEdit->setEnabled(enabled);
        applyToAllBox->setEnabled(enabled);
        zeroRateShutoffBox->setEnabled(enabled);
        defaultRateEdit->setEnabled(enabled);
    }
    // Else the moving message and the Done image are meant to stay as they were.
    update();
}

void RxMapWidgetDialog01::testForZeroSpeed()
{
    setControlsEnabledState(isVehicleStopped());
    QTimer::singleShot(pollIntervalMs, this, SLOT(testForZeroSpeed()));
}
