#pragma once

#include "Framework/rxpolygon.h"

#include <QFont>
#include <QList>
#include <QString>
#include <QWidget>

class QPainter;

/// The colour legend of the active product's map.
class LegendPanel : public QWidget {
    Q_OBJECT

public:
    /// What the panel shows.
    struct Content {
        QString product;
        /// The prescription column that feeds it.
        QString column;
        /// Those that are drawn, limits ascending in base units, none negative; empty when there is no map.
        QList<OrvikTypes::RX_RATECOLOR> classes;
        /// Every class holds one single rate, its limit; else those above the class before, up to the limit.
        bool hasSingleRates = false;
        /// Takes base units to `unit`.
        double factor = 1.0;
        QString unit;
    };

    explicit LegendPanel(QWidget *parent = nullptr);

    void show(const Content &content);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString classText(int index) const;
    /// The class texts' font, so small that the widest of them fits into `width` pixels, if it stays legible.
    QFont fittingFont(int width) const;
    void drawHead(QPainter &painter, const QRect &inner) const;
    void drawClasses(QPainter &painter, const QRect &inner) const;

    Content content;
    /// Beside the colours, lowest class first.
    QStringList texts;
};
