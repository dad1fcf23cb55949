#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/font_metrics.h"

namespace zephon {

// Fonts that a text can be set in.
enum class FontFamily { Arial, Courier, Times, Symbol, ZapfDingbats };

// The name of a family's font, which is also that of its metric file: "Helvetica-BoldOblique", "Times-Roman".
// Times in italic alone is "TimesItalic".
std::string fontName(FontFamily family, bool italic, bool bold);

// The fonts of a document: the metric files in one folder, in the order of their names. A font's number is
// its place, counted from 1. A file is read when its font is first measured, and only then.
class FontTable {
 public:
  // Takes the files whose path holds ".afm", in letters of either case; without any the folder that was taken
  // before is kept. False for none.
  bool load(const std::string& folder);

  std::size_t size() const { return fonts_.size(); }
  const std::string& name(std::size_t number) const { return fonts_[number - 1].name; }
  // 1 for a font that isn't in the table.
  std::size_t number(std::string_view name) const;
  // Null for a font whose file isn't there or can't be read.
  const FontMetrics* metrics(std::string_view name);
  // Where a font's file is looked for.
  std::string file(std::string_view name) const;

 private:
  struct Font {
    std::string name;
    std::optional<FontMetrics> metrics;
  };

  std::optional<std::size_t> find(std::string_view name) const;

  std::string folder_;
  std::vector<Font> fonts_;
};

}  // namespace zephon
