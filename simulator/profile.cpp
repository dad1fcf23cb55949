#include "simulator/profile.h"

#include "simulator/encode.h"

namespace zephon::simulator {

std::string Profile::version() const {
  if (line == Line::Tessara || firmware.empty()) return firmware;
  return firmware.substr(0, 1) + "." + firmware.substr(1);
}

std::string Profile::chipBytes() const {
  return {asChar(chip[0]), '.', asChar(chip[1]), '.', asChar(chip[2])};
}

Profile makeProfile(Line line, int rating) {
  Profile profile;
  profile.line = line;
  profile.rating = rating;
  if (line == Line::Tessara) {
    profile.firmware = rating == 240 ? "1*14" : "2.00";
    profile.chip = {0x2B, 0x81, 0xE6};
  }
  return profile;
}

std::string fitted(std::string_view text, std::size_t length) {
  std::string field(text.substr(0, length));
  field.resize(length, ' ');
  return field;
}

}  // namespace zephon::simulator
