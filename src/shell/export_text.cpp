#include "shell/export_text.h"

#include <initializer_list>
#include <span>
#include <vector>

#include "files/csv_write.h"
#include "protocol/counters.h"
#include "protocol/day_serial.h"
#include "protocol/dict_text.h"
#include "protocol/event_codes.h"
#include "protocol/firmware_gates.h"
#include "text/date_picture.h"
#include "text/picture.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDate = 55;
constexpr std::size_t kKeyTime = 56;
constexpr std::size_t kKeyCounters = 168;
constexpr std::size_t kKeyEvents = 145;

// Lines of fields, and of one text.
class Lines {
 public:
  void add(const std::vector<std::string>& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (i > 0) text_ += ',';
      text_ += csvField(toWindows1252(oneLine(fields[i])));
    }
    text_ += kLineEnd;
  }
  void addText(const std::string& text) { text_ += fileLine(text); }
  std::string take() { return std::move(text_); }

 private:
  std::string text_;
};

// A column of the measurement line: its name's two dictionary keys (0 for none), and its picture.
struct Quantity {
  const char* before;
  std::size_t key, second;
  const char* picture;
  float Readings::*reading;
};

using R = Readings;
constexpr Quantity kVoltage{"", 201, 0, "##0.00", &R::lastVln};
constexpr Quantity kNeutralGround{"N-G ", 139, 0, "##0.000", &R::lastVng};
constexpr Quantity kFirstLine[] = {kVoltage,
                                   {"", 143, 140, "##0.0000", &R::lastI},
                                   {"", 143, 141, "0.0", &R::lastP},
                                   kNeutralGround,
                                   {"", 202, 0, "00.00", &R::lastF},
                                   {"", 129, 0, "0.000", &R::lastPF},
                                   {"", 130, 0, "0.000", &R::lastCF}};
constexpr Quantity kSecondLine[] = {kVoltage, kNeutralGround};
constexpr std::size_t kKeyEnergy = 131;
constexpr char kEnergyPicture[] = "###0.0000";

std::vector<Quantity> quantitiesOf(const Link& link) {
  const bool first = link.modelLine == 0;
  std::vector<Quantity> quantities;
  for (const Quantity& one : first ? std::span<const Quantity>(kFirstLine) : kSecondLine) {
    if (one.reading != kNeutralGround.reading || exportsNeutralGround(kindOf(link)))
      quantities.push_back(one);
  }
  return quantities;
}

std::string nameOf(const Main& main, const Quantity& one) {
  return one.before + dictText(main, one.key) + (one.second == 0 ? "" : ' ' + dictText(main, one.second));
}

// The counters' names in the order of their columns; a device has those that it counts.
struct Counted {
  std::size_t key;
  std::int32_t Counters::*count;
};
using C = Counters;
constexpr Counted kCounted[] = {{59, &C::sgCount},   {60, &C::ovcoCount}, {61, &C::ovreCount},
                                {62, &C::uvreCount}, {63, &C::uvcoCount}, {64, &C::poCount},
                                {65, &C::olCount}};

bool counts(const Link& link, const Counted& one) {
  for (const CountClass& known : kCountClasses) {
    if (known.count == one.count) return isCounted(link, known);
  }
  return false;
}

std::vector<std::string> moment(const CalendarTime& now) {
  return {formatDate(now, "mm/dd/yy"), formatDate(now, "hh:nn:ss")};
}

std::vector<std::string> dateAndTime(const Main& main) {
  return {dictText(main, kKeyDate), dictText(main, kKeyTime)};
}

void addHeading(Lines& lines, const Main& main, const CalendarTime& now) {
  const Link& link = main.link;
  lines.addText(stampDate(now));
  lines.addText("ID: " + link.userID);
  const struct {
    std::size_t key;
    std::string value;
  } rows[] = {{22, link.firmwareVersion},
              {199, std::string(kSoftwareVersion)},
              {23, link.chipID},
              {136, std::to_string(link.nominalVolts)}};
  for (const auto& row : rows) lines.addText(dictText(main, row.key) + ": " + row.value);
}

void addMeasurements(Lines& lines, const Main& main, const CalendarTime& now, bool headed) {
  std::vector<std::string> names = dateAndTime(main);
  std::vector<std::string> values = moment(now);
  for (const Quantity& one : quantitiesOf(main.link)) {
    names.push_back(nameOf(main, one));
    values.push_back(formatPicture(main.readings.*one.reading, one.picture));
  }
  if (main.link.modelLine == 0) {
    names.push_back(dictText(main, kKeyEnergy));
    values.push_back(formatPicture(main.energy.energyKWh, kEnergyPicture));
  }
  if (headed) lines.add(names);
  lines.add(values);
}

void addCounters(Lines& lines, const Main& main, const CalendarTime& now, bool headed) {
  std::vector<std::string> names = dateAndTime(main);
  std::vector<std::string> values = moment(now);
  for (const Counted& one : kCounted) {
    if (!counts(main.link, one)) continue;
    names.push_back(dictText(main, one.key));
    values.push_back(std::to_string(main.counters.*one.count));
  }
  if (headed) {
    lines.addText(dictText(main, kKeyCounters));
    lines.add(names);
  }
  lines.add(values);
}

std::string threeOf(double first, double second, double third, char between) {
  return formatPicture(first, "00") + between + formatPicture(second, "00") + between +
         formatPicture(third, "00");
}

void addEvents(Lines& lines, const Main& main, bool headed) {
  if (headed) {
    lines.addText(dictText(main, kKeyEvents));
    lines.add({dictText(main, kKeyDate), dictText(main, kKeyTime), dictText(main, std::size_t{57}),
               dictText(main, std::size_t{58})});
  }
  for (const auto& row : main.logs.tsData) {
    lines.add({threeOf(row[2], row[1], row[0], '/'), threeOf(row[3], row[4], row[5], ':'),
               pqString(row[6], main.dict), formatPicture(row[7], "##0")});
  }
}

}  // namespace

std::string exportText(const Main& main, const ExportCommand& command, bool headed) {
  const CalendarTime now = presentTime(main.around.clock);
  Lines lines;
  if (headed) addHeading(lines, main, now);
  if (command.measurements) addMeasurements(lines, main, now, headed);
  if (command.counters) addCounters(lines, main, now, headed);
  if (command.events) addEvents(lines, main, headed);
  return lines.take();
}

}  // namespace zephon
