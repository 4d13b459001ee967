#pragma once

#include <QStringList>

class QWidget;

/// What a screen reader is told of the widget: names and descriptions of all that is visible, children included.
QStringList heardTexts(QWidget &widget);
