// The open window by the keyboard.
#include "choicepage.h"
#include "filepage.h"
#include "openwindow.h"
#include "pager.h"
#include "previewpage.h"
#include "theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QStackedLayout>

Pager *OpenWindow::currentPager() const
{
    QWidget *page = pages->currentWidget();
    if (page == files)
        return files->pager();
    if (page == previews)
        return previews->pager();
    return page == choice ? choice->pager() : nullptr;
}

bool OpenWindow::pressFocused()
{
    auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
    if (button == nullptr || !isAncestorOf(button))
        return false;
    button->click();
    return true;
}

void OpenWindow::keyPressEvent(QKeyEvent *event)
{
    Pager *pager = currentPager();
    switch (event->key()) {
    case Qt::Key_Escape:
        goBack();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!pressFocused() && pages->currentWidget() == previews)
            accept();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (pager != nullptr)
            pager->turn(event->key() == Qt::Key_PageUp ? -1 : 1);
        return;
    case Qt::Key_Up:
    case Qt::Key_Left:
        Theme::showFocus(true);
        focusNextPrevChild(false);
        return;
    case Qt::Key_Down:
    case Qt::Key_Right:
        Theme::showFocus(true);
        focusNextPrevChild(true);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool OpenWindow::focusNextPrevChild(bool next)
{
    QWidget *from = QApplication::focusWidget();
    if (from == nullptr || !isAncestorOf(from))
        from = this;
    const auto step = [next](QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    // What lies under the window is out of reach.
    for (QWidget *widget = step(from); widget != from; widget = step(widget)) {
        // In a group of buttons Qt lets the Tab key reach only the checked one.
        const bool takesKeys =
            (widget->focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QAbstractButton *>(widget) != nullptr;
        if (isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && takesKeys) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}
