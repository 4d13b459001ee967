#pragma once

#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxsettings.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QDialog>
#include <QDir>
#include <QFont>
#include <QList>
#include <QPointer>
#include <QSize>

class DataBroker;
class DbGroupQmlUnitsConverter;
class OrvikButton;
class OrvikLineEdit;
class ProductLineItem;
class QLabel;

/// The modal "Rx Map Settings" dialog: how the prescription drives the rate controller, product by product.
///
/// It edits working copies of the first prescription group's settings and of every group's mappings, and writes them
/// back on Done; only the default rate goes to the product's loader as it is typed. While the vehicle moves, or is not
/// known to stand, the controls are locked. Layout is in fixed pixels, sized to the background image. A product is
/// named by its index from 0 throughout, the same in buttons, settings, bin groups and loaded products.
///
/// Every access to the broker runs the host's hooks and listeners, which may delete the dialog, select another product
/// or press Done again: members are read before it, or after a check that the dialog still lives. Only the constructor
/// relies on nobody reaching a dialog that is still being made.
class RxMapWidgetDialog01 : public QDialog {
    Q_OBJECT

public:
    /// Images are loaded from `imageDir`. The broker is not owned and outlives the dialog.
    RxMapWidgetDialog01(DataBroker *broker, QDir &imageDir, QWidget *parent);
    ~RxMapWidgetDialog01() override;

    /// Makes one caption label, owned by `parent`. The dialog's own font takes its point size and keeps it.
    QLabel *addCaption(QString text, QPoint position, int pointSize, QWidget *parent);
    /// Makes the product buttons and the vertical caption at the left edge.
    void setupSidebar();
    /// Takes the display factors of the selected product and shows its default-rate field; hides the field, and
    /// keeps the factors, when no product is loaded there, it has no usable node, or its kind needs a units converter
    /// that is missing. Returns the field's caption; empty when hidden, or when another product was selected meanwhile.
    QString getDefaultRateSettings();
    /// Makes `index` the only master and selects it; a negative index clears the master.
    void setMasterProduct(int index);
    /// Shows and locks the controls for the selected product; `enabled`: the vehicle stands.
    void setControlsEnabledState(bool enabled);

public Q_SLOTS:
    /// Writes the working copies back and closes; only closes while the moving message shows.
    void doneButtonReleased(int);
    void onValueChanged(int id);
    void productSelectionChanged(int buttonIndex);
    /// Locks or unlocks the controls, now and every 500 ms from now on.
    void testForZeroSpeed();

private:
    friend class DialogProbe;

    /// The ids by which the value controls report.
    enum ControlId { ApplyToAllId = 0, LookAheadId = 1, ZeroRateShutoffId = 2, DefaultRateId = 3 };

    void setupWindow();
    void setupControls();
    OrvikButton *addCheckBox(int id, const QPoint &position, const char *name);
    OrvikLineEdit *addLineEdit(int id, const QPoint &position, const char *name);
    void setRed(QLabel *label);
    OrvikButton *addProductButton(int index, const QString &binGroup);
    void spreadProductButtons();
    void addProductsCaption();
    void readGroups();
    void selectInitialProduct();

    /// Locks or unlocks the controls by what the vehicle does now.
    void followVehicle();
    void showDefaultRate();
    /// The product has a unit, but there is no units converter to tell which.
    bool lacksUnits(const ProductLineItem &product) const;
    void setProductButtonLook(int index, bool selected);
    void lookAheadEdited();
    void defaultRateEdited();

    DataBroker *broker;
    DbGroupQmlUnitsConverter *unitsConverter = nullptr;
    QDir imageDir;
    QFont dialogFont; ///< Every caption leaves its point size here; later fonts are copied in that state.
    QSize screenSize = QSize(-1, -1);
    OrvikLineEdit *lookAheadEdit = nullptr;
    OrvikLineEdit *defaultRateEdit = nullptr;
    OrvikButton *applyToAllBox = nullptr;
    OrvikButton *zeroRateShutoffBox = nullptr;
    OrvikButton *doneButton = nullptr;
    QList<OrvikButton *> productButtons;
    QLabel *vehicleMovingLabel = nullptr;
    QLabel *notUnderVraLabel = nullptr;
    QLabel *lookAheadLabel = nullptr;
    QLabel *zeroRateShutoffLabel = nullptr;
    QLabel *applyToAllLabel = nullptr;
    QLabel *defaultRateLabel = nullptr;
    int selectedProduct = 0;
    QPointer<DbGroupRxMap> settingsGroup;
    QList<QPointer<DbGroupRxMap>> rxMapGroups;
    QList<OrvikTypes::RX_SETTINGS> settings;
    QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> rateCalMappings; ///< Every group's list, in group order.
    // By design: nothing reads two of the sizes and the large font.
    int titlePointSize = 0;
    int subtitlePointSize = 0;
    int captionPointSize = 0;
    int largePointSize = 0;
    int smallPointSize = 0;
    QFont largeFont;
    double toDisplayFactor = 0.0;   ///< Stored default rate (base units) × this = the value shown.
    double fromDisplayFactor = 0.0; ///< Typed value × this = default rate in base units.
};
