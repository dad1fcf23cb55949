#include <algorithm>
#include <array>

#include "pdf/lark_pdf.h"
#include "platform/read_file.h"
#include "text/strings.h"

namespace zephon {
namespace {

constexpr std::size_t kMostBytes = std::size_t{64} << 20;
constexpr std::string_view kHeading = "Image File - ";

std::string twoLines(std::string_view first, std::string_view second) {
  return std::string(first) + std::string(kCrLf) + std::string(second);
}

// Why a file's name is not one of a picture; empty if it is.
std::string nameFault(const std::string& file) {
  const std::string name = file.substr(file.rfind('/') + 1);
  const std::size_t point = name.rfind('.');
  if (point == std::string::npos)
    return twoLines("File " + file + " does not have an extension", "Invalid filename specified.");
  const std::string_view extension = std::string_view(name).substr(point + 1);
  if (equalIgnoringCase(extension, "jpg") || equalIgnoringCase(extension, "jpeg")) return {};
  return twoLines("Impossible to include image in PDF file.", "Only JPEG images are supported.");
}

std::string headerFault(JpegFault fault) {
  switch (fault) {
    case JpegFault::None:
      return {};
    case JpegFault::Empty:
      return twoLines("Cannot add image to PDF file.", "File Image is non JPEG");
    case JpegFault::Markers:
      return twoLines("Cannot add iamge to PDF file.", "Invalid JPEG marker");
    case JpegFault::Density:
      return twoLines("Cannot add image to PDF file.",
                      twoLines("Invalid image resolution", "Valid resolution is: 0, 1, 2."));
    case JpegFault::NoFrame:
      break;
  }
  return twoLines("Impossible to include image in PDF file.", "Image format not supported.");
}

// A side that isn't given follows from the other, or is the picture's own.
void completeSize(double& width, double& height, const JpegHeader& header, double scale) {
  const double across = header.width;
  const double up = header.height;
  if (width == 0) width = height == 0 ? across / scale : height * across / up;
  if (height == 0) height = width * up / across;
}

}  // namespace

// A file that can't be read counts as empty.
std::optional<LarkPDF::Image> LarkPDF::readImage(const std::string& file) const {
  std::string fault = nameFault(file);
  Image image;
  if (fault.empty()) {
    image = {file, readFile(file, kMostBytes).bytes, {}};
    image.header = readJpegHeader(image.bytes);
    fault = headerFault(image.header.fault);
  }
  if (fault.empty()) return image;
  tell(kHeading, fault);
  return {};
}

// A file's place in the table, from 1 on, where it comes at its first use. One that is no picture is told once.
std::optional<std::size_t> LarkPDF::imageNumber(const std::string& file) {
  const auto known = std::ranges::find(images_, file, &Image::file);
  if (known != images_.end()) return static_cast<std::size_t>(known - images_.begin()) + 1;
  if (std::ranges::find(refused_, file) != refused_.end()) return {};
  auto image = readImage(file);
  if (!image) {
    refused_.push_back(file);
    return {};
  }
  images_.push_back(std::move(*image));
  return images_.size();
}

void LarkPDF::PDFImage(const std::string& file, double x, double y, double width, double height,
                       std::string_view url) {
  if (!isOpen()) return;
  const auto number = imageNumber(file);
  if (!number) return;
  completeSize(width, height, images_[*number - 1].header, scale_);
  const Point corner = place(x, y + height);
  const Box box{corner.x, corner.y, width * scale_, height * scale_};
  content_ << "q " << box.width << " 0 0 " << box.height << ' ' << box.x << ' ' << box.y << " cm /ImgJPEG"
           << *number << " Do Q" << kCrLf;
  if (!url.empty()) addLinkArea(box, url, LinkKind::Image);
}

int LarkPDF::PDFImageWidth(const std::string& file) {
  const auto image = readImage(file);
  return image ? image->header.width : 0;
}

int LarkPDF::PDFImageHeight(const std::string& file) {
  const auto image = readImage(file);
  return image ? image->header.height : 0;
}

}  // namespace zephon
