#pragma once

#include <initializer_list>
#include <vector>

#include "screen/element.h"

namespace zephon {

// Elements that can't be used for as long as this stands; afterwards those can that could before.
class ElementsHeld {
 public:
  ElementsHeld(std::initializer_list<Element*> elements) {
    for (Element* element : elements) {
      if (!element->enabled()) continue;
      element->setEnabled(false);
      held_.push_back(element);
    }
  }
  ~ElementsHeld() {
    for (Element* element : held_) element->setEnabled(true);
  }
  ElementsHeld(const ElementsHeld&) = delete;
  ElementsHeld& operator=(const ElementsHeld&) = delete;

 private:
  std::vector<Element*> held_;
};

}  // namespace zephon
