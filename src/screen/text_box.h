#pragma once

#include "screen/colour.h"
#include "screen/element.h"

namespace zephon {

class TextBox : public Element {
 public:
  TextBox(ElementList& list, std::string name, std::string text = {}, int maxLength = 0,
          bool readOnly = false)
      : Element(list, std::move(name)), text_(std::move(text)), maxLength_(maxLength), readOnly_(readOnly) {}

  std::function<void()> onClick;

  const std::string& text() const { return text_; }
  void setText(std::string text) { write(text_, std::move(text)); }
  Colour colour() const { return colour_; }
  void setColour(Colour colour) { write(colour_, colour); }
  int maxLength() const { return maxLength_; }  // characters a user may type; 0 is no limit
  bool readOnly() const { return readOnly_; }
  bool stale() const { return stale_; }  // what it shows is of before the last failure
  void setStale(bool on) { write(stale_, on); }

  // What a user does.
  void type(std::string text) {
    if (enabled() && visible() && !readOnly_) setText(std::move(text));
  }
  void click() {
    if (enabled() && visible() && onClick) onClick();
  }

 private:
  std::string text_;
  int maxLength_;
  bool readOnly_;
  Colour colour_ = kBlack;
  bool stale_ = false;
};

}  // namespace zephon
