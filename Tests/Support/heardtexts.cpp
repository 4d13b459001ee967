#include "heardtexts.h"

#include <QAccessible>
#include <QWidget>

QStringList heardTexts(QWidget &widget)
{
    QStringList texts;
    const QList<QWidget *> parts = widget.findChildren<QWidget *>() << &widget;
    for (QWidget *part : parts) {
        QAccessibleInterface *heard = part->isVisible() ? QAccessible::queryAccessibleInterface(part) : nullptr;
        if (heard != nullptr)
            texts << heard->text(QAccessible::Name) << heard->text(QAccessible::Description);
    }
    texts.removeAll(QString());
    return texts;
}
