#pragma once

#include <QList>
#include <QWidget>

class RateRow;
class Simulation;

/// What is prescribed, commanded and applied now, and why, a row for each product, as many as a page holds. A touched
/// row makes its product the active one.
class RateTable : public QWidget {
    Q_OBJECT

public:
    static constexpr int rowsOfAPage = 3;
    /// Pixels.
    static int usualHeight();

    /// `simulation` is not owned and outlives the table's use.
    explicit RateTable(Simulation *simulation, QWidget *parent = nullptr);

    int pages() const;
    /// From 0.
    int page() const { return shownPage; }
    void showNextPage();
    /// Shows the page that has the active product.
    void showActive();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showPage(int number);

    Simulation *simulation;
    QList<RateRow *> rows;
    int shownPage = 0;
};
