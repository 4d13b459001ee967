#pragma once

#include "ratecommand.h"
#include "shownunit.h"

#include <QWidget>

#include <vector>

class Simulation;

/// What is prescribed, commanded and applied now, and why, a row for each product: the active one first, then the
/// others in their order, as many as a page holds.
class RateTable : public QWidget {
    Q_OBJECT

public:
    static constexpr int rowsOfAPage = 3;

    /// `simulation` is not owned and outlives the table's use.
    explicit RateTable(const Simulation *simulation, QWidget *parent = nullptr);

    int pages() const;
    /// From 0.
    int page() const { return shownPage; }
    void showNextPage();
    /// Shows the page that begins with the active product.
    void showFirstPage();
    /// Why a rate is commanded, as the operator reads it.
    static QString sourceText(CommandSource source);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void takeProducts();
    /// Product numbers, the active one first.
    std::vector<int> order() const;
    void drawHead(QPainter &painter) const;
    void drawRow(QPainter &painter, const QRect &row, int number) const;
    /// Where a column's text goes in a row.
    QRect cell(const QRect &row, int column) const;

    const Simulation *simulation;
    std::vector<ShownUnit> units;
    int shownPage = 0;
};
