#include "protocol/measurement_show.h"

#include <cmath>

#include "protocol/counters.h"

namespace zephon {
namespace {

void movePointer(const Meter& meter, Slider& slider, float reading) {
  if (std::fabs(reading - static_cast<float>(slider.value())) > meter.pointerStep) slider.setValue(reading);
}

bool polled(const Link& link, MeterId id) {
  return link.modelLine == 0 || id == MeterId::Vln || id == MeterId::Vng;
}

}  // namespace

void showReading(Main& main, const Meter& meter, float reading, const std::optional<std::string>& text) {
  main.readings.*meter.latest = reading;
  Slider& slider = main.measurement.*meter.slider;
  if (const auto axis = axisOf(meter.id, reading)) slider.setAxis(*axis);
  movePointer(meter, slider, reading);
  const auto bands = bandsOf(meter.id, reading, main.limits, main.link.nominalVolts);
  if (bands) slider.setPointerColour(0, colourIn(*bands, reading));
  Label& label = main.measurement.*meter.text;
  if (text) label.setCaption(*text);
  label.setStale(false);
}

void showUnit(Main& main, const Meter& meter) {
  Label& label = main.measurement.*meter.text;
  label.setCaption(std::string(meter.unit));
  label.setStale(false);
}

void markStale(Main& main) {
  MeasurementElements& m = main.measurement;
  for (const Meter& meter : kMeters) {
    if (polled(main.link, meter.id) && (m.*meter.slider).on()) (m.*meter.text).setStale(true);
  }
  if (m.recSlide.on()) markCountsStale(main);
  if (main.link.modelLine == 0 && main.frame.EUlbl.visible()) m.EUtxt.setStale(true);
}

}  // namespace zephon
