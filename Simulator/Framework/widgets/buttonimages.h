#pragma once

#include "sharpimage.h"

#include <QDir>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QVector>

class QPainter;

/// The images of a touch button, one of which is shown. An image that cannot be loaded leaves the button empty.
class ButtonImages {
public:
    enum class Look { Normal, Pressed, Dimmed };

    /// `files` are file names in `folder`.
    ButtonImages(const QDir &folder, const QStringList &files);

    /// Size of the first image, pixels; 0 × 0 without one.
    QSize size() const;
    /// Where the first image is not transparent, as one rectangle.
    QRect drawnArea() const;
    int current() const;
    /// Whether another image is shown now; an index outside the list is ignored.
    bool setCurrent(int index);
    /// Paints the shown image at the painter's origin.
    void paint(QPainter &painter, Look look) const;

private:
    QVector<SharpImage> images;
    QRect drawn;
    int shown = 0;
};
