#include "protocol/pic_import.h"

#include <algorithm>

#include "protocol/counters.h"
#include "protocol/day_serial.h"
#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/limit_codes.h"
#include "protocol/pd_rotation.h"
#include "protocol/pic_image.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyLog = 36;
constexpr std::size_t kKeyDownloading = 79;
constexpr std::size_t kRingPosition = 253;
constexpr std::size_t kRecordLimits = 254;
constexpr std::size_t kShutdownLimits = 255;

void forget(Main& main) {
  const bool clearWanted = main.counters.clearCountsRequest;
  main.counters = {};
  main.counters.clearCountsRequest = clearWanted;
  main.picImage = {};
}

bool readImage(Main& main) {
  Button& button = main.data.tsDataBtn;
  button.setOffText(dictText(main, kKeyDownloading));
  const auto characters = countedQuery(main, tessara::kImage);
  button.setOffText(dictText(main, kKeyLog));
  if (!characters) return false;
  main.logs.rawLogBuffer = *characters;
  const auto image = decodeImage(*characters);
  if (image) main.picImage = *image;
  return image.has_value();
}

// How many rows of the event table are in use; nothing when there were too many events to count.
std::optional<std::size_t> takeCounts(Main& main) {
  const ImageCounts counts = imageCounts(main.picImage);
  main.counters.uvreCount = counts.uvreCount;
  main.counters.ovreCount = counts.ovreCount;
  main.counters.poCount = counts.poCount;
  main.counters.sgCount = counts.sgCount;
  const auto total = imageTotal(main.counters);
  if (!total) return std::nullopt;
  showCounts(main);
  return std::min(static_cast<std::size_t>(*total), kImageRecords);
}

bool takeEvents(Main& main, std::size_t count) {
  main.pdEvents = {};
  for (std::size_t row = 0; row < count; ++row)
    main.pdEvents[row] = imageEvent(main.picImage, row, main.dict);
  return rotatePDevents(main.pdEvents, imageCounts(main.picImage).total(), main.picImage[kRingPosition]);
}

void takeLimits(Main& main) {
  main.limits = limitsOfBytes(imageByte(main.picImage, kRecordLimits),
                              imageByte(main.picImage, kShutdownLimits), main.link.nominalVolts);
}

bool takeDates(Main& main, const Stay& stay, std::size_t count) {
  const CalendarTime present = presentTime(main.around.clock);
  if (!stay.wait(20)) return false;
  const auto reply = wholeReply(main, tessara::kSinceNewest);
  if (!reply) return false;
  const auto sinceNewest = decodeEventSpan(*reply);
  return sinceNewest && dateEvents(main.pdEvents, count, *sinceNewest, present);
}

bool import(Main& main) {
  const Stay stay(main);
  forget(main);
  if (!stay.wait(100) || !readImage(main)) return false;
  const auto count = takeCounts(main);
  if (!count || !takeEvents(main, *count)) return false;
  takeLimits(main);
  return takeDates(main, stay, *count);
}

}  // namespace

bool importPIC(Main& main) {
  return import(main) || main.pages.chartOn;
}

}  // namespace zephon
