#include "pdf/written_pdf.h"

namespace zephon {
namespace {

using namespace std::string_literals;

const std::string kStart = "\xFF\xD8";
const std::string kEnd = "\xFF\xD9";
const std::string kInches = "\xFF\xE0\0\x10JFIF\0\1\1\1\0\x48\0\x49\0\0"s;
const std::string kComment = "\xFF\xFE\0\6\xFF\xC0\1\1"s;  // what looks like a frame in it is none

std::string frame(char marker, char components) {
  return "\xFF"s + marker + "\0\x0B\x08\0\x14\0\x28"s + components + "\1\x11\0"s;
}

TEST(Jpeg, headersTellSizeColoursAndDensity) {
  for (const int marker : {0xC0, 0xC1, 0xC2, 0xC3, 0xC5, 0xC6, 0xC7}) {
    const auto header = readJpegHeader(kStart + kComment + frame(static_cast<char>(marker), 3) + kEnd);
    ASSERT_TRUE(header) << marker;
    EXPECT_TRUE(header.width == 40 && header.height == 20 && header.bitsPerComponent == 8) << marker;
    EXPECT_TRUE(header.colourSpace == "DeviceRGB" && header.densityUnit.empty()) << marker;
  }
  EXPECT_EQ(readJpegHeader(kStart + frame('\xC0', 1) + kEnd).colourSpace, "DeviceGray");
  const auto header = readJpegHeader(kStart + kInches + frame('\xC2', 4) + "\xFF\xDA" + kEnd);
  EXPECT_EQ(header.colourSpace, "DeviceCMYK");
  EXPECT_EQ(header.densityUnit, "Dots/inch (DPI)");
  EXPECT_TRUE(header.densityX == 72 && header.densityY == 73);
}

TEST(Jpeg, faultsAreToldApart) {
  const std::string good = frame('\xC0', 3);
  std::string badUnit = kInches;
  badUnit[11] = 3;
  const std::pair<std::string, JpegFault> cases[] = {
      {"", JpegFault::Empty},
      {kStart + good + "\xFF\xD8", JpegFault::Markers},
      {kStart + kEnd, JpegFault::NoFrame},
      {kStart + badUnit + good + kEnd, JpegFault::Density},
      {kStart + frame('\xC4', 3) + kEnd, JpegFault::NoFrame},        // tables
      {kStart + "\xFF\xDA\0\2"s + good + kEnd, JpegFault::NoFrame},  // the picture has begun
      {kStart + "\xFF\xE1\0\1"s + good + kEnd, JpegFault::NoFrame},  // shorter than its length's own bytes
      {kStart + "\xFF\xC0\0\7\x08\0\x14\0\x28"s + kEnd, JpegFault::NoFrame},
      {kStart + "\xFF\xC0\0\x0B\x08\0\0\0\x28\3\1\x11\0"s + kEnd, JpegFault::NoFrame}};
  for (const auto& [bytes, fault] : cases)
    EXPECT_EQ(readJpegHeader(bytes).fault, fault) << ::testing::PrintToString(bytes);
  const std::string whole = kStart + kInches + good;
  for (std::size_t cut = 0; cut < whole.size(); ++cut) {
    for (const std::string& end : {""s, kEnd})
      EXPECT_FALSE(readJpegHeader(whole.substr(0, cut) + end)) << cut;
  }
}

TEST(PdfImage, faultsHaveTheirWords) {
  PdfWorld world;
  world.begin();
  const std::pair<std::string, std::string> cases[] = {
      {world.folder.put("a.gif", "GIF89a"),
       "Impossible to include image in PDF file.\r\nOnly JPEG images are supported."},
      {world.folder / "missing.jpg", "Cannot add image to PDF file.\r\nFile Image is non JPEG"},
      {world.folder.put("text.JPG", "text"), "Cannot add iamge to PDF file.\r\nInvalid JPEG marker"},
      {world.folder.put("none.jpg", kStart + kInches + kEnd),
       "Impossible to include image in PDF file.\r\nImage format not supported."}};
  for (const auto& [file, text] : cases) {
    world.pdf.PDFImage(file, 1, 2, 3, 4);
    EXPECT_EQ(world.messages.back().second, text);
    world.pdf.PDFImage(file, 1, 2, 3, 4);
  }
  EXPECT_EQ(world.messages.size(), std::size(cases)) << "each file is told once";
  EXPECT_EQ(world.end().count("ImgJPEG"), 0);
}

TEST(PdfImage, oneFileIsOneObjectWithItsBytes) {
  PdfWorld world;
  world.begin(world.folder / "");
  const std::string bytes = kStart + kInches + frame('\xC0', 3) + "\xFF\xDA\nendobj\n" + kEnd;
  const std::string file = world.folder.put("a.jpg", bytes);
  EXPECT_TRUE(world.pdf.PDFImageWidth(file) == 40 && world.pdf.PDFImageHeight(file) == 20);
  const std::tuple<double, double, const char*> cases[] = {{0, 0, "q 40.00 0 0 20.00 10.00 801.89 cm"},
                                                           {10, 0, "q 10.00 0 0 5.00 10.00 816.89 cm"},
                                                           {0, 10, "q 20.00 0 0 10.00 10.00 811.89 cm"}};
  for (const auto& [width, height, matrix] : cases) world.pdf.PDFImage(file, 10, 20, width, height);
  const WrittenPdf written = world.end();
  for (const auto& [width, height, matrix] : cases)
    EXPECT_TRUE(has(written.stream(2), std::string(matrix) + " /ImgJPEG1 Do Q")) << matrix;
  EXPECT_EQ(written.count("/Subtype /Image"), 1);
  EXPECT_TRUE(has(written.bytes(),
                  "6 0 obj\r\n<</Type /XObject\r\n/Subtype /Image\r\n/Filter [/DCTDecode ]\r\n"
                  "/Width 40\r\n/Height 20\r\n/ColorSpace /DeviceRGB\r\n/BitsPerComponent 8\r\n"
                  "/Length " +
                      std::to_string(bytes.size()) + "\r\n/Name /ImgJPEG1\r\n>>\r\nstream\r\n" + bytes +
                      "\r\nendstream\r\nendobj\r\n%FIN_OBJ/%\r\n"));
}

}  // namespace
}  // namespace zephon
