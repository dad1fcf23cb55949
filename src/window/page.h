#pragma once

#include "form/words.h"

class QVBoxLayout;
class QWidget;

namespace zephon {

class Card;

inline constexpr int kPageMargin = 10;
inline constexpr int kPageGap = 8;

// A page whose content scrolls where the window is too small for it.
struct ScrolledPage {
  QWidget* page = nullptr;
  QWidget* content = nullptr;
};
ScrolledPage scrolledPage(const Word& name, QWidget* parent);

// The ground of a graph or a list, with a column of controls at its right side that scrolls by itself.
struct GraphPage {
  QWidget* page = nullptr;
  Card* ground = nullptr;
  QWidget* controls = nullptr;
  QVBoxLayout* column = nullptr;  // of the controls; it ends in a stretch that follows it
};
GraphPage graphPage(const Word& name, QWidget* parent);

}  // namespace zephon
