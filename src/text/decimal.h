#pragma once

#include <string>

namespace zephon {

// A finite number in its shortest decimal form: its digits without leading or trailing zeros, and how many of
// them stand before the point (0.05 is "5" with -1 before the point). Zero has no digits and no sign.
class Decimal {
 public:
  explicit Decimal(double finite);
  explicit Decimal(float finite);

  // Rounds half away from zero to a count of places behind the point.
  void roundTo(int decimals);

  bool negative() const { return negative_; }
  int fractionDigits() const;  // how many digits stand behind the point

  // At least `minWhole` digits before the point and `fraction` digits behind it, without the sign.
  std::string unsignedText(int minWhole, int fraction) const;

 private:
  template <typename Float>
  void take(Float finite);
  // The digit at a place: -1 is the units, 0 the first behind the point. "0" beyond the number's digits.
  char at(int place) const;
  void roundUp();
  void strip();

  bool negative_ = false;
  int beforePoint_ = 0;
  std::string digits_;
};

}  // namespace zephon
