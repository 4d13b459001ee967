#pragma once

#include <QPixmap>
#include <QString>

class QPainter;

/// An image of the image folder. Where drawing enlarges it, as on a screen with more pixels than the terminal's, the
/// finer image beside it with "@2x" behind its name is drawn, if there is one; otherwise the image itself. Its size is
/// always that of the image itself.
class SharpImage {
public:
    /// Null when the file cannot be loaded.
    explicit SharpImage(const QString &path = QString());

    bool isNull() const { return image.isNull(); }
    /// Pixels of the terminal.
    QSize size() const { return image.size(); }
    const QPixmap &plain() const { return image; }
    /// What is to be drawn at the painter's origin; as large as size() by its device-pixel ratio.
    const QPixmap &forPainter(const QPainter &painter) const;

private:
    QPixmap image;
    QPixmap finer;
};
