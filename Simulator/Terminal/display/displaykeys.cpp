#include "displaykeys.h"

#include "fieldview.h"

#include <QAbstractButton>
#include <QApplication>

#include <algorithm>
#include <tuple>

namespace {

constexpr double panStep = 80.0; // Pixels.

} // namespace

DisplayKeys::DisplayKeys(QWidget *givenDisplay, FieldView *givenView)
    : display(givenDisplay)
    , view(givenView)
{
}

bool DisplayKeys::press(int key)
{
    switch (key) {
    case Qt::Key_Left:
        view->pan({panStep, 0.0});
        return true;
    case Qt::Key_Right:
        view->pan({-panStep, 0.0});
        return true;
    case Qt::Key_Up:
        view->pan({0.0, panStep});
        return true;
    case Qt::Key_Down:
        view->pan({0.0, -panStep});
        return true;
    case Qt::Key_Plus:
        view->zoom(FieldView::zoomStep);
        return true;
    case Qt::Key_Minus:
        view->zoom(1.0 / FieldView::zoomStep);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (view->hasFocus())
            view->touchMiddle();
        return view->hasFocus();
    default:
        return false;
    }
}

bool DisplayKeys::isReachable(const QWidget *control) const
{
    // In a group of buttons Qt lets the Tab key reach only the checked one.
    const bool takesKeys = qobject_cast<const QAbstractButton *>(control) != nullptr
        || ((control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr);
    if (!takesKeys || !control->isVisible() || !control->isEnabled())
        return false;
    // A page may lie over its piece. Children stand in the order in which they are stacked.
    const QPoint middle = control->mapTo(display, control->rect().center());
    const QWidget *piece = pieceOf(control);
    bool isAbove = false;
    for (const QObject *child : display->children()) {
        const auto *other = qobject_cast<const QWidget *>(child);
        if (other == nullptr)
            continue;
        const bool covers = isAbove && other->isVisible() && !other->testAttribute(Qt::WA_TransparentForMouseEvents);
        if (covers && other->geometry().contains(middle))
            return false;
        isAbove = isAbove || other == piece;
    }
    return true;
}

const QWidget *DisplayKeys::pieceOf(const QWidget *control) const
{
    while (control->parentWidget() != display)
        control = control->parentWidget();
    return control;
}

QList<QWidget *> DisplayKeys::controls() const
{
    QList<QWidget *> reachable;
    const QList<QWidget *> all = display->findChildren<QWidget *>();
    for (QWidget *control : all) {
        if (control->window() == display->window() && isReachable(control))
            reachable.append(control);
    }
    // Piece by piece, from the top left; in a piece row by row.
    const auto place = [this](const QWidget *control) {
        const QRect area = pieceOf(control)->geometry();
        const QPoint at = control->mapTo(display, QPoint(0, 0));
        return std::tuple(area.top(), area.left(), at.y(), at.x());
    };
    std::stable_sort(reachable.begin(), reachable.end(),
                     [&place](const QWidget *a, const QWidget *b) { return place(a) < place(b); });
    return reachable;
}

bool DisplayKeys::moveFocus(bool forward)
{
    const QList<QWidget *> reachable = controls();
    if (reachable.isEmpty())
        return false;
    const int now = reachable.indexOf(QApplication::focusWidget());
    const int last = reachable.size() - 1;
    const int next = forward ? (now < last ? now + 1 : 0) : (now > 0 ? now - 1 : last);
    reachable.at(next)->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}
