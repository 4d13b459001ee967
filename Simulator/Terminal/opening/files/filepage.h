#pragma once

#include "folderlisting.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class Caption;
class ListRow;
class Pager;
class QLabel;
class QVBoxLayout;
class TouchButton;

/// The files that are open, those that were opened last, and the folders with what may be opened.
class FilePage : public QWidget {
    Q_OBJECT

public:
    explicit FilePage(QWidget *parent = nullptr);

    enum class Place { Recent, Open, Folder };

    void showRecent(const QStringList &paths);
    /// `files` have groups, by which they are closed.
    void showOpen(const QList<FileEntry> &files);
    void showFolder(const QString &folder);
    Place place() const { return shown; }
    /// Says how many files are open.
    void setOpenCount(int count);
    Pager *pager() const { return pages; }

Q_SIGNALS:
    void recentWanted();
    void openFilesWanted();
    void fileChosen(const QString &path);
    void closeWanted(const QString &group);
    void left();

private:
    QWidget *makePlaces();
    TouchButton *addPlace(QVBoxLayout *layout, const QString &text, const QString &name);
    QWidget *makeRows();
    QWidget *makeRow(int place);
    void fill(int place, const FileEntry &entry);
    void show(const QString &heading, const QList<FileEntry> &newEntries, const QString &whenEmpty);
    void showPage();
    void choose(const FileEntry &entry);

    Caption *title;
    TouchButton *close;
    QLabel *emptyText;
    TouchButton *recent = nullptr;
    TouchButton *open = nullptr;
    TouchButton *up = nullptr;
    QList<ListRow *> rows;
    QList<TouchButton *> closers; ///< One beside each row.
    Pager *pages;
    QList<FileEntry> entries;
    Place shown = Place::Recent;
    /// Empty while no folder is shown.
    QString folder;
};
