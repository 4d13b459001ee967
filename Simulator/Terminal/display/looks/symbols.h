#pragma once

#include <QPainterPath>

/// Pictures for buttons and rows, outlines to be filled, in a square of `side` pixels around (0, 0).
namespace Symbols {

constexpr double side = 32.0;

QPainterPath folder();
/// A sheet with a folded corner.
QPainterPath file();
QPainterPath sun();
QPainterPath moon();
/// Four corners that point outwards, or inwards.
QPainterPath fullScreen();
QPainterPath plainWindow();

} // namespace Symbols
