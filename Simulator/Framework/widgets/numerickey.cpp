#include "numerickey.h"

#include <QKeyEvent>

NumericKey NumericKey::of(const QKeyEvent &event)
{
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return {};
    const int key = event.key();
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return {Action::Character, QChar('0' + (key - Qt::Key_0))};
    switch (key) {
    case Qt::Key_Period:
    case Qt::Key_Comma:
        return {Action::Character, QLatin1Char('.')};
    case Qt::Key_Minus:
        return {Action::Character, QLatin1Char('-')};
    case Qt::Key_Backspace:
        return {Action::EraseLast, {}};
    case Qt::Key_Delete:
        return {Action::Clear, {}};
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return {Action::Finish, {}};
    default:
        return {};
    }
}
