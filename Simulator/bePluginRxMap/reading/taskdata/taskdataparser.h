#pragma once

#include "taskdata.h"

#include <QSet>
#include <QString>
#include <QXmlStreamReader>

class TaskDataFolder;

/// Reads TASKDATA.XML and the files that it refers to (XFR). Tasks and fields with unreadable parts are kept, together
/// with the problem: others may be fine.
class TaskDataParser {
public:
    /// `folder` is not owned and outlives this.
    explicit TaskDataParser(const TaskDataFolder &folder);

    /// False when the XML cannot be read; the reason, with file and line, is then in error().
    bool parse(TaskData &data);
    const QString &error() const { return reason; }

private:
    bool fail(const QString &text);
    bool parseFile(const QString &name);
    /// "TASKDATA.XML, line 7".
    QString place() const;
    void readVersion();
    bool readTopElement();
    bool readReference();
    void readTask();
    void readZone(Task &task);
    void readGrid(Task &task);
    void readValue(TreatmentZone &zone, QString &problem);
    void readField();
    std::vector<TaskRing> readPolygon(QString &problem);
    void readRing(std::vector<TaskRing> &rings, QString &problem);
    void readPoint(TaskRing &ring, QString &problem);
    void readPresentation();

    QString text(const char *attribute) const;
    /// An attribute of the present element. NaN, with `problem` set unless it is set already, when the attribute is not
    /// a number from `least` to `most`.
    double number(const char *attribute, double least, double most, QString &problem) const;
    /// The same for whole numbers; `otherwise` where the attribute is missing.
    qint64 whole(const char *attribute, qint64 least, qint64 most, qint64 otherwise, QString &problem) const;
    void note(const QString &what, QString &problem) const;

    const TaskDataFolder &folder;
    TaskData *data = nullptr;
    QString reason;
    /// Names of the files that are or were read.
    QSet<QString> files;
    qint64 bytesLeft;
    /// Reader of the present file.
    QXmlStreamReader *xml = nullptr;
    QString file;
};
