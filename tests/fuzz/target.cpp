#include "fuzz/targets.h"

// One program a target; the build names the target's function.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zephon::fuzzing::ZEPHON_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
  return 0;
}
