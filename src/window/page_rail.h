#pragma once

#include <QWidget>

#include "form/main.h"

namespace zephon {

// The page buttons from top to bottom, help, save and expert analysis below them. The buttons grow with the
// height that there is, from a line of text to a drawing over its word.
class PageRail : public QWidget {
 public:
  PageRail(FrameElements& frame, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephon
