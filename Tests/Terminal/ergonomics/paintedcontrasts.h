#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

/// A text as it was painted: its colour, and that of what lay under it where the contrast is least.
struct PaintedText {
    QString text;
    QColor color;
    QColor ground;

    double contrast() const;
};

/// What the widget, with its children, writes when it paints itself over `backdrop`.
QList<PaintedText> paintedContrasts(QWidget &widget, const QColor &backdrop);
