#include <algorithm>

#include "pdf/cell_lines.h"
#include "pdf/lark_pdf.h"

namespace zephon {
namespace {

constexpr double kBaseline = 0.3;  // of the font's size, below the middle of the line

}  // namespace

void LarkPDF::PDFCell(std::string_view text, double x, double y, double width, double height) {
  if (!isOpen()) return;
  if (width == 0) width = PDFGetPageWidth() - rightMargin_ - x;
  const int size = writtenSize();
  if (height == 0) height = size / scale_;
  const double room = width * scale_ - 2 * cellMargin_;
  const auto most = static_cast<std::size_t>(std::clamp(room * 10 / size, 1.0, 1e6));
  const std::string bytes(oneByte(text));
  const auto lines = cellLines(bytes, currentMetrics(), size, room, most);
  const Point corner = place(x, y);
  figure_ = {0, 0, width * scale_, height * scale_};
  content_ << "%DEBUT_CELL/%" << kCrLf;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Box box{corner.x, corner.y - figure_.height * static_cast<double>(i), figure_.width,
                  figure_.height};
    addCellBox(box, cellBorder(border_, i, lines.size()));
    addCellLine(lines[i], box, alignment_ == "FJ" && i + 1 < lines.size());
  }
  content_ << "%FIN_CELL/%" << kCrLf;
  border_.assign(1, '0');
  x_.set(x);
  y_ = y + height * static_cast<double>(lines.size());
}

// A box's corner is the upper left one here.
void LarkPDF::addCellBox(const Box& box, std::string_view sides) {
  const bool all = sides == "1";
  if (!all && !fill_ && sides.empty()) return;
  pen() << ' ' << lineWidth_ << " w" << kCrLf;
  if (all || fill_) {
    addBox(content_, {box.x, box.y, box.width, -box.height});
    content_ << (all && fill_ ? "B" : all ? "S" : "f") << kCrLf;
  }
  const double right = box.x + box.width;
  const double bottom = box.y - box.height;
  const struct {
    char side;
    Point from;
    Point end;
  } edges[] = {{'L', {box.x, box.y}, {box.x, bottom}},
               {'T', {box.x, box.y}, {right, box.y}},
               {'R', {right, box.y}, {right, bottom}},
               {'B', {box.x, bottom}, {right, bottom}}};
  for (const auto& edge : edges) {
    if (sides.find(edge.side) == std::string_view::npos) continue;
    content_ << edge.from.x << ' ' << edge.from.y << " m " << edge.end.x << ' ' << edge.end.y << " l S"
             << kCrLf;
  }
}

double LarkPDF::cellTextX(double width, const Box& box) const {
  if (alignment_ == "R") return box.x + box.width - cellMargin_ - width;
  if (alignment_ == "C") return box.x + (box.width - width) / 2;
  return box.x + cellMargin_;
}

void LarkPDF::addCellLine(std::string_view line, const Box& box, bool stretched) {
  const int size = writtenSize();
  const FontMetrics* metrics = currentMetrics();
  const double width = metrics ? stringWidth(*metrics, line, size) : 0;
  const auto blanks = std::ranges::count(line, ' ');
  stretched = stretched && blanks > 0;
  if (stretched)
    content_ << (box.width - 2 * cellMargin_ - width) / static_cast<double>(blanks) << " Tw" << kCrLf;
  content_ << "q " << style_.colour << " BT /F" << style_.number << ' ' << size << " Tf "
           << cellTextX(width, box) << ' ' << box.y - box.height / 2 - kBaseline * size << " Td ";
  content_.quoted(line) << " Tj ET Q" << kCrLf;
  if (stretched) content_ << "0 Tw" << kCrLf;
}

}  // namespace zephon
