#include <cstdio>

#include "pdf/written_pdf.h"

// What poppler's tools, of the package poppler-utils, make of a document that uses everything.
namespace zephon {
namespace {

// All that a command says, and behind it a line if it fails.
std::string said(const std::string& command) {
  std::string text;
  FILE* const pipe = ::popen((command + " 2>&1").c_str(), "r");
  for (int c = pipe ? std::fgetc(pipe) : EOF; c != EOF; c = std::fgetc(pipe)) text += static_cast<char>(c);
  return pipe && ::pclose(pipe) == 0 ? text : text + "\nfailed";
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
  }
  world.end();
  EXPECT_TRUE(world.messages.empty());
  const std::string file = world.folder / "a.pdf";
  const std::string info = said("LC_ALL=C pdfinfo " + file);
  for (const char* line : {"Title:           A report\n", "Pages:           12\n", "595 x 842 pts (A4)\n"})
    EXPECT_TRUE(has(info, line)) << info;
  const std::string text = said("pdftotext -q -enc UTF-8 -layout " + file + " -");
  for (const char* part : {"Seite 1: • 25 °C, Größe (÷) ½ – «été»", "Seite 12: ", "second line", "inside"})
    EXPECT_TRUE(has(text, part)) << part << "\n" << text;
  EXPECT_EQ(said("pdfimages -q -list " + file + " | grep -c jpeg"), "12\n");
}

}  // namespace
}  // namespace zephon
