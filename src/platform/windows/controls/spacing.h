#pragma once

/// The distances between and around controls, the same in every window. What a layout has by itself (`around` at its
/// edges, `between` within) comes from the program's style; the others are given where they are meant.
namespace trimlog::spacing {

inline constexpr int tight = 4;    ///< in bars, and between what belongs together
inline constexpr int between = 8;  ///< from one control to the next
inline constexpr int around = 12;  ///< at the edges of a page, a dialog or a group
inline constexpr int apart = 16;   ///< between groups that stand side by side
inline constexpr int roomy = 20;   ///< around what has a window to itself: a step of the wizard, a congratulation

}  // namespace trimlog::spacing
