#include "protocol/energy.h"

#include <array>
#include <exception>
#include <iomanip>
#include <sstream>

#include "protocol/device_date.h"
#include "protocol/dict_text.h"
#include "protocol/encodings.h"
#include "protocol/exchange.h"
#include "text/number.h"
#include "text/picture.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr float kUnit = 232.0f;
constexpr std::size_t kRegisterBytes = 4;
constexpr std::size_t kKeyEnergySince = 90;

struct SignCode {
  std::string_view code;
  int characterSet;
};
constexpr std::array<SignCode, 4> kSignCodes = {{{"36", 0}, {"163", 0}, {"128", 0}, {"122", 238}}};

// The locale that the computer is set to; the classic one when that is unknown or broken.
std::locale computerLocale() {
  try {
    return std::locale("");
  } catch (const std::exception&) {
    return std::locale::classic();
  }
}

void showEnergy(Main& main, std::string_view since) {
  MeasurementElements& m = main.measurement;
  const float kWh = main.energy.energyKWh;
  main.frame.EUlbl.setCaption(dictText(main, kKeyEnergySince) + ": " +
                              localTimeString(since, utcOffset(main.around.clock.now())));
  m.EUtxt.setText(energyText(kWh));
  m.EUtxt.setStale(false);
  const std::string sign = currencySymbol(main);
  m.EnCostLbl.setCaption(sign + ' ' + costText(kWh, rateOf(m.EnRateTxt.text())));
}

}  // namespace

float energyOf(std::string_view fourBytes) {
  return static_cast<float>(unscaledFraction(fourBytes, false)) * kUnit;
}

std::string energyText(float kWh) {
  return formatPicture(kWh, "###0.0000");
}

std::string costText(float kWh, double rate) {
  return formatPicture(static_cast<double>(kWh) * rate, "###0.00##");
}

double rateOf(std::string_view text) {
  return numberAtStart(text);
}

CurrencySign currencySign(std::string_view formattedTwo) {
  CurrencySign sign{std::string(formattedTwo)};
  std::erase_if(sign.text, [](char c) { return c == '.' || c == '0' || c == ','; });
  std::string codes;
  for (const char c : toWindows1252(sign.text)) codes += std::to_string(static_cast<std::uint8_t>(c));
  for (const SignCode& known : kSignCodes) {
    if (codes.find(known.code) == std::string::npos) continue;
    sign.characterSet = known.characterSet;
    break;
  }
  return sign;
}

// Money is put in the currency's smallest coins.
std::string formattedTwo(const std::locale& locale) {
  int digits = std::use_facet<std::moneypunct<char>>(locale).frac_digits();
  long double coins = 2;
  for (; digits > 0 && digits < 10; --digits) coins *= 10;
  std::ostringstream out;
  out.imbue(locale);
  out << std::showbase << std::put_money(coins);
  return isUtf8(out.str()) ? out.str() : fromWindows1252(out.str());
}

std::string currencySymbol(Main& main) {
  // Found once: to open a locale costs the processor more than all else that a polling pass does.
  static const CurrencySign sign = currencySign(formattedTwo(computerLocale()));
  main.measurement.EnCostLbl.setCharacterSet(sign.characterSet);
  return sign.text;
}

bool getEU(Main& main) {
  const auto reply = countedQuery(main, orvantis::kEnergy);
  if (!reply) return false;
  main.energy.energyKWh = energyOf(reply->substr(0, kRegisterBytes));
  if (main.pages.measuring) showEnergy(main, reply->substr(kRegisterBytes));
  return true;
}

bool setClrEU(Main& main) {
  return confirmedWrite(main, orvantis::kClearEnergy, 50, "Y");
}

}  // namespace zephon
