#pragma once

#include "groupreading.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QPointer>
#include <QStringList>

#include <map>

class DbGroupQmlUnitsConverter;
class ProductLineItem;
class QWidget;
class RxMapLoader;

/// What the host keeps of the values that the dialog may write.
struct Stored {
    struct Group {
        QPointer<DbGroupRxMap> group;
        Settings settings;
        Mappings mappings;
        bool isProtected = false; ///< Every write without a token is refused.
    };
    std::map<const DataBrokerGroup *, Group> groups;
    int reInitialisations = 0;
    std::map<const RxMapLoader *, double> rates; ///< The default rates in use.
    int ratesTaken = 0;                          ///< How often one came into use.
};

/// What the operator sees in a settings dialog, and what is stored, after each thing that the operator does. It reads
/// what groups publish; the host lets no hook act meanwhile.
class DialogModel {
public:
    /// A dialog opens.
    DialogModel(const DataBroker &broker, Stored &stored);

    void select(int product);
    void applyToAllTouched();
    void shutoffTouched();
    void lookAheadTyped(const QString &text);
    void defaultRateTyped(const QString &text);
    void doneTouched();
    /// Half a second went by.
    void polled();

    /// What the operator sees, line by line; seenIn() gives the same for a real dialog.
    QStringList seen() const;
    static QStringList seenIn(const QWidget &dialog);

private:
    void setMaster(int product);
    QString caption();
    /// Takes over the two factors and returns the unit's text.
    QString areaUnit(int kind, double display, double base);
    bool lacksUnits(const ProductLineItem &product) const;
    int mapping() const;

    const DataBroker &broker;
    Stored &stored;
    DbGroupQmlUnitsConverter *units;
    QStringList labels;
    QList<QPointer<DbGroupRxMap>> groups;
    QPointer<DbGroupRxMap> first;
    Settings settings;
    Mappings mappings;
    int selected = 0;
    double toDisplay = 0.0;
    double fromDisplay = 0.0;
    QString moving;
    QString notUnderVra;
    QString lookAhead;
    QString rate;
    QString rateCaption;
    bool appliesToAll = false;
    bool shutoff = false;
    bool showsControls = true;
    bool isEnabled = true;
    bool showsMoving = true;
    int doneImage = 0;
};
