#include "buttonlook.h"

#include "theme.h"

#include <QAbstractButton>
#include <QApplication>

bool ButtonLook::isOutOfReach(const QWidget &control)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return !control.isEnabled() || (modal != nullptr && modal != control.window());
}

ButtonLook ButtonLook::of(const QAbstractButton &button, Checked checked)
{
    const bool isAccent = button.isChecked() && checked == Checked::ByAccent;
    if (isOutOfReach(button)) {
        const QColor text = isAccent ? Theme::accentText() : Theme::disabledText();
        return {Theme::disabledButton(), text, Theme::disabledText(), Theme::disabledText(), false};
    }
    if (button.isDown())
        return {Theme::pressedButton(), Theme::text(), Theme::text(), Theme::text(), false};
    if (isAccent)
        return {Theme::accent(), Theme::textOnAccent(), Theme::textOnAccent(), Theme::textOnAccent(), true};
    return {Theme::button(), Theme::text(), Theme::faintText(), Theme::accentText(), false};
}
