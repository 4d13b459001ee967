#pragma once

#include "scriptdriving.h"

#include <QStringList>

/// The script's object `terminal`. It lives on the script's thread; every call runs on the user-interface thread, from
/// whichever event loop turns there, and throws a script error with the reason when it fails.
class ScriptTerminal : public ScriptDriving {
    Q_OBJECT
    /// The active product's number, from 1.
    Q_PROPERTY(QJSValue activeProduct READ activeProduct WRITE setActiveProduct)

public:
    /// `terminal` lives on the user-interface thread and outlives the script; setting `isInterrupted` ends wait().
    ScriptTerminal(Terminal *terminal, const std::atomic<bool> *isInterrupted, QObject *parent = nullptr);

    QJSValue activeProduct() const;
    void setActiveProduct(const QJSValue &number);

    /// Loads a prescription; `options.columns` names the rate columns of products 1, 2, ...; an empty text, null or
    /// undefined leaves its product out.
    Q_INVOKABLE QJSValue open(const QString &path, const QJSValue &options = QJSValue());
    Q_INVOKABLE void close(const QString &group);
    /// The text shown at a field point (metres) after touching it; empty for none.
    Q_INVOKABLE QString touchMap(double x, double y);
    /// Extent of what is loaded, metres; null when nothing is.
    Q_INVOKABLE QJSValue bounds();
    /// {x, y} in metres of the plane of bounds() for degrees, and {lon, lat} in degrees for metres.
    Q_INVOKABLE QJSValue toField(double lon, double lat);
    Q_INVOKABLE QJSValue toEarth(double x, double y);
    Q_INVOKABLE QJSValue mapColor(double x, double y);
    Q_INVOKABLE QJSValue find(const QString &name);
    Q_INVOKABLE QJSValue get(const QString &group, const QString &property);
    Q_INVOKABLE void set(const QString &group, const QString &property, const QJSValue &value);
    Q_INVOKABLE QStringList groups(const QString &pattern);
    Q_INVOKABLE void wait(double milliseconds);
    Q_INVOKABLE void screenshot(const QString &path);

private:
    /// Whether both are numbers; fails otherwise.
    bool isFieldPoint(double x, double y) const;
    /// Fails where the point has no counterpart.
    bool isConverted(const Result<QPointF> &converted, double first, double second) const;
};
