#pragma once

#include "Framework/rxpolygon.h"

#include <QFont>
#include <QList>
#include <QString>
#include <QWidget>

/// The colour legend of the active product's map.
class LegendPanel : public QWidget {
    Q_OBJECT

public:
    explicit LegendPanel(QWidget *parent = nullptr);

    /// `factor` takes the legend's base units to `unit`. An empty legend shows that there is no map.
    void show(const QString &title, const QString &source, const QList<OrvikTypes::RX_RATECOLOR> &legend, double factor,
              const QString &unit);
    /// The texts beside the colours, lowest class first.
    QStringList classTexts() const { return texts; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The class texts' font, so small that the widest of them fits into `width` pixels.
    QFont fittingFont(int width) const;

    QString title;
    QString source;
    QString unit;
    QStringList texts;
    QList<QColor> colors;
};
