#pragma once

namespace trimlog {

// The unit systems, as Settings::UomID and the table `uom` number them.
inline constexpr int poundsSystem = 1;     ///< pounds, feet and inches
inline constexpr int kilogramsSystem = 2;  ///< kilograms, metres and centimetres

}  // namespace trimlog
