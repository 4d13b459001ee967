#pragma once

#include "activemap.h"
#include "drivetally.h"
#include "reportunits.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

class QXmlStreamWriter;
struct DrivenField;
struct Product;

/// A product's part of the page.
class ProductSection {
    Q_DECLARE_TR_FUNCTIONS(ProductSection)

public:
    /// Rows of the table of changes.
    static constexpr int mostChanges = 12;

    /// By number from 1. `field` outlives it.
    ProductSection(const DrivenField &field, int number);

    void write(QXmlStreamWriter &page) const;

private:
    void writePictures(QXmlStreamWriter &page) const;
    void writePicture(QXmlStreamWriter &page, const QString &caption,
                      const std::function<QColor(int, int)> &colorOf) const;
    void writeClasses(QXmlStreamWriter &page) const;
    void writeClass(QXmlStreamWriter &page, const QString &name, const QColor &color,
                    const DriveTally::RateClass &ground, bool isTotal = false) const;
    void writeErrors(QXmlStreamWriter &page) const;
    void writeChanges(QXmlStreamWriter &page) const;
    void writeChange(QXmlStreamWriter &page, const BorderWatch::Change &change) const;
    void writeCurve(QXmlStreamWriter &page) const;
    QString className(int place) const;

    const DrivenField &field;
    int number;
    const Product &product;
    const DriveTally::ProductTally &tally;
    ActiveMap map;
    /// Each class of the legend holds one single rate.
    bool hasSingleRates = false;
    ReportUnits units;
};
