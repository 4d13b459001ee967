#include "fileopening.h"

#include "drivedisplay.h"
#include "driverecord.h"
#include "machine.h"
#include "openwindow.h"
#include "recentfiles.h"
#include "shownnumber.h"
#include "statusbar.h"
#include "symbols.h"
#include "terminal.h"
#include "terminalwindow.h"
#include "touchbutton.h"
#include "trackcheck.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

FileOpening::FileOpening(Terminal *owner)
    : QObject(owner)
    , terminal(owner)
    , openWindow(new OpenWindow(owner->machine(), owner->adoption(), settings.values(), owner->window()))
    , button(new TouchButton(tr("Open a prescription")))
{
    TerminalWindow *display = terminal->window();
    button->setObjectName(QStringLiteral("openButton"));
    button->setSymbol(Symbols::folder());
    button->setCheckable(true);
    display->statusBar()->addButton(button);
    openWindow->setGeometry(TerminalWindow::pageArea());
    connect(button, &TouchButton::clicked, this, &FileOpening::toggle);
    connect(display->statusBar(), &StatusBar::touched, this, &FileOpening::giveWay);
    connect(display, &TerminalWindow::dropped, this, &FileOpening::take);
    connect(openWindow, &OpenWindow::shownChanged, button, &TouchButton::setChecked);
    connect(openWindow, &OpenWindow::closeWanted, terminal, &Terminal::close);
    // Queued: the button that asks for it is still on the stack, and loading runs an event loop of its own.
    connect(openWindow, &OpenWindow::wanted, this, [this](const OpenRequest &request) {
        QMetaObject::invokeMethod(
            this, [this, request] { load(request); }, Qt::QueuedConnection);
    });
    connect(openWindow, &OpenWindow::trackWanted, this, &FileOpening::replay);
}

void FileOpening::attend(DriveDisplay *display)
{
    connect(display, &DriveDisplay::replayWanted, openWindow,
            [this] { openWindow->showRecords(DriveRecord::usualFolder()); });
    connect(display->record(), &DriveRecord::kept, openWindow,
            [this](const QString &path) { RecentFiles(settings.values()).add(path); });
}

void FileOpening::toggle()
{
    // A dialog of a plug-in keeps the terminal as it is.
    const bool mayOpen = QApplication::activeModalWidget() == nullptr;
    if (mayOpen && openWindow->isVisible())
        openWindow->goBack();
    else if (mayOpen)
        openWindow->showFiles();
    button->setChecked(openWindow->isVisible());
}

void FileOpening::giveWay(QAbstractButton *other)
{
    if (other == button || !openWindow->isVisible())
        return;
    openWindow->leave();
    // What the button shows was under the window and not seen, so it stays.
    if (other->isCheckable())
        other->setChecked(true);
}

void FileOpening::take(const QStringList &files, const QStringList &others)
{
    if (!others.isEmpty())
        openWindow->refuse(tr("%1 is no file of this computer").arg(others.join(QStringLiteral(", "))));
    if (!files.isEmpty())
        openWindow->preview(files);
}

void FileOpening::closeReplaced(const LoadReport &newest)
{
    // New products are not the ones that the other maps fed.
    const bool areProductsNew = !newest.columnProducts.isEmpty();
    const QList<LoadReport> maps = terminal->backend()->maps();
    for (const LoadReport &map : maps) {
        if (map.group != newest.group && (areProductsNew || terminal->columnsOf(map.group).isEmpty()))
            terminal->close(map.group);
    }
}

void FileOpening::load(const OpenRequest &request)
{
    const QPointer<FileOpening> self = this;
    const LoadReport report = terminal->open(request).constLast();
    if (!self)
        return;
    if (report.isOk()) {
        for (const QString &group : request.closes)
            terminal->close(group);
        closeReplaced(report);
    }
    int first = 0;
    for (const RateSource &source : report.sources)
        first = first == 0 ? source.product : std::min(first, source.product);
    if (first > 0)
        terminal->machine()->setActiveProduct(first);
    openWindow->finish(report);
}

void FileOpening::replay(const QString &track)
{
    const QString name = QFileInfo(track).fileName();
    if (!terminal->machine()->planeOrigin()) {
        openWindow->refuse(tr("%1 is a track: open the prescription of its field first").arg(name));
        return;
    }
    // A record that is being written would never end.
    terminal->driving()->record()->endIfAt(track);
    TrackCheck check(track, terminal->machine()->planeOrigin());
    // Where the program has ended meanwhile, this is gone.
    if (!openWindow->await(check, track))
        return;
    const auto outcome = check.takeOutcome();
    if (!outcome.isOk()) {
        openWindow->refuse(outcome.error);
        return;
    }
    terminal->driving()->replay(track);
    openWindow->finishTrack(track);
    const TrackReader::Summary &summary = outcome.value;
    if (summary.badLines > 0)
        terminal->tell(tr("Lines of %1 left out: %2").arg(name, ShownNumber::text(double(summary.badLines))),
                       summary.firstBad);
}
