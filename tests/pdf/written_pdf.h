#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "pdf/lark_pdf.h"
#include "support/temp_folder.h"

namespace zephon {

// The bytes of a document, looked at without help from what wrote them.
class WrittenPdf {
 public:
  explicit WrittenPdf(std::string bytes) : bytes_(std::move(bytes)) {}

  const std::string& bytes() const { return bytes_; }
  std::size_t positionOf(int number) const {
    const std::size_t found = bytes_.find("\r\n" + std::to_string(number) + " 0 obj\r\n");
    return found == std::string::npos ? found : found + 2;
  }
  // From behind its head to "endobj"; empty for an object that isn't there.
  std::string object(int number) const {
    const std::size_t start = positionOf(number);
    if (start == std::string::npos) return {};
    const std::size_t body = bytes_.find("\r\n", start) + 2;
    return bytes_.substr(body, bytes_.find("endobj\r\n", body) - body);
  }
  // What lies between "stream" and "endstream", without their line ends.
  std::string stream(int number) const {
    const std::string text = object(number);
    const std::size_t start = text.find("stream\r\n") + 8;
    return text.substr(start, text.rfind("\r\nendstream") - start);
  }
  std::string after(std::string_view key) const {
    const std::size_t start = bytes_.rfind(key) + key.size();
    return bytes_.substr(start, bytes_.find("\r\n", start) - start);
  }
  int count(std::string_view what) const {
    int found = 0;
    for (std::size_t i = 0; (i = bytes_.find(what, i)) != std::string::npos; ++i) ++found;
    return found;
  }

 private:
  std::string bytes_;
};

// A document in a folder of its own, with what it has told.
struct PdfWorld {
  using Message = std::pair<std::string, std::string>;

  TempFolder folder;
  std::vector<Message> messages;
  std::vector<std::string> viewed;
  LarkPDF pdf{
      {folder / "",
       [] { return CalendarTime{2026, 3, 4, 5, 6, 7}; },
       [this](const std::string& title, const std::string& text) { messages.emplace_back(title, text); },
       [this](const std::string& file) { viewed.push_back(file); },
       {}}};

  // In points without margins, so that lengths are what is written.
  void begin(const std::string& fonts = ZEPHON_RESOURCES "/Fonts") {
    pdf.PDFLoadAfm(fonts);
    pdf.PDFSetUnit(0);
    pdf.PDFSetMargins(0, 0, 0);
    EXPECT_TRUE(pdf.PDFFileName("a.pdf"));
    EXPECT_TRUE(pdf.PDFBeginDoc());
  }
  WrittenPdf end() {
    EXPECT_TRUE(pdf.PDFEndDoc());
    return WrittenPdf(folder.get("a.pdf"));
  }
  // What the first page draws.
  std::string drawn() { return end().stream(2); }

  // A JPEG of one frame, with whatever stands before that.
  std::string picture(const std::string& name, const std::string& segments = {}, int components = 3) {
    const std::string frame = {'\xFF', '\xC0', 0, 8, 8, 0, 20, 0, 40, static_cast<char>(components)};
    return folder.put(name, "\xFF\xD8" + segments + frame + "\xFF\xD9");
  }
};

inline bool has(const std::string& text, std::string_view what) {
  return text.find(what) != std::string::npos;
}

}  // namespace zephon
