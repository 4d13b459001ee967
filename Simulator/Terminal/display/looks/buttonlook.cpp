#include "buttonlook.h"

#include "theme.h"

#include <QAbstractButton>

ButtonLook ButtonLook::of(const QAbstractButton &button, Checked checked)
{
    if (!button.isEnabled())
        return {Theme::disabledButton(), Theme::disabledText(), Theme::disabledText(), Theme::disabledText(), false};
    if (button.isDown())
        return {Theme::pressedButton(), Theme::text(), Theme::text(), Theme::text(), false};
    if (button.isChecked() && checked == Checked::ByAccent)
        return {Theme::accent(), Theme::textOnAccent(), Theme::textOnAccent(), Theme::textOnAccent(), true};
    return {Theme::button(), Theme::text(), Theme::faintText(), Theme::accentText(), false};
}
