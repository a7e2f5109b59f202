#pragma once

namespace trimlog {

/// Window geometry and printed pages are kept in twips, 1,440 to the inch. On screen an inch is 96 device-independent
/// pixels, so that a place kept on one display means the same on a finer one.
inline constexpr int twipsPerInch = 1440;
inline constexpr int twipsPerPixel = twipsPerInch / 96;

constexpr int PixelsFromTwips(int twips) { return twips / twipsPerPixel; }
constexpr int TwipsFromPixels(int pixels) { return pixels * twipsPerPixel; }

}  // namespace trimlog
