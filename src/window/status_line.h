#pragma once

#include <QWidget>

#include "form/main.h"

namespace zephon {

// The link's state in one line, and under it what to do about its last failure while there is one.
class StatusLine : public QWidget {
 public:
  StatusLine(FrameElements& frame, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephon
