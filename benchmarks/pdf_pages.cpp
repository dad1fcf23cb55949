// Documents of pages of sixty lines of text, held against libharu without compression: processor time, size
// of the file, and memory. Both write their files where no disk is waited for; ours is synced and renamed
// there as everywhere.

#include <hpdf.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/lark_pdf.h"
#include "support/child_process.h"
#include "support/process_use.h"
#include "support/results.h"

namespace {

using namespace zephon;
using namespace zephon::benchmarks;

constexpr int kLines = 60;
constexpr double kLeft = 30.5;
constexpr double kTop = 30.25;
constexpr double kLineHeight = 12.35;
constexpr int kSize = 10;
constexpr double kPageHeight = 841.89;
constexpr int kRuns = 21;

const std::vector<std::string>& lines() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> texts;
    for (int line = 0; line < kLines; ++line)
      texts.push_back(std::to_string(10 + line) +
                      ". The line-neutral voltage lay below its lower limit for 4 s (108.5 V), twice.");
    return texts;
  }();
  return all;
}

const std::string& folder() {
  static const std::string path = [] {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code error;
    const bool there = std::filesystem::is_directory(memory, error);
    return (there ? memory : std::filesystem::temp_directory_path()).string();
  }();
  return path;
}

std::string fileOf(std::string_view who) {
  return folder() + "/zephon-bench-" + std::string(who) + ".pdf";
}

void drawOurs(LarkPDF& pdf) {
  for (int line = 0; line < kLines; ++line)
    pdf.PDFTextOut(lines()[static_cast<std::size_t>(line)], kLeft, kTop + kLineHeight * line);
}

void writeOurs(int pages) {
  LarkPDF pdf;
  pdf.PDFLoadAfm(ZEPHON_RESOURCES "/Fonts");
  pdf.PDFSetUnit(0);
  pdf.PDFSetMargins(0, 0, 0);
  pdf.PDFFileName(fileOf("ours"));
  pdf.PDFBeginDoc();
  pdf.PDFSetFont(0, kSize, 0);
  for (int page = 1; page <= pages; ++page) {
    if (page > 1) pdf.PDFNewPage();
    drawOurs(pdf);
  }
  if (!pdf.PDFEndDoc()) std::fputs("our document is not saved\n", stderr);
}

void placeLine(HPDF_Page page, int line) {
  HPDF_Page_TextOut(page, static_cast<HPDF_REAL>(kLeft),
                    static_cast<HPDF_REAL>(kPageHeight - kTop - kLineHeight * line),
                    lines()[static_cast<std::size_t>(line)].c_str());
}

using Draw = void (*)(HPDF_Page page, HPDF_Font font);

// As one writes text with libharu: the font once a page, and one run of text.
void drawRun(HPDF_Page page, HPDF_Font font) {
  HPDF_Page_SetFontAndSize(page, font, kSize);
  HPDF_Page_BeginText(page);
  for (int line = 0; line < kLines; ++line) placeLine(page, line);
  HPDF_Page_EndText(page);
}

// As our texts stand: each by itself, with its font.
void drawTexts(HPDF_Page page, HPDF_Font font) {
  for (int line = 0; line < kLines; ++line) {
    HPDF_Page_BeginText(page);
    HPDF_Page_SetFontAndSize(page, font, kSize);
    placeLine(page, line);
    HPDF_Page_EndText(page);
  }
}

void tellError(HPDF_STATUS error, HPDF_STATUS detail, void* /*data*/) {
  std::fprintf(stderr, "libharu: %lx %lx\n", error, detail);
}

void writeTheirs(int pages, Draw draw = drawRun) {
  HPDF_Doc document = HPDF_New(tellError, nullptr);
  HPDF_SetCompressionMode(document, HPDF_COMP_NONE);
  HPDF_Font font = HPDF_GetFont(document, "Helvetica", "WinAnsiEncoding");
  for (int page = 0; page < pages; ++page) draw(HPDF_AddPage(document), font);
  HPDF_SaveToFile(document, fileOf("theirs").c_str());
  HPDF_Free(document);
}

template <class Work>
double millisecondsEach(int count, Work work) {
  const Millis before = processorTime();
  for (int i = 0; i < count; ++i) work();
  return (processorTime() - before).count() / count;
}

void measureTime(Results& results) {
  const struct {
    int pages;
    int documents;  // a run
    double limit;
  } cases[] = {{1000, 1, 1 / 4.0}, {10, 40, 1 / 2.0}, {1, 200, 1 / 1.2}};
  for (const auto& one : cases) {
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int run = 0; run < kRuns; ++run) {
      ours.push_back(millisecondsEach(one.documents, [&] { writeOurs(one.pages); }));
      theirs.push_back(millisecondsEach(one.documents, [&] { writeTheirs(one.pages); }));
    }
    results.add({"processor time, pages: " + std::to_string(one.pages), median(ours), median(theirs), "ms",
                 one.limit});
  }
}

double mebibytes(std::string_view who) {
  return static_cast<double>(std::filesystem::file_size(fileOf(who))) / (1 << 20);
}

// What the two remarks about each text take, which libharu has no call for.
double mebibytesOfRemarks(int pages) {
  constexpr std::string_view kRemarks = "%DEBUT_TEXT/%\r\n%FIN_TEXT/%\r\n";
  return static_cast<double>(kRemarks.size()) * kLines * pages / (1 << 20);
}

// Each of our texts stands by itself, two remarks about it: libharu's file of texts like that is the peer. Its
// shortest, one run of text a page without remarks, is told beside.
void measureSize(Results& results) {
  constexpr int kPages = 1000;
  writeOurs(kPages);
  writeTheirs(kPages, drawTexts);
  results.add(
      {"file, 1000 pages", mebibytes("ours"), mebibytes("theirs") + mebibytesOfRemarks(kPages), "MiB", 1});
  writeTheirs(kPages);
  results.add(
      {"the same, against one run of text a page", mebibytes("ours"), mebibytes("theirs"), "MiB", kNoLimit});
}

// The most that this process has held so far.
long peakKibibytes() {
  const std::string_view key = "VmHWM:";
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(key)) return std::stol(line.substr(key.size()));
  }
  return 0;
}

double growth(const std::string& who) {
  const auto peak = [&](const char* pages) {
    return std::stod("0" + ChildProcess({"/proc/self/exe", who, pages}).readLine());
  };
  return (peak("1000") - peak("1")) / 1024;
}

// The program itself, started as "ours 1000", writes one document and tells its peak.
void writeOne(std::string_view who, int pages) {
  if (who == "ours") {
    writeOurs(pages);
  } else {
    writeTheirs(pages);
  }
  std::printf("%ld\n", peakKibibytes());
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 3) {
    writeOne(arguments[1], std::stoi(arguments[2]));
    return 0;
  }
  Results results;
  measureTime(results);
  measureSize(results);
  results.add({"memory from 1 page to 1000", growth("ours"), growth("theirs"), "MiB", 0.1});
  for (const char* who : {"ours", "theirs"}) std::filesystem::remove(fileOf(who));
  return results.status();
}
