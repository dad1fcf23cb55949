#include "pdf/object_file.h"

#include <limits>

#include "pdf/content.h"
#include "platform/error_text.h"

namespace zephon {
namespace {

constexpr std::size_t kBlock = 1 << 16;
constexpr int kMostObjects = std::numeric_limits<std::int16_t>::max();
constexpr std::int64_t kMostOffset = std::numeric_limits<std::int32_t>::max();

}  // namespace

SaveResult ObjectFile::open(const std::string& path) {
  pending_.clear();
  offsets_.clear();
  offset_ = 0;
  failure_.clear();
  return save_.begin(path);
}

int ObjectFile::start() {
  if (last() == kMostObjects) {
    fail("the document has too many objects");
    return last();
  }
  offsets_.push_back(offset_);
  return last();
}

void ObjectFile::write(std::string_view piece) {
  offset_ += static_cast<std::int64_t>(piece.size());
  if (offset_ > kMostOffset) fail("the document is too large");
  append(piece);
}

void ObjectFile::writeLine(std::string_view piece) {
  write(piece);
  append(kCrLf);
}

void ObjectFile::writeMarker(std::string_view marker) {
  append(marker);
  append(kCrLf);
}

bool ObjectFile::finish() {
  flush();
  if (save_.isOpen()) check(save_.finish());
  return failure_.empty();
}

void ObjectFile::append(std::string_view bytes) {
  if (!save_.isOpen()) return;
  pending_ += bytes;
  if (pending_.size() >= kBlock) flush();
}

void ObjectFile::flush() {
  if (save_.isOpen()) check(save_.write(pending_));
  pending_.clear();
}

void ObjectFile::check(const SaveResult& result) {
  if (!result) fail(systemErrorText(result.error));
}

void ObjectFile::fail(const std::string& why) {
  if (failure_.empty()) failure_ = why;
  save_.drop();
}

}  // namespace zephon
