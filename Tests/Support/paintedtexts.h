#pragma once

#include <QStringList>

class QWidget;

/// The texts that the widget writes when it paints itself, in that order; children included.
QStringList paintedTexts(QWidget &widget);
