#pragma once

#include "Framework/frameworkglobal.h"

#include <QObject>
#include <QScopedPointer>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

class DataBroker;
class DataBrokerGroup;
class DataBrokerPrivate;

/// The registry of named groups that the host and its plug-ins publish, and the terminal's settings.
/// Group and property names are Latin-1. The registry may be used from any thread; signals come in the thread of the
/// caller that publishes or removes.
class FRAMEWORK_EXPORT DataBroker : public QObject {
    Q_OBJECT

public:
    /// `iniFile` holds the terminal's settings (INI; empty: no settings); `displaySize` is in pixels.
    explicit DataBroker(const QString &iniFile = QString(), const QSize &displaySize = QSize(1280, 800),
                        QObject *parent = nullptr);
    /// Deletes every group that was ever published.
    ~DataBroker() override;

    /// Names of the groups that match `pattern`: a name, or the start of a name followed by "*".
    /// `inPublicationOrder`: oldest first, else by name. `includeRemoved` also lists groups that are gone.
    QStringList findGroup(QString pattern, bool inPublicationOrder, bool includeRemoved) const;
    /// The published group of that name, or null; `reportMissing` writes one debug line when it is null.
    /// The broker keeps the group alive until it is itself destroyed.
    DataBrokerGroup *getGroup(QString name, bool reportMissing) const;

    /// Access by name: DataBrokerGroup's codes, or ErrUnknownGroup. A failed read leaves `value` as it was.
    int getProperty(const char *group, const char *property, QVariant &value) const;
    int setProperty(const char *group, const char *property, QVariant value);

    /// Reads a terminal setting, named by dotted path ("main.general.font" is key "font" of INI section
    /// "main.general"). When it is not set, `value` becomes `defaultValue` if `useDefault`, else stays as it was.
    /// Success or ErrUnknownProperty.
    int getIniSetting(const char *setting, QVariant &value, QVariant defaultValue, bool useDefault) const;
    /// Size of the terminal's display, pixels.
    QSize getSize() const;

    // For the host and for back-ends.

    /// Publishes `group` under its name and takes ownership of it. ErrNameTaken when the name is in use or the group
    /// published already, ErrGroupRemoved for one that was taken out before, ErrUnknownGroup for null; the caller then
    /// keeps ownership.
    int publishGroup(DataBrokerGroup *group);
    /// Takes the group out: it is marked as removed, announces it, and stays alive until the broker is destroyed or
    /// whoever published it deletes it. Success or ErrUnknownGroup.
    int removeGroup(const QString &name);

Q_SIGNALS:
    void groupPublished(const QString &name);
    void groupRemoved(const QString &name);

private:
    QScopedPointer<DataBrokerPrivate> d;
};
