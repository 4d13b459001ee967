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
        /// The classes that are drawn; limits ascend in base units, none is negative; empty when there is no map.
        QList<OrvikTypes::RX_RATECOLOR> classes;
        /// Every class holds one single rate, its limit; if false, a class holds the rates above the previous limit, up
        /// to its own.
        bool hasSingleRates = false;
        /// Converts base units to `unit`.
        double factor = 1.0;
        QString unit;
        /// What each class covers, in `areaUnit`; both empty where that is not known.
        QList<double> areas;
        QString areaUnit;
        /// What the whole map takes; the unit is empty for a product whose rates do not add up to an amount.
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
    /// Smaller for many classes, so that they fit between the other panels.
    int rowHeight() const;
    /// The heights of the head's part for the product's and the column's name, and of the whole head.
    int namesHeight() const;
    int headHeight() const;
    void drawNames(QPainter &painter, const QRect &inner) const;
    void drawHead(QPainter &painter, const QRect &inner) const;
    void drawClasses(QPainter &painter, const QRect &inner) const;
    void drawFoot(QPainter &painter, const QRect &inner) const;

    Content content;
    QStringList productLines;
    QStringList columnLines;
    /// Texts beside the colours, lowest class first.
    QStringList texts;
    /// Texts at the right end of the classes' rows.
    QStringList areaTexts;
};
