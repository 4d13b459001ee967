#pragma once

#include "drivepath.h"

/// The shortest path from one pose to another, forwards, on arcs of no less than `radius` metres (above 0): two or
/// three of them, or one on either side of a straight line (Dubins 1957).
DrivePath dubinsPath(const Pose &from, const Pose &to, double radius);
