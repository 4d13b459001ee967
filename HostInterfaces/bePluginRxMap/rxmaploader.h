#pragma once

#include "bePluginRxMap/bepluginrxmapglobal.h"

#include <QObject>

/// Feeds one product from the prescription; owned by the back-end.
class BEPLUGINRXMAP_EXPORT RxMapLoader : public QObject {
    Q_OBJECT

public:
    explicit RxMapLoader(double defaultRate = 0.0, QObject *parent = nullptr);
    ~RxMapLoader() override;

    /// Takes a new default rate into use; the caller has already stored it in `defaultRate`.
    void defaultRateChanged(double rate);

    /// Rate where the prescription gives none, base units. Read and written directly.
    double defaultRate;

Q_SIGNALS:
    /// A default rate came into use.
    void defaultRateTaken(double rate);
};
