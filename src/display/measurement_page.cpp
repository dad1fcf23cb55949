#include "display/measurement_page.h"

#include "protocol/asking.h"
#include "protocol/counters.h"
#include "protocol/dict_text.h"
#include "protocol/measurement_show.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyCounters = 168;
constexpr std::size_t kKeyEnergy = 131;

void setOn(Slider& slider, bool on) {
  slider.setPointerMode(0, on ? 1 : 0);
  slider.setFill(on ? kMeterOn : kMeterOff);
}

void toggleMeter(Main& main, const Meter& meter) {
  Slider& slider = main.measurement.*meter.slider;
  setOn(slider, !slider.on());
  if (!slider.on()) showUnit(main, meter);
}

// Only the fields of what the device counts come back.
void toggleRecord(Main& main) {
  MeasurementElements& m = main.measurement;
  const bool on = !m.recSlide.on();
  setOn(m.recSlide, on);
  for (std::size_t i = 0; i < kCountClasses.size(); ++i) {
    const CountClass& one = kCountClasses[i];
    const bool visible = on && isCounted(main.link, one);
    m.recSlide.setPointerMode(i + 1, on ? 1 : 0);
    (m.*one.box).setVisible(visible);
    (m.*one.legend).setVisible(visible);
  }
  m.clrCountBtn.setEnabled(on && main.link.connected);
}

void toggleEnergy(Main& main) {
  MeasurementElements& m = main.measurement;
  const bool on = !main.frame.EUlbl.visible();
  m.EUtxt.setColour(on ? kBlack : kWhite);
  main.frame.EUlbl.setVisible(on);
  m.clrEUbtn.setVisible(on);
  if (on) m.clrEUbtn.setEnabled(true);
  m.EnRateTxt.setVisible(on);
  m.EnCostLbl.setVisible(on);
}

// The page may be left, and another device connected, while the question stands: then nothing is cleared.
void requestClear(Main& main, Button& button, std::size_t subjectKey, bool& request) {
  const Stay stay(main);
  if (!button.enabled() || !askToClear(main, dictText(main, subjectKey)) || !stay.stands()) return;
  request = true;
  button.setEnabled(false);
}

}  // namespace

void wireMeasurementPage(Main& main) {
  MeasurementElements& m = main.measurement;
  for (const Meter& meter : kMeters) {
    (m.*meter.slider).onClick = [&main, &meter] { toggleMeter(main, meter); };
  }
  m.recSlide.onClick = [&main] { toggleRecord(main); };
  m.EUtxt.onClick = [&main] { toggleEnergy(main); };
  m.clrCountBtn.onChange = [&main](bool pressed) {
    if (pressed)
      requestClear(main, main.measurement.clrCountBtn, kKeyCounters, main.counters.clearCountsRequest);
  };
  m.clrEUbtn.onChange = [&main](bool pressed) {
    if (pressed) requestClear(main, main.measurement.clrEUbtn, kKeyEnergy, main.energy.clearEnergyRequest);
  };
}

}  // namespace zephon
