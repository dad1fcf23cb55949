#pragma once

#include <string>
#include <string_view>

namespace zephon {

// Numbers into text through a picture such as "###0.0##": "0" is a digit that always stands, "#" one that
// stands only where it is needed, with a point between whole and fraction; text around the digits is copied.
// Between the first and the last "0" every place stands ("###0.##0" always has three decimals, "0#" two
// digits). At least the whole part is written, however few places the picture has; the point stands only
// before a digit. Rounds half away from zero on the number's shortest decimal form, so 1.005 in "0.00" is
// "1.01". Always with a point, whatever the locale. A negative number that rounds to zero loses its sign.
// Infinities and not-a-number give "".
std::string formatPicture(double value, std::string_view picture);
std::string formatPicture(float value, std::string_view picture);

// A number cut to a count of decimals (0 to 9), rounded half away from zero on its shortest decimal form.
// Infinities and not-a-number stay what they are.
double roundDecimals(double value, int decimals);
float roundDecimals(float value, int decimals);

// The shortest decimal form that reads back as the same number, without an exponent: 0.1, 120, -4. Infinities
// and not-a-number give "".
std::string shortestText(double value);

}  // namespace zephon
