#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "form/main.h"
#include "protocol/device_date.h"

namespace zephon {

// The local date value of the device's clock text, "hh:mm:ss mm/dd/yyyy" in universal time. Fields out of
// range carry. Nothing when a field is no number.
std::optional<double> clockValue(std::string_view reply, UtcOffset offset);

// The seven bytes that set the device's clock: hour, minute, second, month, day and the year's last two
// digits, each packed decimal, and the weekday, Sunday 0. `universal` is a date value.
std::string clockBytes(double universal);

// Puts the device's clock in local time into timeNumEdit and lets it run there. False when the exchange
// failed; a reply that is no date leaves the field as it was.
bool getTime(Main& main);

// Sets the device's clock by timeNumEdit, which is left showing universal time: read the clock back next.
// False when the device does not confirm.
bool setTime(Main& main);

// Second line: asks for the phase angle of the supply's two legs. 180 for a center tap, 120 for wye, into
// yOrCTflag and YorCTbutton; 0 when the exchange failed.
std::int16_t getYorCT(Main& main);

// Second line: `wye` tells the device that it is wired as 120/208 wye, otherwise 120/240 center tap. It does
// not answer, so the result is always true; nothing is sent on the first line.
bool setYorCT(Main& main, bool wye);

}  // namespace zephon
