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

    /// The folder in which a prescription was last found; empty if it is gone, or there was none.
    QString folder() const;
    void setFolder(const QString &path);

private:
    QSettings &settings;
};
