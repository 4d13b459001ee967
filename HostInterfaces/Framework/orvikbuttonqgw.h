#pragma once

#include "Framework/frameworkglobal.h"

#include <QDir>
#include <QGraphicsWidget>
#include <QPointF>
#include <QScopedPointer>
#include <QStringList>

class OrvikButtonQgwPrivate;

/// The touch button of the guidance page: shows one of several images at the size of the first. A touch released
/// outside the button is cancelled and reports nothing.
class FRAMEWORK_EXPORT OrvikButtonQgw : public QGraphicsWidget {
    Q_OBJECT

public:
    /// `images` are file names in `imageDir`, shown by index.
    OrvikButtonQgw(int id, QDir imageDir, QStringList images, QPointF position, QGraphicsWidget *parent);
    ~OrvikButtonQgw() override;

    int id() const;
    /// An index outside the image list is ignored.
    void setCurrentImage(int index);
    int currentImage() const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

Q_SIGNALS:
    void buttonPressed(int id);
    void buttonReleased(int id);
    /// The button was held for the long-touch time; buttonReleased does not follow. A button on which nobody waits for
    /// this takes a long hold as a touch like any other.
    void longTouch(int id);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;

private:
    QScopedPointer<OrvikButtonQgwPrivate> d;
};
