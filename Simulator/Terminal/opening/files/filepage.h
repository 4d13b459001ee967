#pragma once

#include "folderlisting.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <QWidget>

class Caption;
class ListRow;
class Machine;
class Pager;
class QLabel;
class QVBoxLayout;
class RecentFiles;
class TouchButton;

/// The files that are open, those opened last, and folders with what may be opened.
class FilePage : public QWidget {
    Q_OBJECT

public:
    /// Both are not owned and outlive the page. `recent` also keeps the folder that a prescription is taken from.
    FilePage(const Machine *machine, RecentFiles &recent, QWidget *parent = nullptr);

    /// Shows the folder used last, else the recent files, else the home folder.
    void showFirst();
    /// Shows what may be opened in the folder where drives are recorded; it may not exist yet.
    void showRecords(const QString &folder);
    /// Shows what was shown when a file was taken.
    void showAgain();
    /// Gives the keyboard to the entry that was chosen last, if it is visible.
    void focusChosen();
    /// Offers a sample file, for an operator without files, in a place of its own; nothing if the file does not exist.
    void offerSample(const QString &path);
    /// Offers these folders as places of their own, replacing those offered before. If there is no room for all, the
    /// last ones are offered.
    void offerVolumes(const QStringList &folders);
    Pager *pager() const { return pages; }

Q_SIGNALS:
    void fileChosen(const QString &path);
    void closeWanted(const QString &group);
    void left();

private:
    enum class Place { Recent, Open, Folder };

    /// Where the operator left a list.
    struct Spot {
        QString path;   ///< Path of the entry that was chosen, or of the first one on the page turned to.
        int index = 0;  ///< Its place in the list at that time.
        QString chosen; ///< The entry that was chosen last; marked.
    };

    QWidget *makePlaces();
    TouchButton *addPlace(QVBoxLayout *layout, const QString &text, const QString &name);
    QWidget *makeRows();
    QWidget *makeRow(int place);
    void fill(int place, const FileEntry &entry);
    void showRecent();
    void showOpen();
    void showFolder(const QString &path);
    void listFolder(const QString &path, const QString &whenEmpty);
    void followMaps();
    void show(const QString &newHeading, const QList<FileEntry> &newEntries, const QString &whenEmpty);
    void turnPage();
    void showPage();
    void choose(int index);

    const Machine *machine;
    RecentFiles &files;
    Caption *title;
    TouchButton *close;
    QLabel *emptyText;
    TouchButton *recent = nullptr;
    TouchButton *open = nullptr;
    TouchButton *sample = nullptr;
    TouchButton *up = nullptr;
    QList<TouchButton *> volumes;
    QStringList volumeFolders; ///< One for each visible button.
    QList<ListRow *> rows;
    QList<TouchButton *> closers; ///< One beside each row.
    Pager *pages;
    QList<FileEntry> entries;
    Place shown = Place::Recent;
    QString samplePath;
    QString heading; ///< Over the list, as it is.
    /// Empty while no folder is shown.
    QString folder;
    QHash<QString, Spot> spots; ///< By the heading over the list.
};
