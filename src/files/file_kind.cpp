#include "files/file_kind.h"

#include <algorithm>
#include <array>

#include "form/dictionary.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

// Dictionary keys of a kind's texts; 0 for no second one.
struct KindTexts {
  std::array<int, 2> title;
  std::array<int, 2> name;
};

const KindTexts& textsOf(FileKind kind) {
  static constexpr std::array<KindTexts, 5> kTexts = {{{{121, 124}, {121, 124}},
                                                       {{122, 124}, {122, 124}},
                                                       {{145, 0}, {30, 145}},
                                                       {{147, 0}, {30, 147}},
                                                       {{155, 0}, {30, 155}}}};
  return kTexts[static_cast<std::size_t>(kind)];
}

std::string joined(const std::array<int, 2>& keys, std::span<const std::string> dict) {
  const std::string first = dictText(dict, keys[0]);
  return keys[1] == 0 ? first : first + ' ' + dictText(dict, keys[1]);
}

bool isForbidden(char c) {
  return static_cast<unsigned char>(c) < ' ' ||
         std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

}  // namespace

std::string stampDate(const CalendarTime& now) {
  return formatDate(now, "mm/dd/yyyy hh:nn:ss");
}

std::string fileTitle(FileKind kind, std::span<const std::string> dict) {
  return joined(textsOf(kind).title, dict);
}

std::string defaultFileName(FileKind kind, std::string_view extension, std::span<const std::string> dict,
                            const CalendarTime& now) {
  return stampedFileName(joined(textsOf(kind).name, dict), extension, now);
}

std::string stampedFileName(std::string text, std::string_view extension, const CalendarTime& now) {
  text += ' ' + formatDate(now, "mm-dd-yyyy hh.mm.ss");
  std::replace_if(text.begin(), text.end(), isForbidden, '-');
  return text.append(extension);
}

}  // namespace zephon
