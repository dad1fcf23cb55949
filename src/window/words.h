#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "form/words.h"

class QObject;
class QWidget;

namespace zephon {

// The window's own words (form/words.def) in the language in use. A caption that an element brings along
// always goes before them.
QString say(const Word& word);

// The dictionary that they are taken from.
const std::vector<std::string>& spokenDict();

// From now on the words are those of this dictionary, English where it has none. All that is said through the
// functions below is said anew.
void speak(const std::vector<std::string>& dict);

// All of that is said anew in the same language: the colours that it is written in have changed.
void sayAnew();

// Runs `show` now and after each change of the language or of the colours, until `owner` is gone.
void whileSpoken(QObject& owner, const std::function<void()>& show);

// The word as the widget's accessible name.
void nameBy(QWidget& widget, const Word& word);

}  // namespace zephon
