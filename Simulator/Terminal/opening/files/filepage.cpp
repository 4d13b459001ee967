#include "filepage.h"

#include "Backend/prescriptionbackend.h"
#include "caption.h"
#include "listrow.h"
#include "machine.h"
#include "openedfiles.h"
#include "pager.h"
#include "recentfiles.h"
#include "shownnumber.h"
#include "symbols.h"
#include "theme.h"
#include "touchbutton.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int rowsPerPage = 7;
constexpr int placeWidth = 220;
constexpr int titlePixels = 24;
constexpr int closeWidth = 180;
/// There is room for this many volumes; the sample takes the place of one.
constexpr int mostVolumes = 3;

QString headingOf(const QString &folder)
{
    return QDir::toNativeSeparators(folder);
}

} // namespace

FilePage::FilePage(const Machine *terminalMachine, RecentFiles &recentFiles, QWidget *parent)
    : QWidget(parent)
    , machine(terminalMachine)
    , files(recentFiles)
    , title(new Caption(titlePixels, true, this))
    , close(new TouchButton(QString(), this))
    , emptyText(new QLabel(this))
    , pages(new Pager(Qt::Vertical, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    auto *head = new QHBoxLayout;
    close->setObjectName(QStringLiteral("openCancel"));
    close->setFixedSize(closeWidth, Theme::touchTarget);
    close->setFocusPolicy(Qt::TabFocus);
    head->addWidget(title, 1);
    head->addWidget(close);
    layout->addLayout(head);
    auto *body = new QHBoxLayout;
    body->addWidget(makePlaces());
    body->addWidget(makeRows(), 1);
    body->addWidget(pages);
    layout->addLayout(body, 1);
    connect(close, &TouchButton::clicked, this, &FilePage::left);
    connect(pages, &Pager::turned, this, &FilePage::turnPage);
    connect(machine, &Machine::mapsChanged, this, &FilePage::followMaps);
    followMaps();
}

TouchButton *FilePage::addPlace(QVBoxLayout *layout, const QString &text, const QString &name)
{
    auto *button = new TouchButton(text, this);
    button->setObjectName(name);
    button->setFixedSize(placeWidth, Theme::touchTarget);
    button->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(button);
    return button;
}

QWidget *FilePage::makePlaces()
{
    auto *places = new QWidget(this);
    auto *layout = new QVBoxLayout(places);
    layout->setContentsMargins(0, 0, 0, 0);
    recent = addPlace(layout, tr("Recent"), QStringLiteral("placeRecent"));
    recent->setCheckable(true);
    connect(recent, &TouchButton::clicked, this, &FilePage::showRecent);
    open = addPlace(layout, tr("Opened"), QStringLiteral("placeOpen"));
    open->setCheckable(true);
    connect(open, &TouchButton::clicked, this, &FilePage::showOpen);
    const auto addFolder = [this, layout](const QString &text, const QString &name, const QString &path) {
        connect(addPlace(layout, text, name), &TouchButton::clicked, this, [this, path] { showFolder(path); });
    };
    addFolder(tr("Home"), QStringLiteral("placeHome"), QDir::homePath());
    addFolder(tr("Computer"), QStringLiteral("placeRoot"), QDir::rootPath());
    for (int place = 0; place < mostVolumes; ++place) {
        volumes.append(addPlace(layout, QString(), QStringLiteral("placeVolume%1").arg(place)));
        connect(volumes.last(), &TouchButton::clicked, this, [this, place] { showFolder(volumeFolders.at(place)); });
    }
    sample = addPlace(layout, tr("Sample field"), QStringLiteral("placeSample"));
    connect(sample, &TouchButton::clicked, this, [this] { Q_EMIT fileChosen(samplePath); });
    offerVolumes({});
    layout->addStretch();
    up = addPlace(layout, tr("Folder up"), QStringLiteral("folderUp"));
    connect(up, &TouchButton::clicked, this, [this] {
        const QString left = folder;
        QDir parent(folder);
        parent.cdUp();
        spots[headingOf(parent.absolutePath())] = {left, 0, left};
        showFolder(parent.absolutePath());
    });
    return places;
}

QWidget *FilePage::makeRows()
{
    auto *list = new QWidget(this);
    auto *layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    emptyText->setFont(Theme::font(titlePixels));
    emptyText->setWordWrap(true);
    layout->addWidget(emptyText);
    for (int place = 0; place < rowsPerPage; ++place)
        layout->addWidget(makeRow(place));
    layout->addStretch();
    return list;
}

QWidget *FilePage::makeRow(int place)
{
    auto *pair = new QWidget(this);
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin / 2);
    auto *row = new ListRow(pair);
    row->setObjectName(QStringLiteral("fileRow%1").arg(place));
    row->setFixedHeight(row->sizeHint().height());
    row->setCheckable(true);
    auto *closer = new TouchButton(tr("Close"), pair);
    closer->setObjectName(QStringLiteral("fileClose%1").arg(place));
    closer->setFixedSize(closeWidth, Theme::touchTarget);
    layout->addWidget(row, 1);
    layout->addWidget(closer);
    rows.append(row);
    closers.append(closer);
    connect(row, &ListRow::clicked, this, [this, place] { choose(pages->first() + place); });
    connect(closer, &TouchButton::clicked, this,
            [this, place] { Q_EMIT closeWanted(entries.at(pages->first() + place).group); });
    return pair;
}

void FilePage::showFirst()
{
    if (!files.folder().isEmpty())
        showFolder(files.folder());
    else if (!files.paths().isEmpty())
        showRecent();
    else
        showFolder(QDir::homePath());
}

void FilePage::showAgain()
{
    if (shown == Place::Recent && files.paths().isEmpty())
        showFirst();
    else if (shown == Place::Recent)
        showRecent();
}

void FilePage::focusChosen()
{
    const auto chosen = std::find_if(rows.begin(), rows.end(), [](const ListRow *row) {
        return row->isVisible() && row->isEnabled() && row->isChecked();
    });
    if (chosen != rows.end())
        (*chosen)->setFocus();
}

void FilePage::offerSample(const QString &path)
{
    samplePath = path;
    sample->setVisible(volumeFolders.size() < mostVolumes && QFileInfo(path).isFile());
}

void FilePage::offerVolumes(const QStringList &folders)
{
    volumeFolders = folders.mid(qMax(0, folders.size() - mostVolumes));
    for (int place = 0; place < mostVolumes; ++place) {
        volumes.at(place)->setText(QDir(volumeFolders.value(place)).dirName());
        volumes.at(place)->setVisible(place < volumeFolders.size());
    }
    offerSample(samplePath);
}

void FilePage::showRecent()
{
    folder.clear();
    shown = Place::Recent;
    show(tr("Recent files"), FolderListing::ofFiles(files.paths()), tr("No prescription was opened here before."));
}

void FilePage::showOpen()
{
    folder.clear();
    shown = Place::Open;
    show(tr("Opened prescriptions"), OpenedFiles::of(*machine), tr("No prescription is open."));
}

void FilePage::followMaps()
{
    const int count = machine->backend()->maps().size();
    open->setNote(count == 1 ? tr("1 file") : tr("%1 files").arg(ShownNumber::text(count)));
    if (shown == Place::Open)
        showOpen();
}

void FilePage::showFolder(const QString &path)
{
    const bool isReadable = QDir(path).isReadable();
    listFolder(path, isReadable ? tr("Nothing in this folder can be opened.") : tr("This folder cannot be read."));
}

void FilePage::showRecords(const QString &path)
{
    listFolder(path, tr("No drive was recorded yet. \"Record\" records what the machine does from then on."));
}

void FilePage::listFolder(const QString &path, const QString &whenEmpty)
{
    folder = path;
    shown = Place::Folder;
    show(headingOf(path), FolderListing::of(path), whenEmpty);
}

void FilePage::show(const QString &newHeading, const QList<FileEntry> &newEntries, const QString &whenEmpty)
{
    heading = newHeading;
    title->setText(heading);
    entries = newEntries;
    // What was closed stays closed.
    close->setText(shown == Place::Open ? tr("Done") : tr("Cancel"));
    recent->setChecked(shown == Place::Recent);
    open->setChecked(shown == Place::Open);
    up->setEnabled(!folder.isEmpty() && !QDir(folder).isRoot());
    emptyText->setText(whenEmpty);
    emptyText->setVisible(entries.isEmpty());
    pages->setItems(entries.size(), rowsPerPage);
    const Spot spot = spots.value(heading);
    const auto left = std::find_if(entries.begin(), entries.end(),
                                   [&spot](const FileEntry &entry) { return entry.path == spot.path; });
    pages->showItem(left != entries.end() ? int(left - entries.begin()) : spot.index);
    showPage();
}

void FilePage::turnPage()
{
    Spot &spot = spots[heading];
    spot.index = pages->first();
    spot.path = entries.at(spot.index).path;
    showPage();
}

void FilePage::showPage()
{
    for (int place = 0; place < rows.size(); ++place) {
        const int index = pages->first() + place;
        rows.at(place)->setVisible(index < entries.size());
        closers.at(place)->setVisible(index < entries.size() && !entries.at(index).group.isEmpty());
        if (index < entries.size())
            fill(place, entries.at(index));
    }
}

void FilePage::fill(int place, const FileEntry &entry)
{
    ListRow *row = rows.at(place);
    row->setText(entry.name);
    row->setNotes(entry.isThere ? (entry.note.isEmpty() ? QStringList() : QStringList(entry.note))
                                : QStringList(tr("is no longer there")));
    row->setEnabled(entry.isThere);
    row->setChecked(entry.path == spots.value(heading).chosen);
    row->setSymbol(entry.isFolder ? Symbols::folder() : Symbols::file());
    closers.at(place)->setAccessibleName(tr("Close %1").arg(row->text()));
}

void FilePage::choose(int index)
{
    // A copy: showing another folder replaces the entries.
    const FileEntry chosen = entries.at(index);
    spots[heading] = {chosen.path, index, chosen.path};
    showPage();
    if (chosen.isFolder) {
        showFolder(chosen.path);
        return;
    }
    // "Replay" leads to the tracks.
    if (shown == Place::Folder && !FolderListing::isTrack(chosen.path))
        files.setFolder(QFileInfo(chosen.path).path());
    Q_EMIT fileChosen(chosen.path);
}
