#pragma once

#include <QString>

namespace trimlog {

/// WellDone.wav, the sound of a reward: a soft rising chime of three notes with slow decay, 44.1 kHz, 16 bits, mono.
void WriteChime(const QString &path);

}  // namespace trimlog
