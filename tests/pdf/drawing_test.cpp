#include <limits>

#include "pdf/written_pdf.h"

namespace zephon {
namespace {

TEST(PdfDrawing, figuresStandBetweenTheirMarkers) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFFormatPage({500, 800});
  world.pdf.PDFDrawLine(1, 2, 3, 4.567);
  world.pdf.PDFSetLineStyle(3);
  world.pdf.PDFDrawLineHor(10, 20, 30, "FF0000");
  world.pdf.PDFSetLineStyle(0);
  world.pdf.PDFDrawLineVer(10, 20, 30);
  world.pdf.PDFDrawRectangle(10, 20, 30, 40);
  const Point triangle[] = {{0, 0}, {100, 0}, {0, 100}};
  world.pdf.PDFDrawPolygon(triangle);
  world.pdf.PDFSetLineWidth(2);
  world.pdf.PDFSetDrawMode("DB");
  world.pdf.PDFDrawEllipse(100, 200, 50, 20);
  const std::string pen = "0 G 0 g [] 0 d\r\n";
  EXPECT_EQ(
      world.drawn(),
      "%DEBUT_LN/%\r\n" + pen +
          "1.00 798.00 m\r\n3.00 795.43 l\r\n0.57 w S\r\n%FIN_LN/%\r\n"
          "%DEBUT_LNH/%\r\n1.000 0.000 0.000 RG 1.000 0.000 0.000 rg [6 3 1 3 ] 0 d\r\n10.00 780.00 m\r\n"
          "40.00 780.00 l\r\n0.57 w S\r\n%FIN_LNH/%\r\n"
          "%DEBUT_LNV/%\r\n0.000 0.000 0.000 RG 0.000 0.000 0.000 rg [] 0 d\r\n10.00 780.00 m\r\n"
          "10.00 750.00 l\r\n0.57 w S\r\n%FIN_LNV/%\r\n"
          "%DEBUT_RECT/%\r\n" +
          pen +
          "10.00 780.00 30.00 -40.00 re \r\n0.57 w S\r\n%FIN_RECT/%\r\n"
          "%DEBUT_POLY/%\r\n" +
          pen +
          "0.00 800.00 m\r\n100.00 800.00 l\r\n0.00 700.00 l\r\n"
          "0.00 800.00 l\r\n0.57 w S\r\n%FIN_POLY/%\r\n" +
          pen +
          "150.00 600.00 m\r\n150.00 611.05 127.61 620.00 100.00 620.00 c\r\n"
          "72.39 620.00 50.00 611.05 50.00 600.00 c\r\n50.00 588.95 72.39 580.00 100.00 580.00 c\r\n"
          "127.61 580.00 150.00 588.95 150.00 600.00 c\r\n2.00 w B");
}

TEST(PdfDrawing, everyNumberIsOneThatReadersTake) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::pair<double, const char*> cases[] = {
      {kInfinity, "0"}, {-0.001, "0.00"}, {1.005, "1.01"}, {-2.5, "-2.50"}, {1e15, "1000000000000000.00"}};
  for (const auto& [value, text] : cases) EXPECT_EQ((Content() << value).text(), text);
}

TEST(PdfLink, kindsPlaceTheirTextAndArea) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFFormatPage({500, 800});
  world.pdf.PDFSetFont(1, 10, 0);
  world.pdf.PDFLink("abcd", "http://x.y/a(b)\\", 50, 100);  // 24 points wide
  EXPECT_EQ(world.pdf.PDFGetX(), 74);
  world.pdf.PDFDrawRectangle(100, 100, 124, 20, {"abcd", "r:1"});
  world.pdf.PDFCell("x", 10, 200, 60, 20);
  world.pdf.PDFLink("abcd", "c:1", 10, 200, "CELL");
  world.pdf.PDFImage(world.picture("a.jpg"), 10, 300, 40, 20, "i:1");
  world.pdf.PDFNewPage();
  const WrittenPdf file = world.end();
  const std::string drawn = file.stream(2);
  EXPECT_TRUE(has(drawn,
                  "%DEBUT_LINK/%\r\nq 0.000 0.000 1.000 rg %DEBUT_TEXT/%\r\nBT 50.00 700.00 Td "
                  "/F1 10 Tf (abcd) Tj ET\r\nQ\r\n%FIN_TEXT/%\r\n%FIN_LINK/%\r\n"));
  for (const char* place : {"150.00 687.00 Td", "73.00 587.00 Td"}) EXPECT_TRUE(has(drawn, place)) << place;
  EXPECT_TRUE(has(drawn, "q 0 g BT /F1 10 Tf 13.00 587.00 Td (x)"));  // its colour is back
  const auto area = [](std::string_view rectangle, std::string_view target) {
    return "<</Type /Annot /Subtype /Link /Rect [" + std::string(rectangle) +
           "] /Border [0 0 0] /A <</S /URI /URI (" + std::string(target) + ")>>>>\r\n";
  };
  EXPECT_TRUE(has(file.bytes(),
                  "/Annots [\r\n" + area("50.00 698.00 74.00 708.00", "http://x.y/a\\(b\\)\\\\\\\\") +
                      area("100.00 680.00 224.00 700.00", "r:1") + area("73.00 585.00 97.00 595.00", "c:1") +
                      area("10.00 480.00 50.00 500.00", "i:1") + "]\r\n/Contents 2 0 R"));
  EXPECT_EQ(file.count("/Annots ["), 1);
}

TEST(PdfLink, badTargetsTellAndTheirTextStands) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFLink("a", "", 1, 1);
  world.pdf.PDFDrawRectangle(1, 1, 1, 1, {"b", "two words"});
  world.pdf.PDFImage(world.picture("a.jpg"), 1, 1, 1, 1, "\r\n");
  EXPECT_EQ(world.messages.size(), 3u);
  EXPECT_EQ(world.messages[1].second, "Invalid URL rectangle: two words\r\nUnable to include URL rectangle.");
  for (int i = 0; i < 1001; ++i) world.pdf.PDFLink("d", "url:", 1, 1);
  const WrittenPdf file = world.end();
  EXPECT_EQ(file.count("/Subtype /Link"), 1000);
  EXPECT_EQ(file.count(") Tj"), 1003);
  EXPECT_EQ(file.count(" Do Q"), 1);
}

}  // namespace
}  // namespace zephon
