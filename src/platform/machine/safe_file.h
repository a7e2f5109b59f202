#pragma once

#include <QString>
#include <functional>

namespace trimlog {

/// Writes a file so that a full disk, a failure or a power cut leaves either what stood there or the whole new file:
/// the work writes a file beside it, which is brought to the disk, checked and only then renamed to the path.
///
/// `write` makes the file at the path that it is given and throws an Error when it cannot; `check`, where there is one,
/// reads it again and says whether it is whole. Throws what they throw, diskFull or cannotOpen for what the machine
/// refuses and for a file that is empty or not whole; nothing is left beside the path then. A file that stood there
/// keeps its rights; a new one gets the usual ones.
void WriteSafely(const QString &path, const std::function<void(const QString &beside)> &write,
                 const std::function<bool(const QString &beside)> &check = {});

/// The same for content that is at hand.
void WriteSafely(const QString &path, const QByteArray &content);

/// Brings to the disk which files a folder holds, so that a renamed one lasts.
void FlushFolder(const QString &folder);

}  // namespace trimlog
