#include <functional>

#include "pdf/written_pdf.h"

namespace zephon {
namespace {

constexpr const char* kMetrics = "StartCharMetrics 2\nC 65 ; WX 500 ;\nC 66 ; WX 700 ;\nEndCharMetrics\n";

TEST(PdfDocument, onePageHasItsObjectsInTheirOrder) {
  PdfWorld world;
  world.folder.put("fonts/Helvetica.afm", kMetrics);
  world.pdf.PDFTitle("a title");
  world.pdf.PDFProducer("Zäh (er)");
  world.pdf.PDFConfirm(true);
  world.pdf.PDFView(true);
  world.begin(world.folder / "fonts");
  const WrittenPdf file = world.end();
  EXPECT_EQ(world.messages, (std::vector<PdfWorld::Message>{{"LarkPDF 1.0", "Report Saved."}}));
  EXPECT_EQ(world.viewed, std::vector<std::string>{world.folder / "a.pdf"});
  EXPECT_TRUE(file.bytes().starts_with("%PDF-1.3\r\n1 0 obj\r\n"));
  EXPECT_TRUE(file.bytes().ends_with("startxref\r\n" + file.after("startxref\r\n") + "\r\n%%EOF\r\n"));
  EXPECT_EQ(
      file.object(1),
      "<<\r\n/Producer (Z\xE4h (er))\r\n/Author ()\r\n/CreationDate (D:20260304050607)\r\n/Creator ()\r\n"
      "/Keywords ()\r\n/Subject ()\r\n/Title (a title)\r\n/ModDate ()\r\n>>\r\n");
  EXPECT_EQ(file.object(2), "<< /Length 3 0 R\r\n >>\r\nstream\r\n\r\nendstream\r\n");
  EXPECT_EQ(file.object(3), "0\r\n");
  EXPECT_EQ(file.object(4),
            "<< /Type /Font\r\n/Subtype /Type1\r\n/Name /F1\r\n/BaseFont /Helvetica\r\n"
            "/Encoding /WinAnsiEncoding\r\n>>\r\n");
  EXPECT_EQ(file.object(5), "<< /Type /Pages\r\n/Kids [ 7 0 R ]\r\n/Count 1\r\n>>\r\n");
  EXPECT_EQ(
      file.object(6),
      "<< /ProcSet [ /PDF /Text /ImageC]\r\n/XObject << \r\n>>\r\n/Font << \r\n/F1 4 0 R \r\n>>\r\n>>\r\n");
  EXPECT_EQ(file.object(7),
            "<< /Type /Page\r\n/Parent 5 0 R\r\n/MediaBox [ 0 0 595.28 841.89]\r\n/Resources 6 0 R\r\n"
            "/Contents 2 0 R\r\n>>\r\n");
  EXPECT_EQ(file.object(8), "<<\r\n/Type /Catalog\r\n/Pages 5 0 R\r\n/OpenAction [7 0 R /Fit]\r\n>>\r\n");
  EXPECT_EQ(file.after("/Size "), "9");
  EXPECT_EQ(file.after("/Root "), "8 0 R");
}

// Three pages, two fonts, two images: every number computed ahead leads to the object that it means.
TEST(PdfDocument, numbersLeadToWhatTheyMean) {
  PdfWorld world;
  world.folder.put("fonts/Courier.afm", kMetrics);
  world.folder.put("fonts/TimesItalic.AFM", kMetrics);
  world.begin(world.folder / "fonts");
  for (int page = 1; page <= 3; ++page) {
    if (page > 1) world.pdf.PDFNewPage();
    world.pdf.PDFTextOut("page " + std::to_string(page), 10, 20);
    for (const char* name : {"a.jpg", "b.JPEG"}) world.pdf.PDFImage(world.picture(name), 1, 2, 3, 4);
  }
  const WrittenPdf file = world.end();
  EXPECT_TRUE(has(file.object(9), "/BaseFont /Times-Italic\r\n"));
  EXPECT_TRUE(has(file.object(10), "/Kids [ 14 0 R 15 0 R 16 0 R ]\r\n/Count 3"));
  EXPECT_TRUE(has(file.object(11), "/ImgJPEG1 12 0 R\r\n/ImgJPEG2 13 0 R\r\n>>"));
  EXPECT_TRUE(has(file.object(11), "/F1 8 0 R \r\n/F2 9 0 R \r\n>>"));
  for (int page = 0; page < 3; ++page) {
    EXPECT_TRUE(has(file.object(14 + page), "/Contents " + std::to_string(2 + 2 * page) + " 0 R"));
    const std::string drawn = file.stream(2 + 2 * page);
    EXPECT_TRUE(has(drawn, "(page " + std::to_string(page + 1) + ") Tj"));
    EXPECT_EQ(file.object(3 + 2 * page), std::to_string(drawn.size()) + "\r\n");
    EXPECT_EQ(drawn.starts_with("%DEBUT_OBJ/%\r\n"), page > 0);
  }
}

// Neither the header's line end nor that behind any object, nor a marker, is counted.
TEST(PdfDocument, offsetsAreSumsOfTheTexts) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFImage(world.picture("a.jpg"), 1, 2, 3, 4);
  for (int page = 0; page < 30; ++page) world.pdf.PDFNewPage();
  const WrittenPdf file = world.end();
  const std::size_t table = file.bytes().rfind("xref\r\n0 ");
  std::size_t entry = file.bytes().find("0000000000 65535 f\r\n", table);
  const int last = std::stoi(file.after("/Size ")) - 1;
  const auto counted = [&](std::size_t position, int texts) {
    const std::size_t markers = WrittenPdf(file.bytes().substr(0, position)).count("\r\n%FIN_OBJ/%\r\n");
    return position - 2 * static_cast<std::size_t>(texts) - 12 * markers;
  };
  for (int number = 1; number <= last; ++number) {
    entry += 20;
    const std::string line = file.bytes().substr(entry, 20);
    EXPECT_EQ(std::stoul(line.substr(0, 10)), counted(file.positionOf(number), number)) << number;
    EXPECT_EQ(line.substr(10), " 00000 n\r\n");
  }
  EXPECT_EQ(std::stoul(file.after("startxref\r\n")), counted(table, last + 1));
}

TEST(PdfDocument, theCatalogFollowsItsSettings) {
  const std::pair<std::function<void(LarkPDF&)>, const char*> cases[] = {
      {[](LarkPDF& pdf) { pdf.PDFSetZoomMode(150); }, "/OpenAction [3 0 R /XYZ null null 1.5]\r\n>>"},
      {[](LarkPDF& pdf) { pdf.PDFSetLayoutMode(2); }, "/PageLayout /TwoColumnLeft\r\n>>"},
      {[](LarkPDF& pdf) { pdf.PDFUseThumbs(true); }, " /Fit]\r\n/PageMode /UseThumbs\r\n>>"},
      {[](LarkPDF& pdf) { pdf.PDFUseOutlines(true); }, " /Fit]\r\n/PageMode /UseOutlines\r\n>>"},
      {[](LarkPDF& pdf) { pdf.PDFSetViewerPreferences("62x"); },
       "/ViewerPreferences<<\r\n/HideMenubar true\r\n/DisplayDocTitle true\r\n>>\r\n>>"},
  };
  for (const auto& [set, expected] : cases) {
    PdfWorld world;
    world.begin();
    set(world.pdf);
    const std::string bytes = world.end().bytes();
    EXPECT_TRUE(has(bytes.substr(bytes.find("/Type /Catalog")), expected)) << expected;
  }
}

TEST(PdfDocument, bookmarksHangInATree) {
  PdfWorld world;
  world.begin(world.folder / "");
  world.pdf.PDFUseOutlines(true);
  world.pdf.PDFSetBookmark("one", 0, 41.89);
  world.pdf.PDFSetBookmark("in (one)", 1, -1);
  world.pdf.PDFNewPage();
  world.pdf.PDFSetBookmark("two", 0, 0);
  const WrittenPdf file = world.end();  // 2 streams and lengths, 6 Pages, 7 Resources, 8 and 9 pages
  EXPECT_EQ(file.object(11),
            "<< /Title (one)\r\n/Parent 10 0 R\r\n/Next 13 0 R\r\n/First 12 0 R\r\n/Last 12 0 R\r\n"
            "/Dest [8 0 R /XYZ 0 800.00 null]\r\n>>\r\n");
  EXPECT_TRUE(has(file.object(12), "(in \\(one\\))\r\n/Parent 11 0 R\r\n/Dest [8 0 R /XYZ 0 841.89 null]"));
  EXPECT_TRUE(has(file.object(14), "/Outlines 10 0 R\r\n/PageMode /UseOutlines\r\n"));
}

TEST(PdfDocument, formatsGoFromPageToPage) {
  PdfWorld world;
  LarkPDF& pdf = world.pdf;
  pdf.PDFFormatPage(0);
  pdf.PDFOrientation(1);
  world.begin(world.folder / "");
  pdf.PDFEndPage();
  pdf.PDFOrientation(0);  // of the next page already
  pdf.PDFNewPage();
  pdf.PDFOrientation(1);
  pdf.PDFFormatPage(2);
  pdf.PDFNewPage();
  pdf.PDFFormatPage({300.126, 200.5});
  pdf.PDFSetUnit(2);
  pdf.PDFPageHeight(2.54);
  const std::string bytes = world.end().bytes();
  std::string boxes;
  for (std::size_t at = 0; (at = bytes.find("/MediaBox [ 0 0 ", at)) != std::string::npos; ++at)
    boxes += bytes.substr(at + 16, bytes.find(']', at) - at - 15);
  EXPECT_EQ(boxes, "595 842]420.94 595.28]300.13 72]");
}

TEST(PdfDocument, badSettingsTellAndFallBack) {
  const std::tuple<std::function<void(LarkPDF&)>, std::string, const char*> cases[] = {
      {[](LarkPDF& pdf) { pdf.PDFSetLayoutMode(4); }, "Layout Mode - ",
       "Layout incorrect : 4.\r\nLayout will be set to simple single page."},
      {[](LarkPDF& pdf) { pdf.PDFSetUnit(3); }, "Error in measurement unit - ",
       "Incorrect Unit of Measure : 3.\r\nUsing centimeter "},
      {[](LarkPDF& pdf) { pdf.PDFPageWidth(-1); }, "Format Page - ",
       "Format page set incorrectly : -28.346456692913385 841.89.\r\nFormat page set to A4."},
  };
  PdfWorld world;
  world.pdf.PDFSetUnit(1);
  world.pdf.PDFSetLayoutMode(2);
  for (const auto& [set, heading, text] : cases) {
    world.messages.clear();
    set(world.pdf);
    EXPECT_EQ(world.messages, (std::vector<PdfWorld::Message>{{"LarkPDF 1.0" + heading, text}}));
  }
  EXPECT_EQ(world.pdf.PDFGetUnit(), "cm");
  world.begin();
  EXPECT_TRUE(has(world.end().bytes(), "/Fit]\r\n/PageLayout /SinglePage"));
}

TEST(PdfDocument, failuresLeaveTheOldFile) {
  PdfWorld world;
  world.folder.put("a.pdf", "old");
  EXPECT_FALSE(world.pdf.PDFBeginDoc());
  EXPECT_FALSE(world.pdf.PDFFileName("none/a.pdf"));
  EXPECT_EQ(world.messages.back().second, "Cannot write none/a.pdf.\r\nNo such file or directory");
  EXPECT_FALSE(world.pdf.PDFEndDoc());
  world.pdf.PDFTextOut("nowhere", 1, 1);
  world.pdf.PDFNewPage();
  world.begin();
  EXPECT_FALSE(world.pdf.PDFBeginDoc());
  for (int page = 0; page < 17000; ++page) world.pdf.PDFNewPage();
  EXPECT_FALSE(world.pdf.PDFEndDoc());
  EXPECT_EQ(world.messages.back().second, "Cannot write " + world.folder / "a.pdf.\r\nFile too large");
  PdfWorld full;
  EXPECT_TRUE(full.pdf.PDFFileName("/dev/full"));
  full.pdf.PDFBeginDoc();
  EXPECT_FALSE(full.pdf.PDFEndDoc());
  EXPECT_EQ(full.messages.back().second, "Cannot write /dev/full.\r\nNo space left on device");
  EXPECT_EQ(world.folder.get("a.pdf"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(world.folder / ""), {}), 1);
}

}  // namespace
}  // namespace zephon
