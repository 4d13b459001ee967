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

/// The files that are open, those that were opened last, and the folders with what may be opened.
class FilePage : public QWidget {
    Q_OBJECT

public:
    /// Both are not owned and outlive the page. `recent` also keeps the folder that a file is taken from.
    FilePage(const Machine *machine, RecentFiles &recent, QWidget *parent = nullptr);

    /// The folder used last, else the recent files, else what is at home.
    void showFirst();
    /// What was shown when a file was taken.
    void showAgain();
    /// Gives the keyboard to the entry that was chosen last, where it is seen.
    void focusChosen();
    /// A file that is a place of its own, for who has none yet; none where it is not there.
    void offerSample(const QString &path);
    Pager *pager() const { return pages; }

Q_SIGNALS:
    void fileChosen(const QString &path);
    void closeWanted(const QString &group);
    void left();

private:
    enum class Place { Recent, Open, Folder };

    /// Where a list was left.
    struct Spot {
        QString path;   ///< Of the entry that was chosen, or the first one of the page that was turned to.
        int index = 0;  ///< Its place in the list then.
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
    void followMaps();
    void show(const QString &heading, const QList<FileEntry> &newEntries, const QString &whenEmpty);
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
    QList<ListRow *> rows;
    QList<TouchButton *> closers; ///< One beside each row.
    Pager *pages;
    QList<FileEntry> entries;
    Place shown = Place::Recent;
    QString samplePath;
    bool hasRoom = true; ///< For the sample.
    /// Empty while no folder is shown.
    QString folder;
    QHash<QString, Spot> spots; ///< By what stands over the list.
};
