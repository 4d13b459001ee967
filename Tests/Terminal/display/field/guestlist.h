#pragma once

#include "Framework/object3d.h"
#include "Framework/uigraphicslist.h"

/// A graphics list of a test's own drawables, which it owns.
class GuestList : public UiGraphicsList {
public:
    explicit GuestList(const QList<Object3D *> &guests)
        : UiGraphicsList(nullptr)
    {
        objects = guests;
    }
    ~GuestList() override { qDeleteAll(objects); }
    QString getPointDescription(QVector3D) override { return {}; }
    void init() override
    {
        for (Object3D *object : qAsConst(objects))
            object->init();
    }
};
