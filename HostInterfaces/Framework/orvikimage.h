#pragma once

#include "Framework/frameworkglobal.h"

#include <QDir>
#include <QPoint>
#include <QScopedPointer>
#include <QString>
#include <QWidget>

class OrvikImagePrivate;

/// Shows one image, at the image's size; an image that cannot be loaded leaves the widget empty, size 0 × 0.
class FRAMEWORK_EXPORT OrvikImage : public QWidget {
    Q_OBJECT

public:
    OrvikImage(int id, QDir imageDir, QString image, QPoint position, QWidget *parent);
    ~OrvikImage() override;

    int id() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QScopedPointer<OrvikImagePrivate> d;
};
