#pragma once

#include "repaintthrottle.h"

#include <QWidget>

class RateHistory;
class RatePlot;
class RateTable;
class Simulation;
class TouchButton;

/// The strip under the map while the machine is driven: what each product's rate is now, and what the active one's was.
class DriveStrip : public QWidget {
    Q_OBJECT

public:
    /// Neither is owned; both outlive the strip's use.
    DriveStrip(Simulation *simulation, const RateHistory *history, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeProducts();
    void arrange();
    void showPage();

    RateTable *table;
    RatePlot *plot;
    TouchButton *pageButton;
    RepaintThrottle pace;
};
