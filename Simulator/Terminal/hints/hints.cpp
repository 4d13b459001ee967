#include "hints.h"

#include "Backend/prescriptionbackend.h"
#include "guidancepage.h"
#include "hintcard.h"
#include "terminalwindow.h"

#include <QSettings>

#include <utility>

namespace {

const QString greetedKey = QStringLiteral("hints/greeted");
const QString longTouchKey = QStringLiteral("hints/longTouch");
/// The options button of the plug-in that the terminal is made for.
const QString optionsWidget = QStringLiteral("RxMapWidget");

} // namespace

Hints::Hints(TerminalWindow *givenWindow, const PrescriptionBackend *givenBackend, QSettings *givenSettings,
             QObject *parent)
    : QObject(parent)
    , window(givenWindow)
    , backend(givenBackend)
    , settings(givenSettings)
    , card(new HintCard(QStringLiteral("hintCard"), QStringLiteral("hintClose"), givenWindow))
{
    connect(window->guidancePage(), &GuidancePage::touchedShortly, this, &Hints::tellOfLongTouch);
    connect(window->guidancePage(), &GuidancePage::touched, this, [this](const QString &widgetName) {
        // An operator who returns to the button has read the hint about it.
        if (widgetName == optionsWidget && !isGreeting)
            card->leave();
    });
    connect(card, &HintCard::closed, this, [this] {
        if (std::exchange(isGreeting, false))
            settings->setValue(greetedKey, true);
    });
}

void Hints::greet()
{
    if (settings->value(greetedKey).toBool())
        return;
    isGreeting = true;
    card->tell(tr("How this terminal is used"),
               {tr("Touch the map to read the rate there. Drag it to move it; pinch it, turn the wheel or touch + and "
                   "\u2212 to come nearer or farther."),
                tr("The settings of the map are behind the button with the gear wheel: hold it for a second."),
                tr("The folder opens prescriptions; moon and sun switch between day and night."),
                tr("On a keyboard Tab goes from control to control and Enter touches; arrows move the map.")},
               TerminalWindow::pageArea());
}

void Hints::tellOfLongTouch(const QString &widgetName)
{
    // Without a map there are no settings.
    if (widgetName != optionsWidget || backend->maps().isEmpty() || settings->value(longTouchKey).toBool())
        return;
    settings->setValue(longTouchKey, true);
    isGreeting = false;
    card->tell(tr("Hold this button longer"), {tr("A touch of one second opens the settings of the map.")},
               TerminalWindow::pageArea());
}
