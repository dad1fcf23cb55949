#include "pdf/font_table.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "platform/read_file.h"
#include "text/strings.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> kFamilies = {"Helvetica", "Courier", "Times", "Symbol",
                                                       "ZapfDingbats"};
constexpr std::size_t kExtension = 4;  // characters of ".afm"
constexpr std::size_t kMostBytes = 1 << 20;

}  // namespace

std::string fontName(FontFamily family, bool italic, bool bold) {
  const std::string name(kFamilies[static_cast<std::size_t>(family)]);
  const bool times = family == FontFamily::Times;
  if (italic && bold) return name + (times ? "-BoldItalic" : "-BoldOblique");
  if (italic) return times ? "TimesItalic" : name + "-Oblique";
  if (bold) return name + "-Bold";
  return times ? name + "-Roman" : name;
}

bool FontTable::load(const std::string& folder) {
  std::vector<std::string> found;
  std::error_code error;
  std::error_code ignored;  // a link to nowhere is a font without metrics
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string& path = entry->path().native();
    if (findIgnoringCase(path, ".afm") == std::string::npos || entry->is_directory(ignored)) continue;
    const std::string_view file = std::string_view(path).substr(path.rfind('/') + 1);
    found.emplace_back(file.substr(0, file.size() - std::min(file.size(), kExtension)));
  }
  if (fonts_.empty()) folder_ = folder;  // a font that is missing is told to be missing here
  if (found.empty()) return false;
  std::ranges::sort(found);
  fonts_.clear();
  for (std::string& name : found) fonts_.push_back({std::move(name), {}});
  folder_ = folder;
  return true;
}

std::optional<std::size_t> FontTable::find(std::string_view name) const {
  const auto hit = std::ranges::find(fonts_, name, &Font::name);
  if (hit == fonts_.end()) return {};
  return static_cast<std::size_t>(hit - fonts_.begin());
}

std::size_t FontTable::number(std::string_view name) const {
  return find(name).value_or(0) + 1;
}

const FontMetrics* FontTable::metrics(std::string_view name) {
  const auto index = find(name);
  if (!index) return nullptr;
  Font& font = fonts_[*index];
  if (!font.metrics) {
    const FileContent content = readFile(file(name), kMostBytes);
    if (!content) return nullptr;
    font.metrics = parseFontMetrics(content.bytes);
  }
  return &*font.metrics;
}

std::string FontTable::file(std::string_view name) const {
  return folder_ + "/" + std::string(name) + ".afm";
}

}  // namespace zephon
