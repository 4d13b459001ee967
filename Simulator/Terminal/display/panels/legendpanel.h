#pragma once

#include "Backend/ratesource.h"

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
        /// The prescription column that feeds it, the file's unit and what told it.
        RateSource source;
        /// Those that are drawn, limits ascending in base units, none negative; empty when there is no map.
        QList<OrvikTypes::RX_RATECOLOR> classes;
        /// Every class holds one single rate, its limit; else those above the class before, up to the limit.
        bool hasSingleRates = false;
        /// Takes base units to `unit`.
        double factor = 1.0;
        QString unit;
        /// What each of the classes covers, in `areaUnit`; neither where it is not known.
        QList<double> areas;
        QString areaUnit;
        /// What the whole map takes; an empty unit for a product whose rates add up to nothing.
        double amount = 0.0;
        QString amountUnit;
    };

    explicit LegendPanel(QWidget *parent = nullptr);

    void show(const Content &content);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString classText(int index) const;
    /// "lb/ac from the name".
    QString sourceText() const;
    /// Less for many classes, so that they fit between the other panels.
    int rowHeight() const;
    void drawHead(QPainter &painter, const QRect &inner) const;
    void drawClasses(QPainter &painter, const QRect &inner) const;
    void drawFoot(QPainter &painter, const QRect &inner) const;

    Content content;
    /// Beside the colours, lowest class first.
    QStringList texts;
    /// At the right end of the classes' rows.
    QStringList areaTexts;
};
