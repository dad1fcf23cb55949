#include "protocol/meters.h"

#include <limits>

#include "text/picture.h"

namespace zephon {
namespace {

constexpr float kUnbounded = std::numeric_limits<float>::infinity();

constexpr LabelRule always(std::string_view picture) {
  return {picture, picture, kUnbounded};
}

using R = Readings;
using E = MeasurementElements;

}  // namespace

constinit const std::array<Meter, 7> kMeters = {{
    {MeterId::Vln, "V", &orvantis::kVlnRms, 512.0f, 2, always("00.00"), 1.0f, &R::lastVln, &E::VlnSlide,
     &E::VlnLbl},
    {MeterId::I,
     "A",
     &orvantis::kIRms,
     256.0f,
     3,
     {"0.000", "0.00", 10.0f},
     0.1f,
     &R::lastI,
     &E::ISlide,
     &E::Ilbl},
    {MeterId::P, "W", &orvantis::kPavg, 262144.0f, 2, always("0.0"), 10.0f, &R::lastP, &E::PSlide, &E::Plbl},
    {MeterId::Vng,
     "V",
     &orvantis::kVngRms,
     65536.0f,
     3,
     {"0.000", "0.00", 100.0f},
     0.1f,
     &R::lastVng,
     &E::VngSlide,
     &E::VngLbl},
    {MeterId::F, "Hz", &orvantis::kFrequency, 8000.0f, 2, always("00.00"), 0.5f, &R::lastF, &E::fSlide,
     &E::fLbl},
    {MeterId::PF, "PF", &orvantis::kPowerFactor, 2.0f, 3, always("0.000"), 0.1f, &R::lastPF, &E::pfSlide,
     &E::pfLbl},
    {MeterId::CF, "CF", &orvantis::kPeakVolts, 512.0f, 3, always("0.000"), 0.1f, &R::lastCF, &E::cfSlide,
     &E::cfLbl},
}};

const Meter& meterOf(MeterId id) {
  return kMeters[static_cast<std::size_t>(id)];
}

std::optional<std::string> readingText(const Meter& meter, float reading) {
  if (reading == meter.label.split) return {};
  const auto picture = reading > meter.label.split ? meter.label.above : meter.label.below;
  return formatPicture(reading, picture) + ' ' + std::string(meter.unit);
}

Colour colourIn(const Bands& bands, float reading) {
  if (reading >= bands.greenFrom && reading <= bands.greenTo) return kGreen;
  if (reading >= bands.yellowFrom && reading <= bands.yellowTo) return kYellow;
  return kRed;
}

std::optional<Bands> bandsOf(MeterId id, float reading, const Limits& limits, int nominalVolts) {
  const auto nominal = static_cast<float>(nominalVolts);
  const auto hertz = static_cast<float>(nominalHertz(reading));
  switch (id) {
    case MeterId::Vln:
      return Bands{static_cast<float>(limits.UVre), static_cast<float>(limits.OVre),
                   static_cast<float>(limits.UVco), static_cast<float>(limits.OVco)};
    case MeterId::I:
      return Bands{-kUnbounded, 15, -kUnbounded, 20};
    case MeterId::P:
      return Bands{-kUnbounded, nominal * 15, -kUnbounded, nominal * 20};
    case MeterId::Vng:
      if (nominalVolts != 120) return {};
      return Bands{-kUnbounded, 3, -kUnbounded, 5};
    case MeterId::F:
      return Bands{hertz - 0.5f, hertz + 0.5f, hertz - 1, hertz + 1};
    case MeterId::PF:
      return Bands{0.6f, kUnbounded, 0.4f, kUnbounded};
    case MeterId::CF:
      return Bands{1.35f, 1.45f, 1.2f, 1.6f};
  }
  return {};
}

int nominalHertz(float hertz) {
  return hertz - 50 < 4 ? 50 : 60;
}

std::optional<Slider::Axis> axisOf(MeterId id, float reading) {
  if (id == MeterId::F) {
    const double nominal = nominalHertz(reading);
    return Slider::Axis{nominal - 5, nominal + 5, 1, 0.5};
  }
  if (id == MeterId::Vng) return reading < 20 ? Slider::Axis{0, 10, 1, 1} : Slider::Axis{0, 280, 40, 20};
  return {};
}

}  // namespace zephon
