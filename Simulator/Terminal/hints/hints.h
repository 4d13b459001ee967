#pragma once

#include <QObject>

class HintCard;
class PrescriptionBackend;
class QSettings;
class TerminalWindow;

/// Tells an operator who is new to it how the terminal is used: once at the start what the map and the buttons do, and
/// once, when the options button of the guidance page was touched too shortly, that it wants a long touch. What was
/// seen is remembered.
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
