#pragma once

/// Looks that no desktop setting changes: the display stands for a panel of 1280 × 800 pixels with light pages, on
/// which captions are sized in points beside controls that are placed in pixels.
namespace OwnLooks {

/// Makes a point 4/3 pixels on every screen; to be called before there is an application. Returns the scale of the
/// display's first size that QT_SCALE_FACTOR asks for; 0 where it asks for none.
double fixResolution();

/// Gives the application its style and its light palette.
void apply();

} // namespace OwnLooks
