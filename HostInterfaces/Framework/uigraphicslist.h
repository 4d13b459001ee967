#pragma once

#include "Framework/frameworkglobal.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVector3D>

class DataBroker;
class Object3D;

/// The drawables that a plug-in adds to the host's 3D field view, and what it has to say about a point of it.
class FRAMEWORK_EXPORT UiGraphicsList : public QObject {
    Q_OBJECT

public:
    /// `broker` is not owned and outlives the list.
    explicit UiGraphicsList(DataBroker *broker, QObject *parent = nullptr);
    ~UiGraphicsList() override;

    /// Text for the point of the field's local plane (metres: x east, y north, z up); empty when there is none.
    virtual QString getPointDescription(QVector3D point) = 0;
    /// Called after the list is installed, with the view's OpenGL context current, and again after a lost context has
    /// been replaced.
    virtual void init() = 0;
    /// The drawables; the list keeps owning them. Never null.
    virtual QList<Object3D *> *drawables() { return &objects; }

protected:
    QList<Object3D *> objects;
    DataBroker *broker;
};
