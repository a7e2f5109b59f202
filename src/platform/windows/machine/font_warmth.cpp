#include "platform/windows/machine/font_warmth.h"

#include <QLibrary>

namespace trimlog {

FontWarmth::FontWarmth() {
  // Looked up here, not in the thread: the first thread that touches Qt is taken for the main one, and if that is not
  // the one that makes the application, events wait for it for ever.
  const auto FcInit = reinterpret_cast<int (*)()>(QLibrary::resolve(QStringLiteral("fontconfig"), 1, "FcInit"));
  if (FcInit) reader_ = std::thread(FcInit);
}

FontWarmth::~FontWarmth() {
  if (reader_.joinable()) reader_.join();
}

}  // namespace trimlog
