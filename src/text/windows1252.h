#pragma once

#include <string>
#include <string_view>

namespace zephon {

// UTF-8 to the one byte a character of files and reports. A character that the code page lacks becomes "?";
// so does a byte that is no UTF-8.
std::string toWindows1252(std::string_view utf8);
// One byte a character to UTF-8. The five bytes that the code page leaves open stand for the control
// characters of the same number, so every byte goes there and back.
std::string fromWindows1252(std::string_view bytes);

// True when the text is well-formed UTF-8.
bool isUtf8(std::string_view text);
// True when it is the same in every code page.
bool isAscii(std::string_view text);

}  // namespace zephon
