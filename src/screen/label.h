#pragma once

#include "screen/colour.h"
#include "screen/element.h"

namespace zephon {

class Label : public Element {
 public:
  Label(ElementList& list, std::string name, std::string caption = {})
      : Element(list, std::move(name)), caption_(std::move(caption)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string text) { write(caption_, std::move(text)); }
  Colour colour() const { return colour_; }
  void setColour(Colour colour) { write(colour_, colour); }
  // What the label shows is of before the last failure.
  bool stale() const { return stale_; }
  void setStale(bool on) { write(stale_, on); }
  // The font's character set, for a currency sign.
  int characterSet() const { return characterSet_; }
  void setCharacterSet(int set) { write(characterSet_, set); }

 private:
  std::string caption_;
  Colour colour_ = kBlack;
  bool stale_ = false;
  int characterSet_ = 1;
};

}  // namespace zephon
