#pragma once

#include "ratecommand.h"
#include "shownunit.h"
#include "touchbutton.h"

class Simulation;

/// A product's line in the table of rates: what is prescribed, commanded and applied now, and why. Checked for the
/// active product; a touch asks for the product.
class RateRow : public TouchButton {
    Q_OBJECT

public:
    enum Column { Name, Prescribed, Commanded, Applied, Unit, Source, ColumnCount };

    /// Pixels: what a gloved finger hits.
    static constexpr int rowHeight = 53;

    /// `simulation` is not owned and outlives the row's use.
    explicit RateRow(const Simulation *simulation, QWidget *parent = nullptr);

    /// By number from 1.
    void setProduct(int number);

    /// Why a rate is commanded, as the operator reads it.
    static QString sourceText(CommandSource source);
    /// Writes in a column of a row in `font`, made smaller if the text does not fit, down to a size that can still be
    /// read.
    static void drawCell(QPainter &painter, const QRect &row, Column column, const QFont &font, const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// What the columns say, in their order.
    QStringList texts() const;

    const Simulation *simulation;
    int number = 1;
    ShownUnit unit;
};
