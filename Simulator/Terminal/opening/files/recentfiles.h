#pragma once

#include <QStringList>

class QSettings;

/// The prescriptions that were opened last, the newest first, each once.
class RecentFiles {
public:
    static constexpr int most = 10;

    /// `settings` is not owned and outlives this.
    explicit RecentFiles(QSettings &settings);

    /// Absolute paths; some of the files may be gone.
    QStringList paths() const;
    void add(const QString &path);

    /// Where a file was looked for last and found; empty where that folder is gone, or there was none.
    QString folder() const;
    void setFolder(const QString &path);

private:
    QSettings &settings;
};
