#pragma once

#include "screen/element.h"

namespace zephon {

// A list of which one entry is chosen; index -1 is none. `onClick` runs on every change of the index.
class Combo : public Element {
 public:
  using Element::Element;

  std::function<void()> onClick;

  const std::vector<std::string>& items() const { return items_; }
  int index() const { return index_; }
  std::string text() const {
    return index_ < 0 ? std::string() : items_.at(static_cast<std::size_t>(index_));
  }
  void setItems(std::vector<std::string> items) {
    const bool chosen = index_ != -1;
    index_ = -1;
    if (!write(items_, std::move(items)) && chosen) changed();
  }
  void setIndex(int index) {
    if (index < -1 || index >= static_cast<int>(items_.size())) return;
    if (write(index_, index) && onClick) onClick();
  }
  // What a user does.
  void choose(int index) {
    if (enabled() && visible()) setIndex(index);
  }

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

}  // namespace zephon
