#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephon::simulator {

enum class Line {
  Orvantis,  // 115200 baud, "g" and "s" commands
  Tessara,   // 9600 baud, single letters
};

// The size of a first-line device's chart memory, in pages of 32768 bytes.
enum class ChartFitted { None, FourPages, TwelvePages };

// Which device stands on the line: what is on its plate and in its program memory.
struct Profile {
  Line line = Line::Orvantis;
  int rating = 120;      // volts on the plate: 120 or 240
  double siteVolts = 0;  // what the site delivers on a normal day: 120, 208, 230, 240; 0: the rating
  // Exactly four characters as they go over the wire: "1KD1" of the first line, which leaves the point out;
  // "2.00", "1.67", "1*14" of the second, which tells a 240 V rating by the "*".
  std::string firmware = "1KD1";
  std::array<std::uint8_t, 3> chip = {0x4C, 0x5A, 0x17};
  std::string userId = "ZEPHON SIM";  // the name stored in a first-line device, ten characters
  ChartFitted chartMemory = ChartFitted::TwelvePages;  // of a first-line device

  int baud() const { return line == Line::Orvantis ? 115200 : 9600; }
  // The firmware's version for comparing: first-line text with the point put in, second-line text as it is.
  std::string version() const;
  // The chip number as it goes over the wire: its three bytes with "." between them.
  std::string chipBytes() const;
  // A 240 V second-line device that can be told how its supply is wired.
  bool knowsWiring() const { return line == Line::Tessara && rating == 240 && version() >= "1*14"; }
  double mainsVolts() const { return siteVolts > 0 ? siteVolts : rating; }
  // 50 Hz at a 230 V site, 60 Hz elsewhere.
  double mainsHertz() const { return mainsVolts() > 219 && mainsVolts() < 236 ? 50.0 : 60.0; }
};

// The newest device of a line and rating at an ordinary site of that rating.
Profile makeProfile(Line line, int rating = 120);

// A text made as long as the field it is stored in: cut, or filled with blanks at the end.
std::string fitted(std::string_view text, std::size_t length);

}  // namespace zephon::simulator
