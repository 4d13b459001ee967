#pragma once

#include "operatorsettings.h"

#include <QObject>
#include <QStringList>

class OpenWindow;
class QAbstractButton;
class Terminal;
class TouchButton;
struct LoadReport;
struct OpenRequest;

/// The ways to the open window, a button in the status bar and files that are dropped onto the display, and what comes
/// of it.
class FileOpening : public QObject {
    Q_OBJECT

public:
    /// `terminal` is not owned and outlives this.
    explicit FileOpening(Terminal *terminal);

    OpenWindow *window() const { return openWindow; }
    /// What the terminal remembers of its operator.
    OperatorSettings *remembered() { return &settings; }

private:
    void toggle();
    /// Another button of the status bar leads to what it shows, from under the open window, too.
    void giveWay(QAbstractButton *other);
    void take(const QStringList &files, const QStringList &others);
    void load(const OpenRequest &request);
    /// Closes the maps whose products the newest one has taken over.
    void closeReplaced(const LoadReport &newest);

    Terminal *terminal;
    OperatorSettings settings;
    OpenWindow *openWindow;
    TouchButton *button;
};
