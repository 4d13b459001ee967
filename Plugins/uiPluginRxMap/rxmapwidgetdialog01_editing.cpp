// What the dialog's controls do between construction and Done.

#include "ratemapping.h"
#include "rateunits.h"
#include "rxmapsettingsrules.h"
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
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include <cmath>

namespace Rules = RxMapSettingsRules;

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

ProductLineItem *loadedProduct(int index)
{
    const BinManager *manager = BinManager::instance(nullptr);
    const QList<QObject *> products = manager == nullptr ? QList<QObject *>() : manager->loadedFilteredProducts();
    return index >= 0 && index < products.size() ? qobject_cast<ProductLineItem *>(products.at(index)) : nullptr;
}

// By design: a rate takes effect at every keystroke, and stays when the dialog is left without saving.
void takeIntoUse(RxMapLoader *loader, double rate)
{
    if (loader == nullptr || loader->defaultRate == rate)
        return;
    loader->defaultRate = rate;
    loader->defaultRateChanged(rate);
}

bool isVehicleStopped(const DataBroker &broker)
{
    QVariant stopped;
    return broker.getProperty("mainGpsSolution", "vehicleIsStopped", stopped) == 0 && stopped.value<bool>();
}

/// Name of the prescription group that drives the product; empty when none does.
QString rxMapGroupName(const DataBroker &broker, int product)
{
    const QStringList binGroups = broker.findGroup(QStringLiteral("system.binGroup.*"), true, false);
    if (product < 0 || product >= binGroups.size())
        return QString();
    QVariant name;
    const QByteArray group = binGroups.at(product).toLatin1();
    return broker.getProperty(group.constData(), "rxMapGroupName", name) == 0 ? name.toString() : QString();
}

} // namespace

void RxMapWidgetDialog01::productSelectionChanged(int buttonIndex)
{
    setProductButtonLook(selectedProduct, false);
    selectedProduct = buttonIndex;
    setProductButtonLook(selectedProduct, true);

    const OrvikTypes::RX_SETTINGS entry = settings.value(selectedProduct);
    lookAheadEdit->setText(QString::number(entry.onLookAheadMs / 1000.0, 'f', 1));
    applyToAllBox->setCurrentImage(Rules::hasMaster(settings) ? onImage : offImage);
    zeroRateShutoffBox->setCurrentImage(entry.zeroRateShutoff ? onImage : offImage);
    const QPointer<RxMapWidgetDialog01> self(this);
    showDefaultRate();
    if (self && selectedProduct == buttonIndex)
        followVehicle();
}

void RxMapWidgetDialog01::setProductButtonLook(int index, bool selected)
{
    if (index < 0 || index >= productButtons.size())
        return;
    productButtons.at(index)->setCurrentImage(selected ? onImage : offImage);
    productButtons.at(index)->setTextColor(0, selected ? QColor(Qt::white) : QColor(129, 129, 129, 255));
}

void RxMapWidgetDialog01::showDefaultRate()
{
    const QPointer<RxMapWidgetDialog01> self(this);
    const int product = selectedProduct;
    const int mapping = findProductMapping(rateCalMappings, product);
    // By design: a product with a mapping is asked for its unit twice.
    for (int asked = 0; asked < (mapping < 0 ? 1 : 2); ++asked) {
        const QString caption = getDefaultRateSettings();
        // Another product was selected meanwhile, and is shown already.
        if (!self || selectedProduct != product)
            return;
        defaultRateLabel->setText(caption);
    }
    defaultRateEdit->setText(mapping < 0
                                 ? QStringLiteral("????")
                                 : QString::number(rateCalMappings.at(mapping).defaultRate * toDisplayFactor, 'g', 6));
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
        // By design: the factors stay those of the product before.
        defaultRateEdit->setVisible(false);
        return QString();
    }
    const QPointer<RxMapWidgetDialog01> self(this);
    const int shown = selectedProduct;
    const RateUnit unit = isOfKnownKind(*product) ? rateUnitOf(*product, *node, *unitsConverter) : RateUnit();
    if (!self || selectedProduct != shown)
        return QString();
    toDisplayFactor = unit.toDisplay;
    fromDisplayFactor = unit.fromDisplay;
    defaultRateEdit->setVisible(true);
    // By design: empty brackets for a product of no known kind.
    return tr("Default Rate") + QStringLiteral(" (") + unit.text + QStringLiteral(")");
}

void RxMapWidgetDialog01::setMasterProduct(int index)
{
    for (OrvikButton *button : qAsConst(productButtons))
        button->setEnabled(true);
    if (index < 0) {
        settings = Rules::withoutMaster(settings);
        return;
    }
    const int master = index < productButtons.size() ? index : 0;
    settings = Rules::withMaster(settings, master);
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
        toggle(*zeroRateShutoffBox);
        settings = Rules::withShutoff(settings, selectedProduct, isOn(*zeroRateShutoffBox), isOn(*applyToAllBox));
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
    if (selectedProduct >= 0 && selectedProduct < settings.size())
        settings[selectedProduct].onLookAheadMs = Rules::lookAheadMs(lookAheadEdit->getText());
}

void RxMapWidgetDialog01::defaultRateEdited()
{
    const ProductLineItem *product = loadedProduct(selectedProduct);
    // Without its units a typed number means nothing.
    if (product != nullptr && lacksUnits(*product))
        return;
    const double typed = defaultRateEdit->getText().toDouble() * fromDisplayFactor;
    const double rate = std::isfinite(typed) ? typed : 0.0;
    const int mapping = findProductMapping(rateCalMappings, selectedProduct);
    const QPointer<RxMapWidgetDialog01> self(this);
    takeIntoUse(product == nullptr ? nullptr : product->rxMapLoader(), rate);
    if (self && mapping >= 0)
        rateCalMappings[mapping].defaultRate = rate;
}

void RxMapWidgetDialog01::setControlsEnabledState(bool enabled)
{
    const QPointer<RxMapWidgetDialog01> self(this);
    const int product = selectedProduct;
    const bool underVra = !rxMapGroupName(*broker, product).isEmpty();
    // Another product was selected meanwhile, and is shown already.
    if (!self || selectedProduct != product)
        return;
    // By design: under control all eight are shown, also a rate field that was hidden for want of a node.
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
    // By design: otherwise the moving message and the Done image stay as they were.
    update();
}

void RxMapWidgetDialog01::followVehicle()
{
    const QPointer<RxMapWidgetDialog01> self(this);
    const bool isStopped = isVehicleStopped(*broker);
    if (self)
        setControlsEnabledState(isStopped);
}

void RxMapWidgetDialog01::testForZeroSpeed()
{
    const QPointer<RxMapWidgetDialog01> self(this);
    followVehicle();
    if (self)
        QTimer::singleShot(pollIntervalMs, this, SLOT(testForZeroSpeed()));
}
