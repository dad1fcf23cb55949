#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/jpeg_header.h"
#include "pdf/outline.h"
#include "pdf/page_format.h"

namespace zephon {

// The texts of a document's objects, each from its number to "endobj", lines parted by CR LF and none behind
// the last. Texts that go in are one byte a character.

struct DocumentInfo {
  std::string producer;
  std::string author;
  std::string creationDate;  // in the picture YYYYMMDDHHmmSS
  std::string creator;
  std::string keywords;
  std::string subject;
  std::string title;
};
// Values stand as they are: a parenthesis must come in a pair.
std::string infoObject(int number, const DocumentInfo& info);

// What opens a page's content, whose length is the next object; and that next object.
std::string streamHead(int number);
std::string lengthObject(int number, std::size_t length);

// A font by the name of its metric file. Characters stand for themselves in Windows-1252, but in Symbol and
// ZapfDingbats for what those fonts have in their place.
std::string fontObject(int number, std::size_t fontNumber, std::string_view name);

// Objects `firstPage` on.
std::string pagesObject(int number, int firstPage, std::size_t pages);
// Fonts are objects `firstFont` on, images those behind this one.
std::string resourcesObject(int number, int firstFont, std::size_t fonts, std::size_t images);

// All of an image's object but the file's bytes, which stand between `head` and `tail`.
struct ImageObject {
  std::string head;
  std::string tail;
};
ImageObject imageObject(int number, std::size_t imageNumber, const JpegHeader& header, std::size_t bytes);

struct PageObjects {
  int pages = 0;
  int resources = 0;
  int content = 0;
};
std::string pageObject(int number, const PageFormat& format, const PageObjects& objects,
                       std::span<const PageLink> links);

// The outline is object `number`, its bookmarks those behind it, the first page `firstPage`.
std::vector<std::string> outlineObjects(int number, int firstPage, const std::vector<Bookmark>& bookmarks);

struct CatalogSettings {
  double zoom = 0;  // 0 whole page, 1 its width, 2 actual size, any other a percentage
  int layout = 3;   // 0 single page, 1 one column, 2 two columns, 3 the reader's own
  bool thumbs = false;
  bool outlines = false;
  std::string preferences;  // digits "1" to "6"
};
struct CatalogObjects {
  int pages = 0;
  int firstPage = 0;
  int outlines = 0;  // 0 for none
};
std::string catalogObject(int number, const CatalogSettings& settings, const CatalogObjects& objects);

// From "xref" to "%%EOF".
std::string trailer(const std::vector<std::int64_t>& offsets, std::int64_t end, int catalog);

}  // namespace zephon
