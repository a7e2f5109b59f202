#pragma once

#include <thread>

namespace trimlog {

/// Reads the machine's list of fonts beside everything else that a start does, being its longest single step: the first
/// text on the screen finds it ready. Where there is no such list nothing happens. To be made first in main().
class FontWarmth {
 public:
  FontWarmth();
  ~FontWarmth();
  FontWarmth(const FontWarmth &) = delete;
  FontWarmth &operator=(const FontWarmth &) = delete;

 private:
  std::thread reader_;
};

}  // namespace trimlog
