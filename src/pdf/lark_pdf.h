#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/colour.h"
#include "pdf/content.h"
#include "pdf/current_x.h"
#include "pdf/drawing.h"
#include "pdf/font_table.h"
#include "pdf/jpeg_header.h"
#include "pdf/object_file.h"
#include "pdf/objects.h"
#include "pdf/page_format.h"
#include "pdf/pdf_host.h"
#include "text/windows1252.h"

namespace zephon {

// A link's visible text, and where a click on it leads.
struct PdfLink {
  std::string_view text;
  std::string_view url;
};

// Writes one PDF 1.3 document: settings, PDFFileName, PDFBeginDoc, drawing, PDFNewPage as often as needed,
// PDFEndDoc. The page at hand stays in memory until it is closed; the file takes its name at PDFEndDoc, and
// until then an old one stands. A second document needs a new object.
//
// Lengths are in user units (centimetres unless PDFSetUnit says otherwise) from the upper left corner of the
// page; exceptions are told. Texts are UTF-8 and are written and measured in Windows-1252, "?" for a
// character that it lacks. Nothing throws: a bad setting or file shows a message, and the document goes on.
class LarkPDF {
 public:
  explicit LarkPDF(PdfHost host = {});

  // The folder of the metric files, before PDFInit; empty is the program's. PDFInit loads them.
  void PDFPathConfiguration(const std::string& folder) { metricsFolder_ = folder; }
  void PDFInit();
  bool PDFLoadAfm(const std::string& folder);

  void PDFTitle(std::string_view text) { info_.title = toWindows1252(text); }
  void PDFAuthor(std::string_view text) { info_.author = toWindows1252(text); }
  void PDFCreator(std::string_view text) { info_.creator = toWindows1252(text); }
  void PDFKeywords(std::string_view text) { info_.keywords = toWindows1252(text); }
  void PDFSubject(std::string_view text) { info_.subject = toWindows1252(text); }
  void PDFProducer(std::string_view text) { info_.producer = toWindows1252(text); }

  // Opens the output. A name without "/" lies in the program's folder.
  bool PDFFileName(const std::string& name);
  // False, with a message, without a file.
  bool PDFBeginDoc();
  // Ends the page that is open and opens the next one.
  void PDFNewPage();
  // Draws the watermark, and gives the next page the format of this one; settings of the format that come now
  // speak of the next page.
  void PDFEndPage();
  // True when the whole document is saved.
  bool PDFEndDoc();
  std::size_t pdfPageNumber() const { return pages_.size(); }
  std::size_t PDFNbPage() const { return pages_.size(); }

  void PDFSetUnit(int unit);  // 0 points, 1 millimetres, 2 centimetres
  std::string PDFGetUnit() const;
  void PDFFormatPage(int format);                                   // 0 A4, 1 A3, 2 A5, 3 Letter, 4 Legal
  void PDFFormatPage(const std::array<double, 2>& widthAndHeight);  // in points
  // 0 landscape, 1 portrait. Rounds the page's size to whole points.
  void PDFOrientation(int orientation);
  void PDFPageWidth(double width);
  void PDFPageHeight(double height);
  double PDFGetPageWidth() const { return format().width / scale_; }
  double PDFGetPageHeight() const { return format().height / scale_; }
  void PDFSetZoomMode(double mode);  // 0 whole page, 1 its width, 2 actual size, else a percentage
  void PDFSetLayoutMode(int mode);   // 0 single page, 1 one column, 2 two columns, 3 none
  void PDFSetViewerPreferences(std::string_view digits);
  void PDFUseThumbs(bool use) { catalog_.thumbs = use; }
  void PDFUseOutlines(bool use) { catalog_.outlines = use; }
  void PDFConfirm(bool confirm) { confirm_ = confirm; }
  void PDFView(bool view) { view_ = view; }
  void PDFWatermark(std::string_view text) { watermark_ = toWindows1252(text); }
  // A y of -1 is the current one.
  void PDFSetBookmark(std::string_view title, int level, double y);

  void PDFSetMargins(double left, double top, double right);
  void PDFSetLeftMargin(double margin) { leftMargin_ = margin; }
  void PDFSetRightMargin(double margin) { rightMargin_ = margin; }
  void PDFSetTopMargin(double margin) { topMargin_ = margin; }
  void PDFSetBottomMargin(double margin) { bottomMargin_ = margin; }
  void PDFSetCellMargin(double points) { cellMargin_ = points; }
  double PDFGetLeftMargin() const { return leftMargin_; }
  double PDFGetRightMargin() const { return rightMargin_; }
  double PDFGetTopMargin() const { return topMargin_; }
  double PDFGetBottomMargin() const { return bottomMargin_; }
  double PDFGetCellMargin() const { return cellMargin_; }
  double PDFGetX() const { return x_.get(); }
  double PDFGetY() const { return y_; }

  // Family: 0 Arial, 1 Courier, 2 Times, 3 Symbol, 4 ZapfDingbats. Size in points. The digits of the style:
  // 1 italic, 2 bold, 3 underline (of the next text).
  void PDFSetFont(int family, int size, int style);
  // In points; an empty name is the current font. 0, with a message once a font, where there are no metrics.
  double PDFGetStringWidth(std::string_view text, std::string_view font, double size);
  double PDFTextHeight() const { return style_.size / scale_; }
  void PDFSetTextColor(const PdfColour& colour = {});
  const std::string& PDFGetTextColor() const { return style_.colour; }
  // Degrees against the clock, for the next text.
  void PDFSetRotation(double angle) { style_.rotation = angle; }
  // An x or y of 0 is the current one, and x counts from the left margin. The current place then moves on by
  // the text's width and size in points, taken as user units.
  void PDFTextOut(std::string_view text, double x = 0, double y = 0);

  void PDFSetAlignement(std::string_view code);  // "L", "R", "C", "FJ"
  std::string PDFGetAlignement() const;
  void PDFSetBorder(std::string_view sides) { border_ = sides; }  // "0", "1", or letters of "LRTB"
  void PDFSetFill(bool fill) { fill_ = fill; }
  // Text broken into lines of `height` each (0: as high as the font), in a box from x and y. A width of 0
  // reaches to the right margin.
  void PDFCell(std::string_view text, double x, double y, double width, double height);

  void PDFSetLineWidth(double points) { lineWidth_ = points; }
  void PDFSetLineStyle(int style);  // 0 solid, 1 dashes, 2 dots, 3 dash and dot, 4 dash and two dots
  void PDFSetDrawMode(std::string_view mode);
  void PDFSetLineColor(const PdfColour& colour = {});
  void PDFSetDrawColor(const PdfColour& colour = {});
  void PDFDrawLine(double x1, double y1, double x2, double y2);
  void PDFDrawLineHor(double x, double y, double length, const PdfColour& colour = {});
  void PDFDrawLineVer(double x, double y, double length, const PdfColour& colour = {});
  void PDFDrawRectangle(double x, double y, double width, double height, const PdfLink& link = {});
  void PDFDrawEllipse(double x, double y, double across, double down, const PdfLink& link = {});
  void PDFDrawPolygon(std::span<const Point> points);

  // A JPEG file; a width or height of 0 follows from the picture, a picture point being a point.
  void PDFImage(const std::string& file, double x, double y, double width, double height,
                std::string_view url = {});
  int PDFImageWidth(const std::string& file);  // in picture points, 0 for no picture
  int PDFImageHeight(const std::string& file);

  // Text that opens an address. Kind "RECTANGLE": in the middle of the last such figure, moved so that its
  // upper left corner is x, y. "ELLIPSE": the same with its centre. "CELL": behind the last cell, moved
  // likewise. None: at x, y as PDFTextOut writes it. At most 1000 links a page.
  void PDFLink(std::string_view text, std::string_view url, double x, double y, std::string_view kind = {});

 private:
  struct Page {
    PageFormat format;
    int content = 0;  // the object
    std::vector<PageLink> links;
  };
  struct Image {
    std::string file;
    std::string bytes;
    JpegHeader header;
  };
  struct TextStyle {
    std::string font;  // empty until one is set
    std::size_t number = 1;
    const FontMetrics* metrics = nullptr;  // once they have been asked for
    std::int16_t size = 0;
    bool underline = false;
    bool coloured = false;  // says its colour: one has been set, or a figure has left its own on the page
    double rotation = 0;
    std::string colour = "0 g";
  };
  enum class LinkKind { Text, Image, Rectangle, Ellipse, Cell };
  enum class State { New, Open, Closed };

  // Settings and messages.
  void tell(std::string_view heading, const std::string& text) const;
  void setSize(double width, double height);
  PageFormat& format();
  const PageFormat& format() const;
  bool isOpen() const { return state_ == State::Open; }
  double fromTop(double y) const { return pages_.back().format.height - y * scale_; }
  Point place(double x, double y) const { return {x * scale_, fromTop(y)}; }

  // The document's life.
  bool isSaved(const SaveResult& result) const;
  void openPage();
  void closePage();
  void drawWatermark();
  void writeRest();
  void writeImages();
  int writeOutlines(int firstPage);

  // Text.
  const FontMetrics* metricsOf(const std::string& font);
  const FontMetrics* currentMetrics();
  double widthOf(std::string_view bytes, double size);
  int writtenSize() const { return style_.size == 0 ? kUsualSize : style_.size; }
  std::string_view oneByte(std::string_view utf8);
  void addText(Content& to, std::string_view bytes, Point at);
  void addUnderline(Content& to, std::string_view bytes, Point at);
  void moveOn(std::string_view bytes, double x, double y);
  double cellTextX(double width, const Box& box) const;
  void addCellBox(const Box& box, std::string_view sides);
  void addCellLine(std::string_view line, const Box& box, bool stretched);

  // Figures, pictures and links.
  Content& pen();
  void setPen();
  void paint();
  void drawRule(std::string_view name, Point from, Point end, const PdfColour& colour);
  void linkFigure(const PdfLink& link, LinkKind kind, double x, double y);
  std::optional<Image> readImage(const std::string& file) const;
  std::optional<std::size_t> imageNumber(const std::string& file);
  Point linkTextPlace(std::string_view bytes, LinkKind kind, double x, double y);
  Box linkArea(std::string_view bytes, LinkKind kind, Point corner, Point text);
  void addLink(const PdfLink& link, LinkKind kind, double x, double y);
  void addLinkArea(const Box& area, std::string_view url, LinkKind kind);

  static constexpr int kUsualSize = 10;

  PdfHost host_;
  ObjectFile file_;
  std::string fileName_;
  State state_ = State::New;
  bool confirm_ = false;
  bool view_ = false;
  DocumentInfo info_;
  CatalogSettings catalog_;
  std::string watermark_;  // one byte a character, as the texts of `info_`
  std::vector<Bookmark> bookmarks_;

  PageFormat firstFormat_;          // of page 1, until it is open
  std::optional<PageFormat> next_;  // of the next page, once this one has ended
  std::vector<Page> pages_;
  Content content_;  // of the page that is open
  Content behind_;   // what comes on top of it when the page is closed

  double scale_ = 72 / 2.54;
  double leftMargin_ = 1;
  double rightMargin_ = 1;
  double topMargin_ = 1;
  double bottomMargin_ = 0;
  double cellMargin_ = 3;  // in points
  CurrentX x_;
  double y_ = 1;

  std::string metricsFolder_;
  FontTable fonts_;
  std::vector<std::string> unmeasured_;  // fonts without metrics, of which that has been told
  TextStyle style_;
  std::string oneByte_;  // room for a text in Windows-1252

  std::string alignment_ = "L";
  std::string border_ = "0";
  bool fill_ = false;

  double lineWidth_ = 0.567;
  std::string_view lineStyle_;
  std::string_view paintOperator_;
  std::string drawColour_ = "0 G";
  std::string fillColour_ = "0 g";
  Box figure_;  // the last rectangle, ellipse or cell, in points from its own corner

  std::vector<Image> images_;
  std::vector<std::string> refused_;  // files that are no pictures, which has been told
};

}  // namespace zephon
