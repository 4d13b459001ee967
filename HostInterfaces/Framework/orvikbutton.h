#pragma once

#include "Framework/frameworkglobal.h"

#include <QColor>
#include <QDir>
#include <QFont>
#include <QPoint>
#include <QScopedPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class OrvikButtonPrivate;

/// A touch button that shows one of several images, with texts over it. It has the size of its first image.
/// A touch released outside the button is cancelled and reports nothing.
class FRAMEWORK_EXPORT OrvikButton : public QWidget {
    Q_OBJECT

public:
    /// `images` are file names in `imageDir`, shown by index; `repeats`: buttonReleased comes again and again while
    /// the button is held.
    OrvikButton(int id, QDir imageDir, QStringList images, QPoint position, QWidget *parent, bool repeats);
    ~OrvikButton() override;

    int id() const;
    /// An index outside the image list is ignored.
    void setCurrentImage(int index);
    int currentImage() const;
    /// Whether a disabled button looks disabled (dimmed); off at first.
    void setDisableMode(bool dimmed);
    /// Whether a pressed button is highlighted; on at first.
    void setHighLight(bool highlighted);
    /// Adds or replaces text item `item`, centred on what the first image draws; shrunk, then shortened, to fit its
    /// width.
    void addText(int item, QString text, QColor color, QFont font);
    /// Colour of an existing text item; others are ignored.
    void setTextColor(int item, QColor color);
    /// Text and colour of an item; empty and invalid when there is no such item.
    QString text(int item) const;
    QColor textColor(int item) const;

Q_SIGNALS:
    void buttonPressed(int id);
    void buttonReleased(int id);
    /// The button was held for the long-touch time; buttonReleased does not follow. A button on which nobody waits for
    /// this, or one that repeats, takes a long hold as a touch like any other.
    void longTouch(int id);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QScopedPointer<OrvikButtonPrivate> d;
};
