#include "simulator/program/arguments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace zephon::simulator {
namespace {

constexpr double kSecondsPerDay = 86400.0;

// The line and the rating come first; what the others say is laid over the device that these make.
struct Draft {
  Line line = Line::Orvantis;
  int rating = 120;
  std::optional<double> siteVolts;
  std::optional<std::string> firmware;
  std::optional<std::string> userId;
  double pastDays = 30;
  ChartFitted chartMemory = ChartFitted::TwelvePages;
  Arguments out;
};

template <typename Number>
bool readNumber(std::string_view text, Number least, Number most, Number& number) {
  Number read{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read);
  if (error != std::errc() || end != text.data() + text.size() || !(read >= least && read <= most))
    return false;
  number = read;
  return true;
}

bool readRating(std::string_view text, Draft& draft) {
  return readNumber(text, 120, 240, draft.rating) && draft.rating % 120 == 0;
}

bool readSiteVolts(std::string_view text, Draft& draft) {
  double volts = 0;
  if (!readNumber(text, 1.0, 400.0, volts)) return false;
  draft.siteVolts = volts;
  return true;
}

bool readFault(std::string_view text, Draft& draft) {
  const auto fault = parseFault(text);
  if (fault) draft.out.faults.push_back(*fault);
  return fault.has_value();
}

bool readOutletFault(std::string_view text, Draft& draft) {
  if (text.size() != 1 || std::string_view("GRSTV").find(text) == std::string_view::npos) return false;
  draft.out.outletFault = text[0];
  return true;
}

bool readSite(std::string_view text, Draft& draft) {
  const auto story = storyNamed(text);
  if (story) draft.out.options.site = *story;
  return story.has_value();
}

bool readWaveform(std::string_view text, Draft& draft) {
  draft.out.options.waveform = waveformNamed(text);
  return draft.out.options.waveform.has_value();
}

struct HeldName {
  std::string_view name;
  std::optional<double> Held::*value;
};
constexpr std::array<HeldName, 7> kHeldNames = {{{"volts", &Held::volts},
                                                 {"amps", &Held::amps},
                                                 {"watts", &Held::watts},
                                                 {"neutral", &Held::neutralGroundVolts},
                                                 {"hertz", &Held::hertz},
                                                 {"pf", &Held::powerFactor},
                                                 {"crest", &Held::crestFactor}}};

// "volts=118.5,amps=3"
bool readHeld(std::string_view text, Draft& draft) {
  while (!text.empty()) {
    const std::string_view setting = text.substr(0, text.find(','));
    text.remove_prefix(std::min(text.size(), setting.size() + 1));
    const auto* row = std::find_if(kHeldNames.begin(), kHeldNames.end(), [setting](const HeldName& one) {
      return setting.size() > one.name.size() && setting.starts_with(one.name) &&
             setting[one.name.size()] == '=';
    });
    double value = 0;
    if (row == kHeldNames.end() || !readNumber(setting.substr(row->name.size() + 1), -1.0, 100'000.0, value))
      return false;
    draft.out.held.*row->value = value;
  }
  return true;
}

bool readChartMemory(std::string_view text, Draft& draft) {
  draft.chartMemory = text == "2"   ? ChartFitted::FourPages
                      : text == "4" ? ChartFitted::TwelvePages
                                    : ChartFitted::None;
  return text == "2" || text == "4" || text == "none";
}

bool readFolder(std::string_view text, Draft& draft) {
  draft.out.portsFolder = text;
  return !text.empty();
}

struct Option {
  std::string_view name;
  std::string_view value;  // what it takes; empty: nothing
  std::string_view help;
  bool (*take)(std::string_view value, Draft& draft);
};

constexpr std::array kOptions = std::to_array<Option>({
    {"--orvantis", "", "a device of the first line, at 115200 baud (this is the default)",
     [](std::string_view, Draft& d) { return d.line = Line::Orvantis, true; }},
    {"--tessara", "", "a device of the second line, at 9600 baud",
     [](std::string_view, Draft& d) { return d.line = Line::Tessara, true; }},
    {"--120", "", "rated 120 V (this is the default)",
     [](std::string_view, Draft& d) { return d.rating = 120, true; }},
    {"--240", "", "rated 240 V", [](std::string_view, Draft& d) { return d.rating = 240, true; }},
    {"--volts", "120|240", "the rating as a number", readRating},
    {"--site-volts", "VOLTS", "what the site delivers: 120, 208, 230, 240 or any other voltage",
     readSiteVolts},
    {"--firmware", "TEXT", "four characters; 1.KD1 is taken for 1KD1 on the first line",
     [](std::string_view text, Draft& d) { return d.firmware = std::string(text), true; }},
    {"--name", "TEXT", "the name stored in a first-line device",
     [](std::string_view text, Draft& d) { return d.userId = std::string(text), true; }},
    {"--ports", "DIR", "the folder for the link to the port; otherwise the one that ZEPHON_PORTS names",
     readFolder},
    {"--port", "N", "the link is called COMN (1)",
     [](std::string_view text, Draft& d) { return readNumber(text, 1, 256, d.out.port); }},
    {"--seed", "N", "another seed makes another site (1)",
     [](std::string_view text,
        Draft& d) { return readNumber(text, std::uint64_t{0}, ~std::uint64_t{0}, d.out.options.seed); }},
    {"--site", "NAME",
     "lively (this is the default), healthy, sagging-feeder, overloaded-circuit, square-wave-ups or\n"
     "      growing-load",
     readSite},
    {"--waveform", "NAME",
     "what the scope sees: sine, switching-supply, phase-shifted, square-ups or sag; without it what the\n"
     "      site has",
     readWaveform},
    {"--hold", "NAME=VALUE,...", "holds what the meters see: volts, amps, watts, neutral, hertz, pf, crest",
     readHeld},
    {"--past", "DAYS", "how long the device has stood at the site, up to 200 (30)",
     [](std::string_view text, Draft& d) { return readNumber(text, 0.0, 200.0, d.pastDays); }},
    {"--chart-memory", "2|4|none", "4 pages, 12 pages (this is the default) or none", readChartMemory},
    {"--recording-hours", "HOURS", "how long the chart memory has been recording; 0: it is off (24)",
     [](std::string_view text, Draft& d) {
       return readNumber(text, 0.0, 4800.0, d.out.options.recordingHours);
     }},
    {"--steady", "", "no disturbances at the site",
     [](std::string_view, Draft& d) { return d.out.options.disturbances = false, true; }},
    {"--fault", "KIND[:NAME=VALUE,...]",
     "silent, short, stray, late, refuse, cut, garbage, doubled, stall or corrupt; names: amount (bytes, or\n"
     "      ms of late and stall; a stall of 0 is for ever), at (a byte of the reply), only (a command),\n"
     "      count (commands), after and for (seconds). It can be given many times",
     readFault},
    {"--outlet-fault", "LETTER", "the outlets show a fault: G, R, S, T or V", readOutletFault},
    {"--fast", "", "bytes take no time on the line",
     [](std::string_view, Draft& d) { return d.out.options.paced = false, true; }},
    {"--quiet", "", "does not tell where the port is",
     [](std::string_view, Draft& d) { return d.out.quiet = true; }},
    {"--list-commands", "", "prints what the device understands, and ends",
     [](std::string_view, Draft& d) { return d.out.listCommands = true; }},
    {"--help", "", "prints this, and ends", [](std::string_view, Draft& d) { return d.out.help = true; }},
});

// What is wrong with the words, or an empty text.
std::string readWords(std::span<const std::string_view> words, Draft& draft) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto option =
        std::find_if(kOptions.begin(), kOptions.end(), [&](const Option& o) { return o.name == words[i]; });
    if (option == kOptions.end()) return "unknown option " + std::string(words[i]);
    std::string_view value;
    if (!option->value.empty()) {
      if (++i == words.size()) return std::string(option->name) + " needs " + std::string(option->value);
      value = words[i];
    }
    if (!option->take(value, draft))
      return "bad value of " + std::string(option->name) + ": " + std::string(value);
  }
  return {};
}

std::string layFirmware(std::string text, Profile& profile) {
  const bool pointed = profile.line == Line::Orvantis && text.size() == 5 && text[1] == '.';
  if (pointed) text.erase(1, 1);
  if (text.size() != 4) return "bad value of --firmware: it has four characters";
  profile.firmware = text;
  return {};
}

std::string makeDevice(const Draft& draft, Profile& profile) {
  profile = makeProfile(draft.line, draft.rating);
  profile.chartMemory = draft.chartMemory;
  if (draft.siteVolts) profile.siteVolts = *draft.siteVolts;
  if (draft.userId) profile.userId = *draft.userId;
  return draft.firmware ? layFirmware(*draft.firmware, profile) : std::string();
}

}  // namespace

Arguments parseArguments(std::span<const std::string_view> words, std::string_view portsFolder,
                         std::int64_t now) {
  Draft draft;
  draft.out.options.recordingHours = 24;
  draft.out.portsFolder = portsFolder;
  draft.out.error = readWords(words, draft);
  Arguments& out = draft.out;
  if (out.error.empty()) out.error = makeDevice(draft, out.profile);
  out.options.unixStart = now;
  out.options.pastSeconds = draft.pastDays * kSecondsPerDay;
  const bool runs = !out.help && !out.listCommands;
  if (out.error.empty() && runs && out.portsFolder.empty()) out.error = "--ports DIR is needed";
  return out;
}

std::string helpText() {
  std::string text = "zephon-simulator: a simulated power conditioner on a pseudo-terminal\n\n";
  for (const Option& option : kOptions) {
    text += "  " + std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value);
    text += "\n      " + std::string(option.help) + "\n";
  }
  return text;
}

}  // namespace zephon::simulator
