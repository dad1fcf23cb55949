#include "window/words.h"

#include <QWidget>

#include "window/legend.h"

namespace zephon {
namespace {

// The dictionary as an element of no form, so that it is watched as any other one.
class Spoken : public Element {
 public:
  using Element::Element;
  const std::vector<std::string>& dict() const { return dict_; }
  void setDict(const std::vector<std::string>& dict) { write(dict_, dict); }
  void sayAnew() { write(times_, times_ + 1); }

 private:
  std::vector<std::string> dict_;
  unsigned times_ = 0;
};

Spoken& spoken() {
  static ElementList none;
  static Spoken one(none, "spoken");
  return one;
}

}  // namespace

QString say(const Word& word) {
  return toQt(wordText(spoken().dict(), word));
}

const std::vector<std::string>& spokenDict() {
  return spoken().dict();
}

void speak(const std::vector<std::string>& dict) {
  spoken().setDict(dict);
}

void sayAnew() {
  spoken().sayAnew();
}

void whileSpoken(QObject& owner, const std::function<void()>& show) {
  watchWhile(owner, spoken(), show);
  show();
}

void nameBy(QWidget& widget, const Word& word) {
  whileSpoken(widget, [&widget, word] { widget.setAccessibleName(say(word)); });
}

}  // namespace zephon
