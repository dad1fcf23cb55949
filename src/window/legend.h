#pragma once

#include <QString>
#include <functional>
#include <string>

#include "screen/label.h"
#include "window/words.h"

namespace zephon {

QString toQt(const std::string& text);
std::string fromQt(const QString& text);

// Runs `watcher` after each change of the element, until `owner` is gone.
void watchWhile(QObject& owner, Element& element, const std::function<void()>& watcher);

// What a field or a group is called: a word in the language in use, a label whose caption stands beside it,
// or a text that is the same in every language.
struct Legend {
  Legend(QString fixed) : text(std::move(fixed)) {}  // NOLINT(google-explicit-constructor)
  Legend(const Word& spoken) : word(spoken) {}       // NOLINT(google-explicit-constructor)
  Legend(Label& beside) : label(&beside) {}          // NOLINT(google-explicit-constructor)
  QString text;
  Word word{0, nullptr};
  Label* label = nullptr;
  QString now() const;
};

// Runs `show` now and after each change of the legend, until `owner` is gone.
void followLegend(QObject& owner, const Legend& legend, const std::function<void()>& show);

}  // namespace zephon
