#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

/// A text as painted: its colour, and the colour below it where the contrast is least.
struct PaintedText {
    QString text;
    QColor color;
    QColor ground;

    double contrast() const;
};

/// The texts that the widget and its children write when it paints itself over `backdrop`.
QList<PaintedText> paintedContrasts(QWidget &widget, const QColor &backdrop);
