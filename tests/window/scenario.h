#pragma once

namespace zephon::testing_support {

// The test program started anew with this argument alone runs a whole windowed program, so that a test can
// end it from outside. It prints "up" once it is in the middle of things.
inline constexpr const char* kScenario = "--scenario";
int runScenario(int& argc, char** argv);

}  // namespace zephon::testing_support
