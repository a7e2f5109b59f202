#pragma once

#include <QSize>

#include "core/session/session.h"

namespace trimlog {

inline constexpr int defaultFrameWidth = 9525;   ///< twips; also the least width
inline constexpr int defaultFrameHeight = 7095;  ///< twips; also the least height
inline constexpr int defaultQuickJournalWidth = 8235;
inline constexpr int defaultQuickJournalHeight = 2760;

enum class WindowGroup { Frame = 1, QuickJournalPosition = 2, QuickJournalSize = 3 };

/// Reads or writes one group of window geometry between the session and the store, in twips. `screen` is the size of
/// the screen in twips; the frame's default place is centred on it. What cannot be read takes its default. The Quick
/// Journal's default position follows the frame's, so the frame is read first.
void WindowPosition(Session &session, bool save, WindowGroup group, const QSize &screen = {});

/// The frame's default place, centred.
WindowPlace DefaultFramePlace(const QSize &screen);
/// The Quick Journal's default place: at the lower right of a frame of default size.
WindowPlace DefaultQuickJournalPlace(const WindowPlace &frame);

}  // namespace trimlog
