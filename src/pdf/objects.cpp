#include "pdf/objects.h"

#include <array>
#include <utility>

#include "pdf/content.h"
#include "text/number.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::array<std::string_view, 3> kLayouts = {"SinglePage", "OneColumn", "TwoColumnLeft"};
constexpr std::array<std::string_view, 6> kPreferences = {"HideToolbar", "HideMenubar",  "HideWindowUI",
                                                          "FitWindow",   "CenterWindow", "DisplayDocTitle"};
constexpr std::string_view kEnd = "endobj";
constexpr std::size_t kOffsetDigits = 10;

// What the actions that fit no page speak of, whatever object that is.
constexpr int kFixedTarget = 3;

struct Head {
  int number;
};
Content& operator<<(Content& text, Head head) {
  return text << head.number << " 0 obj" << kCrLf;
}

struct Reference {
  int number;
};
Content& operator<<(Content& text, Reference to) {
  return text << to.number << " 0 R";
}

// A length in points, as short as it gets with two decimals.
std::string points(double value) {
  return shortestText(roundDecimals(value, 2));
}

// A name as it stands behind its slash: what may not stand in one as two hexadecimal digits.
std::string nameText(std::string_view name) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const char c : name) {
    if (c > ' ' && c < 0x7F && std::string_view("()<>[]{}/%#").find(c) == std::string_view::npos) {
      text += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      text += {'#', kDigits[byte >> 4], kDigits[byte & 0xF]};
    }
  }
  return text;
}

// The font that a reader knows, where it goes by another name than its file.
std::string_view standardName(std::string_view name) {
  if (name == "TimesItalic") return "Times-Italic";
  return name == "TimesRoman" ? "Times-Roman" : name;
}

void addLinks(Content& text, std::span<const PageLink> links) {
  text << "/Annots [" << kCrLf;
  for (const PageLink& link : links) {
    text << "<</Type /Annot /Subtype /Link /Rect [" << link.x << ' ' << link.y << ' ' << link.x + link.width
         << ' ' << link.y + link.height << "] /Border [0 0 0] /A <</S /URI /URI ";
    text.quoted(link.target) << ">>>>" << kCrLf;
  }
  text << ']' << kCrLf;
}

void addOpenAction(Content& text, double zoom, int firstPage) {
  text << "/OpenAction [";
  if (zoom == 0) {
    text << Reference{firstPage} << " /Fit";
  } else {
    text << Reference{kFixedTarget};
    if (zoom == 1)
      text << " /FitH null";
    else
      text << " /XYZ null null " << (zoom == 2 ? "1" : shortestText(zoom / 100));
  }
  text << ']' << kCrLf;
}

void addPreferences(Content& text, std::string_view digits) {
  text << "/ViewerPreferences<<" << kCrLf;
  for (std::size_t i = 0; i < kPreferences.size(); ++i) {
    if (digits.find(static_cast<char>('1' + i)) == std::string_view::npos) continue;
    text << '/' << kPreferences[i] << " true" << kCrLf;
  }
  text << ">>" << kCrLf;
}

void addOutlineLinks(Content& text, const OutlineNode& node, int outline) {
  const struct {
    std::string_view key;
    int index;
  } entries[] = {
      {"/Prev ", node.previous}, {"/Next ", node.next}, {"/First ", node.first}, {"/Last ", node.last}};
  for (const auto& [key, index] : entries)
    if (index >= 0) text << key << Reference{outline + 1 + index} << kCrLf;
}

}  // namespace

std::string infoObject(int number, const DocumentInfo& info) {
  const std::pair<std::string_view, std::string_view> lines[] = {{"/Producer (", info.producer},
                                                                 {"/Author (", info.author},
                                                                 {"/CreationDate (D:", info.creationDate},
                                                                 {"/Creator (", info.creator},
                                                                 {"/Keywords (", info.keywords},
                                                                 {"/Subject (", info.subject},
                                                                 {"/Title (", info.title},
                                                                 {"/ModDate (", {}}};
  Content text;
  text << Head{number} << "<<" << kCrLf;
  for (const auto& [key, value] : lines) text << key << value << ')' << kCrLf;
  text << ">>" << kCrLf << kEnd;
  return text.string();
}

std::string streamHead(int number) {
  Content text;
  text << Head{number} << "<< /Length " << Reference{number + 1} << kCrLf << " >>" << kCrLf;
  return text.string();
}

std::string lengthObject(int number, std::size_t length) {
  Content text;
  text << Head{number} << length << kCrLf << kEnd;
  return text.string();
}

std::string fontObject(int number, std::size_t fontNumber, std::string_view name) {
  Content text;
  text << Head{number} << "<< /Type /Font" << kCrLf << "/Subtype /Type1" << kCrLf;
  text << "/Name /F" << fontNumber << kCrLf << "/BaseFont /" << nameText(standardName(name)) << kCrLf;
  if (name != "Symbol" && name != "ZapfDingbats") text << "/Encoding /WinAnsiEncoding" << kCrLf;
  text << ">>" << kCrLf << kEnd;
  return text.string();
}

std::string pagesObject(int number, int firstPage, std::size_t pages) {
  Content text;
  text << Head{number} << "<< /Type /Pages" << kCrLf << "/Kids [";
  for (std::size_t i = 0; i < pages; ++i) text << ' ' << Reference{firstPage + static_cast<int>(i)};
  text << " ]" << kCrLf << "/Count " << pages << kCrLf << ">>" << kCrLf << kEnd;
  return text.string();
}

std::string resourcesObject(int number, int firstFont, std::size_t fonts, std::size_t images) {
  Content text;
  text << Head{number} << "<< /ProcSet [ /PDF /Text /ImageC]" << kCrLf << "/XObject << " << kCrLf;
  for (std::size_t i = 1; i <= images; ++i)
    text << "/ImgJPEG" << i << ' ' << Reference{number + static_cast<int>(i)} << kCrLf;
  text << ">>" << kCrLf << "/Font << " << kCrLf;
  for (std::size_t i = 1; i <= fonts; ++i)
    text << "/F" << i << ' ' << Reference{firstFont + static_cast<int>(i) - 1} << ' ' << kCrLf;
  text << ">>" << kCrLf << ">>" << kCrLf << kEnd;
  return text.string();
}

ImageObject imageObject(int number, std::size_t imageNumber, const JpegHeader& header, std::size_t bytes) {
  Content head;
  head << Head{number} << "<</Type /XObject" << kCrLf << "/Subtype /Image" << kCrLf << "/Filter [/DCTDecode ]"
       << kCrLf << "/Width " << header.width << kCrLf << "/Height " << header.height << kCrLf
       << "/ColorSpace /" << header.colourSpace << kCrLf << "/BitsPerComponent " << header.bitsPerComponent
       << kCrLf << "/Length " << bytes << kCrLf << "/Name /ImgJPEG" << imageNumber << kCrLf << ">>" << kCrLf
       << "stream" << kCrLf;
  return {head.string(), std::string(kCrLf) + "endstream" + std::string(kCrLf) + std::string(kEnd)};
}

std::string pageObject(int number, const PageFormat& format, const PageObjects& objects,
                       std::span<const PageLink> links) {
  Content text;
  text << Head{number} << "<< /Type /Page" << kCrLf << "/Parent " << Reference{objects.pages} << kCrLf
       << "/MediaBox [ 0 0 " << points(format.width) << ' ' << points(format.height) << ']' << kCrLf
       << "/Resources " << Reference{objects.resources} << kCrLf;
  if (!links.empty()) addLinks(text, links);
  text << "/Contents " << Reference{objects.content} << kCrLf << ">>" << kCrLf << kEnd;
  return text.string();
}

std::vector<std::string> outlineObjects(int number, int firstPage, const std::vector<Bookmark>& bookmarks) {
  const std::vector<OutlineNode> nodes = outlineTree(bookmarks);
  std::vector<std::string> objects;
  Content root;
  root << Head{number} << "<< /Type /Outlines" << kCrLf;
  addOutlineLinks(root, nodes.back(), number);
  root << ">>" << kCrLf << kEnd;
  objects.push_back(root.string());
  for (std::size_t i = 0; i < bookmarks.size(); ++i) {
    Content text;
    text << Head{number + 1 + static_cast<int>(i)} << "<< /Title ";
    text.quoted(bookmarks[i].title) << kCrLf << "/Parent " << Reference{number + 1 + nodes[i].parent}
                                    << kCrLf;
    addOutlineLinks(text, nodes[i], number);
    text << "/Dest [" << Reference{firstPage + static_cast<int>(bookmarks[i].page)} << " /XYZ 0 "
         << bookmarks[i].y << " null]" << kCrLf << ">>" << kCrLf << kEnd;
    objects.push_back(text.string());
  }
  return objects;
}

std::string catalogObject(int number, const CatalogSettings& settings, const CatalogObjects& objects) {
  Content text;
  text << Head{number} << "<<" << kCrLf << "/Type /Catalog" << kCrLf << "/Pages " << Reference{objects.pages}
       << kCrLf;
  addOpenAction(text, settings.zoom, objects.firstPage);
  const auto layout = static_cast<std::size_t>(settings.layout);
  if (layout < kLayouts.size()) text << "/PageLayout /" << kLayouts[layout] << kCrLf;
  if (settings.thumbs) text << "/PageMode /UseThumbs" << kCrLf;
  if (objects.outlines != 0) text << "/Outlines " << Reference{objects.outlines} << kCrLf;
  if (settings.outlines) text << "/PageMode /UseOutlines" << kCrLf;
  if (!settings.preferences.empty()) addPreferences(text, settings.preferences);
  text << ">>" << kCrLf << kEnd;
  return text.string();
}

std::string trailer(const std::vector<std::int64_t>& offsets, std::int64_t end, int catalog) {
  const std::size_t count = offsets.size() + 1;
  Content text;
  text << "xref" << kCrLf << "0 " << count << kCrLf << "0000000000 65535 f" << kCrLf;
  for (const std::int64_t offset : offsets) text << padded(offset, kOffsetDigits) << " 00000 n" << kCrLf;
  text << "trailer" << kCrLf << "<< /Size " << count << kCrLf << "/Root " << Reference{catalog} << kCrLf
       << "/Info 1 0 R" << kCrLf << ">>" << kCrLf << "startxref" << kCrLf << end << kCrLf << "%%EOF";
  return text.string();
}

}  // namespace zephon
