#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <vector>

/// Task data for the tests to write: the XML, and the files beside it by name.
struct TaskDataSketch {
    QByteArray content; ///< What stands inside the root element.
    int version = 4;
    QMap<QByteArray, QByteArray> files = {};
    QByteArray mainFile = "TASKDATA.XML";

    QByteArray xml() const;
    /// False when a file cannot be written.
    bool write(const QString &folder) const;
    /// Writes an archive of it; `folder` is the folder within the archive, ending in a slash, or empty.
    bool writeArchive(const QString &path, const QByteArray &folder = {}) const;

    /// Elements. Names of attributes follow the standard.
    static QByteArray value(int number, qint64 steps, const QByteArray &attributes = {});
    static QByteArray zone(int code, const QByteArray &content);
    /// A polygon of squares, each given by its south-west corner and side, degrees; all but the first are holes.
    struct Square {
        double longitude;
        double latitude;
        double side;
    };
    static QByteArray polygon(const std::vector<Square> &squares, int kind = 2);
    /// A grid of cells of a thousandth of a degree at 11 E, 48 N.
    static QByteArray grid(int columns, int rows, int type, const QByteArray &attributes = {});
    static QByteArray task(const QByteArray &name, const QByteArray &content, const QByteArray &attributes = {});
    /// The binary file of a grid of type 2.
    static QByteArray steps(const std::vector<qint32> &values);
};
