#include <sys/wait.h>

#include <array>
#include <cstdio>

#include "pdf/written_pdf.h"

// What a reader makes of a document that uses everything: poppler's tools, of the package poppler-utils.
namespace zephon {
namespace {

// All that a command says, and behind it a line if it fails.
std::string said(const std::string& command) {
  std::string text;
  FILE* const pipe = ::popen((command + " 2>&1").c_str(), "r");
  if (!pipe) return "no pipe";
  std::array<char, 4096> bytes;
  while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), pipe))
    text.append(bytes.data(), count);
  const int ended = ::pclose(pipe);
  return ended == 0 ? text : text + "\nfailed: " + std::to_string(WEXITSTATUS(ended));
}

std::string lineOf(const std::string& text, const std::string& key) {
  const std::size_t start = text.find(key);
  return start == std::string::npos ? "" : text.substr(start, text.find('\n', start) - start);
}

TEST(PdfReaders, findThePagesAndTheirText) {
  PdfWorld world;
  world.pdf.PDFTitle("A report");
  world.pdf.PDFFormatPage(0);
  world.pdf.PDFOrientation(1);
  world.pdf.PDFWatermark("DRAFT");
  world.begin();
  for (int page = 1; page <= 12; ++page) {
    if (page > 1) world.pdf.PDFNewPage();
    world.pdf.PDFSetFont(page % 3, 11, 3);
    world.pdf.PDFTextOut("Seite " + std::to_string(page) + ": • 25 °C, Größe (÷) ½ – «été»", 40, 60);
    world.pdf.PDFSetBorder("1");
    world.pdf.PDFCell("first line\r\nsecond line", 40, 100, 200, 14);
    world.pdf.PDFLink("where to", "https://example.org/(a)", 40, 200);
    world.pdf.PDFDrawEllipse(300, 300, 40, 20, {"inside", "mailto:a@example.org"});
    world.pdf.PDFImage(ZEPHON_RESOURCES "/Fonts/PDF_titleRV.jpg", 500, 20, 0, 30);
    world.pdf.PDFEndPage();
  }
  world.end();
  EXPECT_TRUE(world.messages.empty());
  const std::string file = world.folder / "a.pdf";
  const std::string info = said("LC_ALL=C pdfinfo " + file);
  EXPECT_EQ(lineOf(info, "Title:"), "Title:           A report") << info;
  EXPECT_EQ(lineOf(info, "Pages:"), "Pages:           12") << info;
  EXPECT_EQ(lineOf(info, "Page size:"), "Page size:       595 x 842 pts (A4)") << info;
  EXPECT_EQ(lineOf(info, "PDF version:"), "PDF version:     1.3") << info;
  const std::string text = said("pdftotext -q -enc UTF-8 -layout " + file + " -");
  for (const char* part : {"Seite 1: • 25 °C, Größe (÷) ½ – «été»", "Seite 12: ", "first line", "second line",
                           "where to", "inside"})
    EXPECT_TRUE(has(text, part)) << part << "\n" << text;
  EXPECT_EQ(lineOf(said("pdfimages -q -list " + file + " | grep -c jpeg"), "1"), "12");
}

}  // namespace
}  // namespace zephon
