#pragma once

#include <QObject>

class HintCard;
class PrescriptionBackend;
class QSettings;
class TerminalWindow;

/// Tells a new operator how the terminal is used: at the first start what the map and the buttons do, and, when the
/// options button of the guidance page was first touched too briefly, that it needs a long touch. What was shown is
/// remembered.
class Hints : public QObject {
    Q_OBJECT

public:
    /// None of these is owned; all outlive the hints.
    Hints(TerminalWindow *window, const PrescriptionBackend *backend, QSettings *settings, QObject *parent = nullptr);

    /// Greets an operator who has not been greeted yet.
    void greet();

private:
    void tellOfLongTouch(const QString &widgetName);

    TerminalWindow *window;
    const PrescriptionBackend *backend;
    QSettings *settings;
    HintCard *card;
    bool isGreeting = false;
};
