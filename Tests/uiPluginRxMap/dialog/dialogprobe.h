#pragma once

#include "rxmapwidgetdialog01.h"

#include "Framework/orvikbutton.h"
#include "Framework/orviklineedit.h"

#include <QLabel>

#include <vector>

/// Lets tests see what the dialog keeps private.
class DialogProbe {
public:
    explicit DialogProbe(RxMapWidgetDialog01 &dialog)
        : d(dialog)
    {
    }

    /// Types into an edit as an operator does: shows the text and reports it.
    static void type(OrvikLineEdit *edit, const QString &text)
    {
        edit->setText(text);
        Q_EMIT edit->textChanged(edit->id());
    }
    static void release(OrvikButton *button) { Q_EMIT button->buttonReleased(button->id()); }

    OrvikLineEdit *lookAheadEdit() const { return d.lookAheadEdit; }
    OrvikLineEdit *defaultRateEdit() const { return d.defaultRateEdit; }
    OrvikButton *applyToAllBox() const { return d.applyToAllBox; }
    OrvikButton *zeroRateShutoffBox() const { return d.zeroRateShutoffBox; }
    OrvikButton *doneButton() const { return d.doneButton; }
    OrvikButton *productButton(int index) const { return d.productButtons.at(index); }
    int productButtonCount() const { return d.productButtons.size(); }
    QLabel *vehicleMovingLabel() const { return d.vehicleMovingLabel; }
    QLabel *notUnderVraLabel() const { return d.notUnderVraLabel; }
    QLabel *defaultRateLabel() const { return d.defaultRateLabel; }
    QList<QWidget *> valueControls() const
    {
        return {d.lookAheadEdit,  d.applyToAllBox,        d.zeroRateShutoffBox, d.defaultRateEdit,
                d.lookAheadLabel, d.zeroRateShutoffLabel, d.applyToAllLabel,    d.defaultRateLabel};
    }
    int selectedProduct() const { return d.selectedProduct; }
    void selectProduct(int index) const { d.selectedProduct = index; }
    QList<OrvikTypes::RX_SETTINGS> &settings() const { return d.settings; }
    QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings() const { return d.rateCalMappings; }
    QFont dialogFont() const { return d.dialogFont; }
    QFont largeFont() const { return d.largeFont; }
    QSize screenSize() const { return d.screenSize; }
    QList<int> pointSizes() const
    {
        return {d.titlePointSize, d.subtitlePointSize, d.captionPointSize, d.largePointSize, d.smallPointSize};
    }
    void spreadProductButtons() const { d.spreadProductButtons(); }
    /// The addresses of the members, in the order in which they have to be declared.
    std::vector<const void *> memberPlaces() const
    {
        return {&d.broker,           &d.unitsConverter,   &d.imageDir,
                &d.dialogFont,       &d.screenSize,       &d.lookAheadEdit,
                &d.defaultRateEdit,  &d.applyToAllBox,    &d.zeroRateShutoffBox,
                &d.doneButton,       &d.productButtons,   &d.vehicleMovingLabel,
                &d.notUnderVraLabel, &d.lookAheadLabel,   &d.zeroRateShutoffLabel,
                &d.applyToAllLabel,  &d.defaultRateLabel, &d.selectedProduct,
                &d.settingsGroup,    &d.rxMapGroups,      &d.settings,
                &d.rateCalMappings,  &d.titlePointSize,   &d.subtitlePointSize,
                &d.captionPointSize, &d.largePointSize,   &d.smallPointSize,
                &d.largeFont,        &d.toDisplayFactor,  &d.fromDisplayFactor};
    }
    int groupCount() const { return d.rxMapGroups.size(); }
    double toDisplayFactor() const { return d.toDisplayFactor; }
    double fromDisplayFactor() const { return d.fromDisplayFactor; }
    void setFactors(double toDisplay, double fromDisplay) const
    {
        d.toDisplayFactor = toDisplay;
        d.fromDisplayFactor = fromDisplay;
    }

private:
    RxMapWidgetDialog01 &d;
};
