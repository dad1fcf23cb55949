#pragma once

#include <initializer_list>
#include <vector>

#include "screen/button.h"

namespace zephon {

// Buttons that can't be pressed for as long as this stands; afterwards those can that could before.
class ButtonsHeld {
 public:
  ButtonsHeld(std::initializer_list<Button*> buttons) {
    for (Button* button : buttons) {
      if (!button->enabled()) continue;
      button->setEnabled(false);
      held_.push_back(button);
    }
  }
  ~ButtonsHeld() {
    for (Button* button : held_) button->setEnabled(true);
  }
  ButtonsHeld(const ButtonsHeld&) = delete;
  ButtonsHeld& operator=(const ButtonsHeld&) = delete;

 private:
  std::vector<Button*> held_;
};

}  // namespace zephon
