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

/// The files that were opened last, and the folders with what may be opened.
class FilePage : public QWidget {
    Q_OBJECT

public:
    explicit FilePage(QWidget *parent = nullptr);

    void showRecent(const QStringList &paths);
    void showFolder(const QString &folder);
    bool showsFolder() const { return !folder.isEmpty(); }
    Pager *pager() const { return pages; }

Q_SIGNALS:
    void recentWanted();
    void fileChosen(const QString &path);
    void left();

private:
    QWidget *makePlaces();
    TouchButton *addPlace(QVBoxLayout *layout, const QString &text, const QString &name);
    QWidget *makeRows();
    void show(const QString &heading, const QList<FileEntry> &newEntries, const QString &whenEmpty);
    void showPage();
    void choose(const FileEntry &entry);

    Caption *title;
    QLabel *emptyText;
    TouchButton *recent = nullptr;
    TouchButton *up = nullptr;
    QList<ListRow *> rows;
    Pager *pages;
    QList<FileEntry> entries;
    /// Empty while the recent files are shown.
    QString folder;
};
