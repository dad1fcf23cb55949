#pragma once

#include <QWidget>

#include "form/main.h"

namespace zephon {

// The program's name, the model on the line with its badge, and the banner.
class Header : public QWidget {
 public:
  Header(FrameElements& frame, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephon
