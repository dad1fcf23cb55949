#include "protocol/counters.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "protocol/exchange.h"
#include "protocol/firmware_gates.h"
#include "protocol/stay.h"
#include "text/number.h"

namespace zephon {
namespace {

using C = Counters;
using E = MeasurementElements;

// In the order of the pass.
struct CountQuery {
  const DeviceCommand& command;
  std::int32_t Counters::*count;
};
constexpr std::array<CountQuery, 6> kQueries = {{{orvantis::kPoCount, &C::poCount},
                                                 {orvantis::kUvcoCount, &C::uvcoCount},
                                                 {orvantis::kUvreCount, &C::uvreCount},
                                                 {orvantis::kOvreCount, &C::ovreCount},
                                                 {orvantis::kOvcoCount, &C::ovcoCount},
                                                 {orvantis::kSgCount, &C::sgCount}}};
constexpr CountQuery kOverloadQuery{orvantis::kOlCount, &C::olCount};

double share(std::int32_t count, std::int64_t total) {
  return std::nearbyint(static_cast<double>(count) / static_cast<double>(total) * 100.0);
}

bool counted(const CountClass& one, std::int16_t modelLine) {
  return modelLine == 0 || one.inImage;
}

std::int64_t totalOf(const Counters& counters, std::int16_t modelLine) {
  std::int64_t total = 0;
  for (const CountClass& one : kCountClasses) {
    if (counted(one, modelLine)) total += counters.*one.count;
  }
  return total;
}

bool readCount(Main& main, const CountQuery& query) {
  const std::int32_t count = getDecimal(main, query.command);
  main.counters.*query.count = count == -1 ? 0 : count;
  return count != -1;
}

bool clearOnDevice(Main& main, const DeviceCommand& ofFirstLine) {
  if (main.link.modelLine == 0) return confirmedWrite(main, ofFirstLine, 50, "Y");
  flushPort(main);
  sendText(main, tessara::kClear.text);
  return true;
}

}  // namespace

constinit const std::array<CountClass, 7> kCountClasses = {
    {{&C::olCount, &E::OLrecTxt, &E::PDlbl7, false},
     {&C::poCount, &E::POrecTxt, &E::PDlbl1, true},
     {&C::uvcoCount, &E::UVcorecTxt, &E::PDlbl2, false},
     {&C::uvreCount, &E::UVrerecTxt, &E::PDlbl3, true},
     {&C::ovreCount, &E::OVrerecTxt, &E::PDlbl4, true},
     {&C::ovcoCount, &E::OVcorecTxt, &E::PDlbl5, false},
     {&C::sgCount, &E::SGrecTxt, &E::PDlbl6, true}}};

bool isCounted(const Link& link, const CountClass& one) {
  if (link.modelLine == 1) return one.inImage;
  return one.count != &C::olCount || countsOverloads(kindOf(link));
}

StackedShares stackedShares(const Counters& counters, std::int16_t modelLine) {
  const std::int64_t total = std::max<std::int64_t>(totalOf(counters, modelLine), 1);
  StackedShares values;
  double top = 0;
  for (std::size_t i = 0; i < kCountClasses.size(); ++i) {
    if (!counted(kCountClasses[i], modelLine)) continue;
    top += share(counters.*kCountClasses[i].count, total);
    values[i] = top;
  }
  return values;
}

std::optional<std::int16_t> imageTotal(const Counters& counters) {
  return toInt16(static_cast<double>(totalOf(counters, 1)));
}

void showCounts(Main& main) {
  const StackedShares values = stackedShares(main.counters, main.link.modelLine);
  for (std::size_t i = 0; i < kCountClasses.size(); ++i) {
    if (!values[i]) continue;
    main.measurement.recSlide.setPointerValue(i + 1, *values[i]);
    TextBox& box = main.measurement.*kCountClasses[i].box;
    box.setText(std::to_string(main.counters.*kCountClasses[i].count));
    box.setStale(false);
  }
}

void markCountsStale(Main& main) {
  for (const CountClass& one : kCountClasses) {
    if (isCounted(main.link, one)) (main.measurement.*one.box).setStale(true);
  }
}

bool getPDevents(Main& main) {
  if (!Stay(main).wait(20)) return false;
  for (const CountQuery& query : kQueries) {
    if (!readCount(main, query)) return false;
  }
  if (isCounted(main.link, kCountClasses[0]) && !readCount(main, kOverloadQuery)) return false;
  showCounts(main);
  return true;
}

bool setClrPDCounts(Main& main) {
  return clearOnDevice(main, orvantis::kClearCounts);
}

bool setClrTSdata(Main& main) {
  return clearOnDevice(main, orvantis::kClearEvents);
}

}  // namespace zephon
