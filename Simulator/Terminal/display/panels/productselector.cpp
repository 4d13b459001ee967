#include "productselector.h"

#include "theme.h"
#include "touchbutton.h"

#include <QButtonGroup>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int headingHeight = 40;
constexpr int gap = 8;
constexpr int maxInColumn = 8;
constexpr int tallestButton = 88;

} // namespace

ProductSelector::ProductSelector(const Products &products, QWidget *parent)
    : QWidget(parent)
    , buttons(new QButtonGroup(this))
{
    connect(buttons, QOverload<int>::of(&QButtonGroup::buttonClicked), this, &ProductSelector::chosen);
    setProducts(products);
}

void ProductSelector::setProducts(const Products &products)
{
    qDeleteAll(buttons->buttons());
    const bool isNarrow = products.size() > maxInColumn;
    for (int number = 1; number <= products.size(); ++number) {
        const Product &product = products.at(number - 1);
        auto *button = new TouchButton(isNarrow ? product.shortName : product.name, this);
        button->setNote(isNarrow ? tr("Bin %1").arg(product.bin)
                                 : tr("Product %1, bin %2").arg(number).arg(product.bin));
        button->setCheckable(true);
        button->setObjectName(QStringLiteral("selectProduct%1").arg(number));
        buttons->addButton(button, number);
        if (isVisible())
            button->show();
    }
    arrange();
}

void ProductSelector::setActiveProduct(int number)
{
    if (QAbstractButton *button = buttons->button(number))
        button->setChecked(true);
}

int ProductSelector::columns() const
{
    return buttons->buttons().size() > maxInColumn ? 2 : 1;
}

int ProductSelector::rows() const
{
    return (buttons->buttons().size() + columns() - 1) / columns();
}

int ProductSelector::buttonHeight(int available) const
{
    return std::min(tallestButton, (available - headingHeight - gap * rows()) / rows());
}

int ProductSelector::heightWithin(int available) const
{
    return headingHeight + (buttonHeight(available) + gap) * rows();
}

void ProductSelector::resizeEvent(QResizeEvent *)
{
    arrange();
}

void ProductSelector::arrange()
{
    const QList<QAbstractButton *> all = buttons->buttons();
    const int buttonWidth = (width() - gap * (columns() + 1)) / columns();
    const int tall = buttonHeight(height());
    for (int i = 0; i < all.size(); ++i) {
        const int column = i / rows();
        const int row = i % rows();
        all.at(i)->setGeometry(gap + column * (buttonWidth + gap), headingHeight + row * (tall + gap), buttonWidth,
                               tall);
    }
}

void ProductSelector::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), Theme::colors().panel);
    painter.setPen(Theme::colors().faintText);
    painter.setFont(Theme::font(17, true));
    painter.drawText(QRect(0, 0, width(), headingHeight), Qt::AlignCenter, tr("PRODUCTS"));
}
