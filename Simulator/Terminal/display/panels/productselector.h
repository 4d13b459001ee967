#pragma once

#include "product.h"

#include <QWidget>

class QButtonGroup;

/// The column of product buttons at the left edge: one column while the buttons stay big, else two.
class ProductSelector : public QWidget {
    Q_OBJECT

public:
    explicit ProductSelector(const Products &products, QWidget *parent = nullptr);

    /// Makes new buttons; none of them is active.
    void setProducts(const Products &products);
    /// `number` counts from 1.
    void setActiveProduct(int number);
    /// The height that the buttons take when `available` pixels are free.
    int heightWithin(int available) const;

Q_SIGNALS:
    void chosen(int number);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void arrange();
    int columns() const;
    int rows() const;
    int buttonHeight(int available) const;

    QButtonGroup *buttons;
};
