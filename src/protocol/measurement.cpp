#include "protocol/measurement.h"

#include <array>
#include <cmath>

#include "protocol/counters.h"
#include "protocol/dict_text.h"
#include "protocol/encodings.h"
#include "protocol/energy.h"
#include "protocol/exchange.h"
#include "protocol/firmware_gates.h"
#include "protocol/measurement_show.h"
#include "protocol/outlets.h"
#include "protocol/pic_import.h"
#include "protocol/sampled_volts.h"
#include "protocol/stay.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyCapacitive = 69;
constexpr std::size_t kKeyInductive = 70;

// How the first line reads a meter; the order of the pass.
struct Query {
  MeterId id;
  bool (*read)(Main&);
};
constexpr std::array<Query, 7> kQueries = {{{MeterId::Vln, getVLNrms},
                                            {MeterId::I, getIrms},
                                            {MeterId::P, getPavg},
                                            {MeterId::Vng, getVNGrms},
                                            {MeterId::F, getFrequency},
                                            {MeterId::PF, getPF},
                                            {MeterId::CF, getCF}}};

bool isOn(const Main& main, MeterId id) {
  return (main.measurement.*meterOf(id).slider).on();
}

void showRounded(Main& main, const Meter& meter, float reading) {
  const float rounded = roundDecimals(reading, meter.decimals);
  showReading(main, meter, rounded, readingText(meter, rounded));
}

bool readFraction(Main& main, MeterId id) {
  const Meter& meter = meterOf(id);
  const float fraction = getUnscaledFraction(main, *meter.read, false);
  if (fraction == noFraction) return false;
  showRounded(main, meter, fraction * meter.fullScale);
  return true;
}

// What the load is, with a blank in front; nothing for a plain one.
std::string loadKind(const Main& main, char letter) {
  if (letter == 'C') return ' ' + dictText(main, kKeyCapacitive);
  if (letter == 'L') return ' ' + dictText(main, kKeyInductive);
  return {};
}

bool readMeters(Main& main, const Stay& stay) {
  for (const Query& query : kQueries) {
    if (!isOn(main, query.id)) {
      showUnit(main, meterOf(query.id));
      continue;
    }
    if (!query.read(main)) return false;
    if (query.id != MeterId::CF && !stay.wait(10)) return false;
  }
  return true;
}

// The buttons only ask: the pass is the one that clears, so that no exchange is broken into.
bool serveRequest(Main& main, const Stay& stay, bool& request, bool (*clear)(Main&), Button& button) {
  if (!request) return true;
  if (!clear(main)) return false;
  request = false;
  if (stay.stands()) button.setEnabled(true);
  return stay.stands();
}

bool clearCounts(Main& main, const Stay& stay) {
  return serveRequest(main, stay, main.counters.clearCountsRequest, setClrPDCounts,
                      main.measurement.clrCountBtn);
}

bool clearEnergy(Main& main, const Stay& stay) {
  return serveRequest(main, stay, main.energy.clearEnergyRequest, setClrEU, main.measurement.clrEUbtn);
}

bool passOfFirstLine(Main& main, const Stay& stay) {
  if (!readMeters(main, stay)) return false;
  if (main.measurement.recSlide.on() && !getPDevents(main)) return false;
  if (main.frame.EUlbl.visible() && !getEU(main)) return false;
  return clearCounts(main, stay) && clearEnergy(main, stay);
}

bool readMemoryAndOutlets(Main& main, const Stay& stay) {
  return stay.wait(100) && importPIC(main) && stay.wait(50) && getOutletsTR(main) && stay.wait(50);
}

bool readLineGround(Main& main, const Stay& stay) {
  if (isOn(main, MeterId::Vln)) return getVLGtr(main) && stay.wait(50);
  showUnit(main, meterOf(MeterId::Vln));
  return true;
}

bool readNeutralGround(Main& main, const Stay& stay) {
  if (!isOn(main, MeterId::Vng)) {
    showUnit(main, meterOf(MeterId::Vng));
    return true;
  }
  if (!pollsNeutralGround(kindOf(main.link))) return true;
  return getVNGtr(main) && stay.wait(50);
}

// Its limits, counters and outlets are read in every fifth pass.
bool passOfSecondLine(Main& main, const Stay& stay) {
  std::int16_t& phase = main.readings.pollPhase;
  if (phase == 0 && !readMemoryAndOutlets(main, stay)) return false;
  phase = static_cast<std::int16_t>(phase < 4 ? phase + 1 : 0);
  return readLineGround(main, stay) && readNeutralGround(main, stay) && clearCounts(main, stay);
}

}  // namespace

bool getVLNrms(Main& main) {
  return readFraction(main, MeterId::Vln);
}
bool getIrms(Main& main) {
  return readFraction(main, MeterId::I);
}
bool getPavg(Main& main) {
  return readFraction(main, MeterId::P);
}
bool getVNGrms(Main& main) {
  return readFraction(main, MeterId::Vng);
}
bool getFrequency(Main& main) {
  return readFraction(main, MeterId::F);
}

bool getPF(Main& main) {
  const Meter& meter = meterOf(MeterId::PF);
  const auto reply = countedQuery(main, *meter.read);
  if (!reply) return false;
  const auto fraction = static_cast<float>(unscaledFraction(reply->substr(0, 1), true));
  const float factor = roundDecimals(fraction * meter.fullScale, meter.decimals);
  showReading(main, meter, factor, readingText(meter, factor).value_or("") + loadKind(main, (*reply)[1]));
  return true;
}

bool getCF(Main& main) {
  const Meter& meter = meterOf(MeterId::CF);
  float fraction = getUnscaledFraction(main, *meter.read, false);
  if (fraction == noFraction) return false;
  fraction = std::fabs(fraction);
  float& volts = main.readings.lastVln;
  if (volts == 0.0f) volts = 1.0f;  // and it stays so
  showRounded(main, meter, (fraction + fraction) * meter.fullScale / volts);
  return true;
}

bool getMeasurements(Main& main) {
  const Stay stay(main);
  const bool read = main.link.modelLine == 1 ? passOfSecondLine(main, stay) : passOfFirstLine(main, stay);
  const bool done = read && stay.stands();
  if (done) return true;
  main.exchange.Timer1.setEnabled(false);
  if (stay.stands()) markStale(main);
  return false;
}

}  // namespace zephon
