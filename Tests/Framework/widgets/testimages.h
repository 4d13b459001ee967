#pragma once

#include <QColor>
#include <QDir>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QTemporaryDir>

/// A test's image directory, with images of one plain colour each.
class TestImages {
public:
    /// Writes `name` and returns it.
    QString add(const QString &name, const QSize &size, const QColor &color)
    {
        QPixmap image(size);
        image.fill(color);
        image.save(directory().filePath(name));
        return name;
    }

    QDir directory() const { return QDir(folder.path()); }

private:
    QTemporaryDir folder;
};
