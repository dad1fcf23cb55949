#include <cmath>

#include "pdf/lark_pdf.h"
#include "platform/error_text.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

constexpr std::string_view kVersion = "1.3";
// Comment lines around texts, cells, most figures and links, and behind pages and pictures, which let the file be
// read by eye; no viewer heeds them. DEBUT is begin, FIN is end.
constexpr std::string_view kObjectBegins = "%DEBUT_OBJ/%";
constexpr std::string_view kObjectEnds = "%FIN_OBJ/%";
constexpr std::string_view kStream = "stream";
constexpr std::string_view kStreamEnd = "endstream";
constexpr std::string_view kObjectEnd = "endobj";

// A page's text is "stream", what it draws and "endstream", a line end behind each: a reader is to know the
// length of what it draws, without the last line end.
std::size_t streamLength(std::size_t pageText) {
  return pageText - kStream.size() - kStreamEnd.size() - 3 * kCrLf.size();
}

constexpr std::int16_t kWatermarkSize = 50;
constexpr double kWatermarkAngle = 45;

// A name without a folder lies in the program's.
std::string placed(const std::string& name, const std::string& programFolder) {
  const bool hasFolder = name.find('/') != std::string::npos;
  return hasFolder || programFolder.empty() ? name : programFolder + "/" + name;
}

}  // namespace

bool LarkPDF::PDFFileName(const std::string& name) {
  if (state_ != State::New) return false;
  fileName_ = placed(name, host_.programFolder);
  return isSaved(file_.open(fileName_));
}

bool LarkPDF::isSaved(const SaveResult& result) const {
  if (result) return true;
  if (host_.notSaved)
    host_.notSaved(result);
  else
    tell("File - ", "Cannot write " + fileName_ + "." + std::string(kCrLf) + systemErrorText(result.error));
  return false;
}

bool LarkPDF::PDFBeginDoc() {
  if (state_ != State::New) return false;
  if (!file_.isOpen()) {
    tell("File - ", "There is no file to write the document to.");
    return false;
  }
  state_ = State::Open;
  info_.creationDate = formatDate(host_.now ? host_.now() : CalendarTime{}, "YYYYMMDDHHmmSS");
  file_.writeLine("%PDF-" + std::string(kVersion));
  file_.writeLine(infoObject(file_.start(), info_));
  pages_.push_back({firstFormat_, 0, {}});
  openPage();
  return true;
}

void LarkPDF::openPage() {
  pages_.back().content = file_.start();
  content_ << kStream << kCrLf;
  if (pages_.size() > 1) content_ << kObjectBegins << kCrLf;
  x_.set(leftMargin_);
  y_ = topMargin_;
}

void LarkPDF::closePage() {
  PDFEndPage();
  content_ << behind_.text();
  if (content_.text().size() == kStream.size() + kCrLf.size()) content_ << kCrLf;
  content_ << kStreamEnd << kCrLf;
  file_.write(streamHead(pages_.back().content));
  file_.write(content_.text());
  file_.writeLine(kObjectEnd);
  file_.writeMarker(kObjectEnds);
  const int length = file_.start();
  file_.writeLine(lengthObject(length, streamLength(content_.text().size())));
  content_.clear();
  behind_.clear();
}

void LarkPDF::PDFEndPage() {
  if (!isOpen() || next_) return;
  next_ = pages_.back().format;
  if (!watermark_.empty()) drawWatermark();
}

void LarkPDF::PDFNewPage() {
  if (!isOpen()) return;
  closePage();
  pages_.push_back({*next_, 0, {}});
  next_.reset();
  openPage();
}

// The angle is taken as radians where the text is placed.
void LarkPDF::drawWatermark() {
  const TextStyle before = style_;
  style_.size = kWatermarkSize;
  style_.underline = false;
  style_.rotation = kWatermarkAngle;
  PDFSetTextColor({255, 192, 203});
  const PageFormat& page = pages_.back().format;
  const double width = widthOf(watermark_, style_.size);
  const double y = (std::sin(kWatermarkAngle) * width + page.height) / 2.15;
  const double x = (page.width - std::cos(kWatermarkAngle) * width) / 2.75;
  addText(behind_, watermark_, {leftMargin_ * scale_ + x, page.height - y});
  style_ = before;
}

void LarkPDF::writeImages() {
  for (std::size_t i = 0; i < images_.size(); ++i) {
    const auto object = imageObject(file_.start(), i + 1, images_[i].header, images_[i].bytes.size());
    file_.write(object.head);
    file_.write(images_[i].bytes);
    file_.writeLine(object.tail);
    file_.writeMarker(kObjectEnds);
  }
}

// The number of the outline, 0 for none.
int LarkPDF::writeOutlines(int firstPage) {
  if (bookmarks_.empty()) return 0;
  const int outline = file_.last() + 1;
  for (const std::string& object : outlineObjects(outline, firstPage, bookmarks_)) {
    file_.start();
    file_.writeLine(object);
  }
  return outline;
}

// Everything behind the last page's content.
void LarkPDF::writeRest() {
  const int firstFont = file_.last() + 1;
  for (std::size_t i = 1; i <= fonts_.size(); ++i)
    file_.writeLine(fontObject(file_.start(), i, fonts_.name(i)));
  const int pages = file_.start();
  const int resources = pages + 1;
  const int firstPage = resources + static_cast<int>(images_.size()) + 1;
  file_.writeLine(pagesObject(pages, firstPage, pages_.size()));
  file_.writeLine(resourcesObject(file_.start(), firstFont, fonts_.size(), images_.size()));
  writeImages();
  for (const Page& page : pages_)
    file_.writeLine(pageObject(file_.start(), page.format, {pages, resources, page.content}, page.links));
  const int outlines = writeOutlines(firstPage);
  const int catalog = file_.start();
  file_.writeLine(catalogObject(catalog, catalog_, {pages, firstPage, outlines}));
  file_.writeLine(trailer(file_.offsets(), file_.offset(), catalog));
}

bool LarkPDF::PDFEndDoc() {
  if (!isOpen()) return false;
  closePage();
  writeRest();
  state_ = State::Closed;
  if (!isSaved(file_.finish())) return false;
  if (confirm_) tell({}, "Report Saved.");
  if (view_ && host_.openViewer) host_.openViewer(fileName_);
  return true;
}

void LarkPDF::PDFSetBookmark(std::string_view title, int level, double y) {
  if (!isOpen()) return;
  bookmarks_.push_back({toWindows1252(title), level, pages_.size() - 1, fromTop(y == -1 ? y_ : y)});
}

}  // namespace zephon
