#include "reports/report_document.h"

#include <algorithm>

#include "protocol/model_names.h"
#include "reports/maker.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyFirmware = 22;
constexpr std::size_t kKeyChip = 23;
constexpr std::size_t kKeyRating = 51;
constexpr std::size_t kKeyPeriod = 54;
constexpr std::size_t kKeyDevice = 167;

constexpr char kBullet[] = "\u2022 ";
constexpr char kAdvice[] =
    "Before taking any of the recommended actions, verify that "
    "logged events are associated with connected equipment problems/malfunctions.";
constexpr char kMoreAdvice[] =
    "In some cases, it may be necessary to take the recommended "
    "course of action to prevent future equipment malfunction or damage.";

constexpr int kPoints = 0;
constexpr int kNoLayout = 3;
constexpr int kA4 = 0;
constexpr int kUpright = 1;
constexpr int kSans = 0;
constexpr int kPlain = 0;
constexpr int kBold = 2;
constexpr int kSolid = 0;

constexpr int kTitleSize = 12;
constexpr int kFactSize = 10;
constexpr int kFootSize = 7;
constexpr double kHeadTop = 50;
constexpr double kHeadBottom = 160;
constexpr double kFootLine = 810;
constexpr double kFootText = 820;
constexpr double kLinkX = 200;
constexpr double kGap = 3;
constexpr double kLongLabelShift = 15;
constexpr double kRuleDrop = 2;  // below the letters, clear of the next line's
constexpr int kMargin = 0;

const PdfColour kInk(33, 37, 41);
const PdfColour kQuiet(110, 118, 128);
const PdfColour kRuleColour(150, 158, 168);

std::string textOf(std::span<const std::string> dict, std::size_t key) {
  return key < dict.size() ? dict[key] : std::string();
}

std::string ratingText(int nominalVolts) {
  return nominalVolts == 240 ? "208/240V " : "120V ";
}

// The rating stands behind its word, whether or not that ends in a blank.
std::string unitDescription(const ReportHead& head, std::span<const std::string> dict) {
  std::string word = textOf(dict, kKeyRating);
  if (!word.ends_with(' ')) word += ' ';
  return word + ratingText(head.nominalVolts);
}

int styleOf(bool bold) {
  return bold ? kBold : kPlain;
}

}  // namespace

ReportDocument::ReportDocument(const PdfHost& host, const ReportHead& head, std::span<const std::string> dict,
                               std::size_t pages)
    : pdf_(host), head_(head), dict_(dict), fonts_(host.programFolder + "/Fonts"), pages_(pages) {
  pdf_.PDFPathConfiguration(fonts_);
  pdf_.PDFInit();
  pdf_.PDFTitle("QLT Zephon Orvantis PCS " + unitDescription(head, dict));
}

bool ReportDocument::begin(const std::string& path) {
  if (!pdf_.PDFFileName(path)) return false;
  pdf_.PDFSetLayoutMode(kNoLayout);
  pdf_.PDFFormatPage(kA4);
  pdf_.PDFOrientation(kUpright);
  pdf_.PDFSetUnit(kPoints);
  pdf_.PDFSetMargins(kMargin, kMargin, kMargin);
  return pdf_.PDFBeginDoc();
}

void ReportDocument::nextPage() {
  if (page_ > 0) {
    pdf_.PDFEndPage();
    pdf_.PDFNewPage();
  }
  ++page_;
  drawHead();
  drawFoot();
  pdf_.PDFSetTextColor(kInk);
}

bool ReportDocument::end() {
  pdf_.PDFEndPage();
  pdf_.PDFConfirm(true);
  return pdf_.PDFEndDoc();
}

void ReportDocument::drawHead() {
  pdf_.PDFSetLineColor(kRuleColour);
  pdf_.PDFSetLineStyle(kSolid);
  pdf_.PDFSetLineWidth(0.75);
  pdf_.PDFDrawLine(kLeft, kHeadTop, right(), kHeadTop);
  pdf_.PDFDrawLine(kLeft, kHeadBottom, right(), kHeadBottom);
  const char* picture = head_.modelLine == 1 ? "/PDF_titleTR.jpg" : "/PDF_titleRV.jpg";
  pdf_.PDFImage(fonts_ + picture, pdf_.PDFGetPageWidth() - 50, 18, 20, 30);
  pdf_.PDFSetTextColor(kInk);
  pdf_.PDFSetFont(kSans, kTitleSize, kBold);
  pdf_.PDFTextOut(productName(head_.modelLine) + ' ' + head_.title, kLeft, 70);
  drawFacts();
  pdf_.PDFSetTextColor(kQuiet);
  pdf_.PDFSetFont(kSans, 8, kPlain);
  pdf_.PDFTextOut(kAdvice, kLeft, 175);
  pdf_.PDFTextOut(kMoreAdvice, kLeft, 185);
}

void ReportDocument::drawFacts() {
  drawFact(90, 155, textOf(dict_, kKeyPeriod), head_.dateRange);
  drawFact(105, 45, "ID", head_.userID);
  drawFact(120, 125, textOf(dict_, kKeyFirmware), head_.firmwareVersion, 17);
  drawFact(135, 75, textOf(dict_, kKeyChip), head_.chipID, 8);
  drawFact(150, 140, textOf(dict_, kKeyDevice),
           productName(head_.modelLine) + " , " + ratingText(head_.nominalVolts), 24);
}

// A label that is long in its language, or takes more room than it was given, moves its value to the right.
void ReportDocument::drawFact(double y, double valueX, const std::string& label, const std::string& value,
                              std::size_t longLabel) {
  if (toWindows1252(label).size() >= longLabel) valueX += kLongLabelShift;
  const std::string text = kBullet + label + ": ";
  pdf_.PDFSetFont(kSans, kFactSize, kBold);
  pdf_.PDFTextOut(text, kLeft, y);
  const double end = kLeft + widthOf(text, kFactSize, true) + kGap;
  pdf_.PDFSetFont(kSans, kFactSize, kPlain);
  if (!value.empty()) pdf_.PDFTextOut(value, std::max(valueX, end), y);
}

void ReportDocument::drawFoot() {
  pdf_.PDFDrawLine(kLeft, kFootLine, right(), kFootLine);
  const std::string number = std::to_string(page_) + " of " + std::to_string(pages_);
  pdf_.PDFSetFont(kSans, kFootSize, kPlain);
  pdf_.PDFSetTextColor(kQuiet);
  pdf_.PDFTextOut(kMakerCopyright, kLeft, kFootText);
  pdf_.PDFLink(kMakerWeb, kMakerWeb, kLinkX, kFootText);
  pdf_.PDFSetTextColor(kQuiet);
  pdf_.PDFTextOut(number, right() - widthOf(number, kFootSize, false), kFootText);
}

double ReportDocument::widthOf(std::string_view text, int size, bool bold) {
  pdf_.PDFSetFont(kSans, size, styleOf(bold));
  return pdf_.PDFGetStringWidth(text, {}, size);
}

void ReportDocument::write(std::size_t line, double x, std::string_view text, bool bold) {
  pdf_.PDFSetFont(kSans, bodySize_, styleOf(bold));
  pdf_.PDFTextOut(text, x, kFirstLine + kLinePitch * static_cast<double>(line));
}

void ReportDocument::writeUpTo(std::size_t line, double x, std::string_view text, bool bold) {
  write(line, x - widthOf(text, bodySize_, bold), text, bold);
}

void ReportDocument::rule(std::size_t line) {
  const double y = kFirstLine + kLinePitch * static_cast<double>(line) + kRuleDrop;
  pdf_.PDFSetLineWidth(0.4);
  pdf_.PDFDrawLine(kLeft, y, right(), y);
}

void ReportDocument::fitBody(std::span<const std::string> lines) {
  const double room = right() - kLeft;
  for (const std::string& line : lines) {
    while (bodySize_ > 6 && widthOf(line, bodySize_, false) > room) --bodySize_;
  }
}

}  // namespace zephon
