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
    const Theme::Colors &colors = Theme::colors();
    if (isOutOfReach(button)) {
        const QColor text = isAccent ? colors.accentText : colors.disabledText;
        return {colors.disabledButton, text, colors.disabledText, colors.disabledText, false};
    }
    if (button.isDown())
        return {colors.pressedButton, colors.text, colors.text, colors.text, false};
    if (isAccent)
        return {colors.accent, colors.textOnAccent, colors.textOnAccent, colors.textOnAccent, true};
    return {colors.button, colors.text, colors.faintText, colors.accentText, false};
}
