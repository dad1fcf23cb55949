#include "pdf/cell_lines.h"
#include "pdf/written_pdf.h"

namespace zephon {
namespace {

TEST(PdfFont, namesAreThoseOfTheirMetrics) {
  const std::tuple<int, int, std::string> cases[] = {
      {0, 0, "Helvetica"},        {0, 12, "Helvetica-BoldOblique"},
      {1, 31, "Courier-Oblique"}, {2, 1, "TimesItalic"},
      {2, 2, "Times-Bold"},       {4, 0, "ZapfDingbats"}};
  FontTable fonts;
  ASSERT_TRUE(fonts.load(ZEPHON_RESOURCES "/Fonts"));
  for (const auto& [family, style, name] : cases) {
    PdfWorld world;
    world.begin();
    world.pdf.PDFSetFont(family, 12, style);
    world.pdf.PDFTextOut("x", 10, 10);
    ASSERT_EQ(fonts.name(fonts.number(name)), name);
    const std::string number = std::to_string(fonts.number(name));
    EXPECT_TRUE(has(world.drawn(), " Td /F" + number + " 12 Tf (x) Tj")) << name;
  }
}

TEST(PdfFont, suppliedMetricsAreThoseOfTheStandardFonts) {
  const std::tuple<const char*, const char*, double> cases[] = {{"Helvetica", "Ag 1", 667 + 556 + 278 + 556},
                                                                {"Helvetica", "•°\u03A9", 350 + 400 + 556},
                                                                {"Times-Roman", "Äé€", 722 + 444 + 500},
                                                                {"Courier", "ñ—", 1200}};
  PdfWorld world;
  world.begin();
  for (const auto& [font, text, width] : cases)
    EXPECT_EQ(world.pdf.PDFGetStringWidth(text, font, 1000), width) << font << text;
}

TEST(PdfFont, metricsAreReadBetweenTheirMarks) {
  const FontMetrics metrics = parseFontMetrics(
      "C 64 ; WX 1 ;\nUnderlinePosition -151\nUnderlineThickness 37.5\r\nStartCharMetrics 9\r\n"
      "C 66 ; WX 500.9 ; N B ;\r\nC 70 ; WX 7 ;\r\nC 65 ; WX 600 ;\nC 67 ; WX none ;\nC 300 ; WX 9 ;\nC\n;;\n"
      "C 69 ; WX 99999999999 ;\nC 68 ; WX 40\nC -1 ; WX 50 ; N lost ;\nC 80 ; WX 3 ;\nEndCharMetrics\n");
  EXPECT_EQ(metrics.underlinePosition, -151);
  EXPECT_EQ(metrics.underlineThickness, 37);
  std::array<int, 256> expected{};  // 70 is above the last code, 65 below the first
  expected[66] = 500;
  expected[68] = 40;
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), metrics.widths.begin()));
  EXPECT_EQ(stringWidth(metrics, "BDBx", 10), 10.4);
}

TEST(PdfFont, everyMetricFileIsAFontUnderItsName) {
  PdfWorld world;
  std::filesystem::create_directory(world.folder / "Old.afm");
  std::filesystem::create_symlink("nowhere", world.folder / "Gone.afm");
  world.folder.put("My Font(1).AFM", "");
  world.begin(world.folder / "");
  const WrittenPdf file = world.end();
  EXPECT_EQ(file.count("/BaseFont"), 2);
  EXPECT_TRUE(has(file.object(5), "/Name /F2\r\n/BaseFont /My#20Font#281#29\r\n"));
}

TEST(PdfFont, missingMetricsTellOnceAndTextStillStands) {
  PdfWorld world;
  world.begin(world.folder / "");
  world.pdf.PDFSetFont(0, 12, 3);
  world.pdf.PDFTextOut("one", 10, 20);
  world.pdf.PDFTextOut("two", 30, 40);
  ASSERT_EQ(world.messages.size(), 1u);
  EXPECT_TRUE(has(world.messages[0].second, world.folder / "Helvetica.afm.\r\n"));
  EXPECT_TRUE(has(world.drawn(), "/F1 12 Tf (two) Tj"));
}

TEST(PdfText, standsWithItsColourFontAndPlace) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFSetFont(0, 12, 3);
  world.pdf.PDFSetTextColor({255, 128, -5});
  world.pdf.PDFTextOut("AA", 10.005, 20);
  EXPECT_NEAR(world.pdf.PDFGetX(), 10.005 + 12 * 2 * 0.667, 1e-9);
  EXPECT_EQ(world.pdf.PDFGetY(), 32);
  world.pdf.PDFSetTextColor("#0000ff");
  world.pdf.PDFTextOut("a\\b(c) • é", 0, 0);
  EXPECT_EQ(world.drawn(),
            "q 1.000 0.502 0.000 rg %DEBUT_TEXT/%\r\nBT 10.01 821.89 Td /F5 12 Tf (AA) Tj ET\r\n"
            "10.01 820.08 16.01 -0.60 re f\r\nQ\r\n%FIN_TEXT/%\r\n"
            "q 0.000 0.000 1.000 rg %DEBUT_TEXT/%\r\nBT 26.01 809.89 Td "
            "/F5 12 Tf (a\\\\\\\\b\\(c\\) \x95 \xE9) Tj ET\r\nQ\r\n%FIN_TEXT/%");
}

TEST(PdfText, parenthesesAndBackslashesAreMarkedWhereverTheyStand) {
  const std::pair<char, std::string> marked[] = {{'(', "\\("}, {')', "\\)"}, {'\\', "\\\\\\\\"}};
  for (const std::string plain :
       {"abcdefghijklmnopqrs", "\xA8\xA9\xDC\x27*[]\x7F\x80\xFF\x01 x\xA9\xDC\xA8]*"})
    for (std::size_t at = 0; at <= plain.size(); ++at)
      for (const auto& [c, text] : marked) {
        const std::string twice = plain.substr(0, at) + c + c + plain.substr(at);
        EXPECT_EQ(Content().quoted(twice).text(),
                  '(' + plain.substr(0, at) + text + text + plain.substr(at) + ')');
      }
}

TEST(PdfText, aFreshPageTakesTheMarginTwiceAndSizeZeroIsWrittenAsTen) {
  PdfWorld world;
  world.pdf.PDFLoadAfm(ZEPHON_RESOURCES "/Fonts");
  world.pdf.PDFFileName("a.pdf");
  world.pdf.PDFBeginDoc();
  world.pdf.PDFTextOut("A");  // 2 cm and 1 cm
  EXPECT_TRUE(world.pdf.PDFGetX() == 1 && world.pdf.PDFGetY() == 1);
  world.pdf.PDFSetFont(1, 10, 0);
  world.pdf.PDFTextOut("A");
  EXPECT_EQ(world.pdf.PDFGetX(), 7);  // 6 points, taken as centimetres
  EXPECT_EQ(world.pdf.PDFGetY(), 11);
  world.pdf.PDFSetFont(0, 20, 0);
  EXPECT_EQ(world.pdf.PDFGetStringWidth("A", "", 10), 6.67);
  world.pdf.PDFLoadAfm(ZEPHON_RESOURCES "/Fonts");
  EXPECT_EQ(world.pdf.PDFGetX(), 7);  // where the text ended in its own font
  EXPECT_TRUE(has(world.drawn(), "%DEBUT_TEXT/%\r\nBT 56.69 813.54 Td /F1 10 Tf (A) Tj"));
}

TEST(PdfText, staysBlackBehindAFigureInAnotherColour) {
  for (int figure = 0; figure < 3; ++figure) {
    PdfWorld world;
    world.begin();
    world.pdf.PDFTextOut("before", 1, 1);
    world.pdf.PDFSetDrawColor("ff0000");
    world.pdf.PDFSetFill(true);
    if (figure == 0) world.pdf.PDFDrawLineVer(1, 2, 3, "ff0000");
    if (figure == 1) world.pdf.PDFDrawRectangle(1, 2, 3, 4);
    if (figure == 2) world.pdf.PDFCell("cell", 1, 2, 3, 4);
    world.pdf.PDFTextOut("behind", 1, 1);
    const std::string drawn = world.drawn();
    EXPECT_TRUE(drawn.starts_with("%DEBUT_TEXT/%") && has(drawn, "q 0 g %DEBUT_TEXT/%")) << drawn;
  }
}

TEST(PdfText, theWatermarkStandsBehindEachPagesContent) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFSetFont(1, 10, 0);
  world.pdf.PDFWatermark("DRAFT");  // 150 points wide
  world.pdf.PDFEndPage();
  world.pdf.PDFNewPage();
  world.pdf.PDFTextOut("text", 10, 20);
  const WrittenPdf file = world.end();
  const std::string mark =
      "q 1.000 0.753 0.796 rg %DEBUT_TEXT/%\r\nBT 0.71 0.71 -0.71 0.71 187.81 390.95 Tm "
      "/F1 50 Tf (DRAFT) Tj ET\r\nQ\r\n%FIN_TEXT/%";
  EXPECT_EQ(file.stream(2), mark);
  EXPECT_TRUE(file.stream(4).ends_with("ET\r\n%FIN_TEXT/%\r\n" + mark));
  EXPECT_TRUE(has(file.stream(4), "/F1 10 Tf (text) Tj"));
}

TEST(PdfCell, cutsItsTextIntoLines) {
  FontMetrics courier;
  courier.widths.fill(600);
  using Lines = std::vector<std::string_view>;
  const std::tuple<const char*, double, Lines> cases[] = {
      {"", 60, {""}},
      {"one two three", 42, {"one two", "three"}},
      {"one two three", 41.9, {"one", "two", "three"}},
      {"onetwothree", 30, {"onetw", "othre", "e"}},
      {"a\r\nb\r\n\r\n", 60, {"a", "b", ""}},
      {" one", 18, {" on", "e"}},
      {"one     \r\ntwo     six ", 30, {"one", "two", "six"}},
      {"two", -5, {"t", "w", "o"}}};
  for (const auto& [text, width, lines] : cases)
    EXPECT_EQ(cellLines(text, &courier, 10, width, 99), lines) << text;
  EXPECT_EQ(cellLines("one two", &courier, 10, 60, 4), (Lines{"one", "two"}));
}

TEST(PdfCell, drawsBoxSidesAndTextByAlignment) {
  PdfWorld world;
  world.begin();
  world.pdf.PDFSetFont(1, 10, 0);
  world.pdf.PDFSetBorder("1");
  world.pdf.PDFSetFill(true);
  world.pdf.PDFSetDrawColor("#FFFF00");
  world.pdf.PDFSetAlignement("C");
  world.pdf.PDFCell("ab", 100, 41.89, 66, 20);
  world.pdf.PDFSetFill(false);
  world.pdf.PDFSetAlignement("R");
  world.pdf.PDFCell("(b)\r\n", 100, 41.89, 66, 20);
  world.pdf.PDFSetBorder("1");
  world.pdf.PDFSetAlignement("FJ");
  world.pdf.PDFCell("a b c ddddd", 100, 41.89, 66, 0);
  EXPECT_EQ(
      world.drawn(),
      "%DEBUT_CELL/%\r\n0 G 1.000 1.000 0.000 rg [] 0 d 0.57 w\r\n100.00 800.00 66.00 -20.00 re \r\nB\r\n"
      "q 0 g BT /F1 10 Tf 127.00 787.00 Td (ab) Tj ET Q\r\n%FIN_CELL/%\r\n"
      "%DEBUT_CELL/%\r\nq 0 g BT /F1 10 Tf 145.00 787.00 Td (\\(b\\)) Tj ET Q\r\n%FIN_CELL/%\r\n"
      "%DEBUT_CELL/%\r\n0 G 1.000 1.000 0.000 rg [] 0 d 0.57 w\r\n100.00 800.00 m 100.00 790.00 l S\r\n"
      "100.00 800.00 m 166.00 800.00 l S\r\n166.00 800.00 m 166.00 790.00 l S\r\n15.00 Tw\r\n"
      "q 0 g BT /F1 10 Tf 103.00 792.00 Td (a b c) Tj ET Q\r\n0 Tw\r\n"
      "0 G 1.000 1.000 0.000 rg [] 0 d 0.57 w\r\n100.00 790.00 m 100.00 780.00 l S\r\n"
      "166.00 790.00 m 166.00 780.00 l S\r\n100.00 780.00 m 166.00 780.00 l S\r\n"
      "q 0 g BT /F1 10 Tf 103.00 782.00 Td (ddddd) Tj ET Q\r\n%FIN_CELL/%");
}

}  // namespace
}  // namespace zephon
