#pragma once

#include <string>
#include <string_view>

#include "pdf/font_metrics.h"

namespace zephon {

// The X that the next text takes if it names none: a place given, or the end of the last text. Few callers
// ask, so the text is kept and measured only then.
class CurrentX {
 public:
  void set(double x) {
    x_ = x;
    bytes_.clear();
  }
  // The end of a text that begins at x. Without metrics it has no width; else they must outlive this.
  void setEnd(double x, std::string_view bytes, const FontMetrics* metrics, double size) {
    x_ = x;
    bytes_ = metrics ? bytes : std::string_view();
    metrics_ = metrics;
    size_ = size;
  }
  // The text's width is points, and is added to user units all the same.
  double get() const { return bytes_.empty() ? x_ : x_ + stringWidth(*metrics_, bytes_, size_); }

 private:
  double x_ = 0;
  std::string bytes_;
  const FontMetrics* metrics_ = nullptr;
  double size_ = 0;
};

}  // namespace zephon
