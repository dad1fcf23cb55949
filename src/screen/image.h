#pragma once

#include "screen/element.h"

namespace zephon {

// A picture from a file; an empty path is no picture.
class Image : public Element {
 public:
  using Element::Element;
  const std::string& path() const { return path_; }
  void setPath(std::string path) { write(path_, std::move(path)); }

 private:
  std::string path_;
};

}  // namespace zephon
