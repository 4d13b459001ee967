#pragma once

#include "operatorsettings.h"

#include <QObject>
#include <QStringList>

class DriveDisplay;
class OpenWindow;
class QAbstractButton;
class Terminal;
class TouchButton;
struct LoadReport;
struct OpenRequest;

/// The ways to the open window (a button in the status bar, and files dropped onto the display) and what is done with
/// its outcome.
class FileOpening : public QObject {
    Q_OBJECT

public:
    /// `terminal` is not owned and outlives this.
    explicit FileOpening(Terminal *terminal);

    OpenWindow *window() const { return openWindow; }
    /// Also shows the records for which `display` asks, and remembers new ones.
    void attend(DriveDisplay *display);
    /// What the terminal remembers of its operator.
    OperatorSettings *remembered() { return &settings; }

private:
    void toggle();
    /// Another button of the status bar was touched: the open window makes way for what that button shows.
    void giveWay(QAbstractButton *other);
    void take(const QStringList &files, const QStringList &others);
    void load(const OpenRequest &request);
    void replay(const QString &track);
    /// Closes the maps whose products the newest one has taken over.
    void closeReplaced(const LoadReport &newest);

    Terminal *terminal;
    OperatorSettings settings;
    OpenWindow *openWindow;
    TouchButton *button;
};
