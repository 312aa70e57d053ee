// The entry of libFuzzer; one program a target: KLADEZ_FUZZ_TARGET, one of the
// KLADEZ_FUZZ_TARGETS.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const kladez::FuzzTarget target = [] {
    const auto targets = kladez::KLADEZ_FUZZ_TARGETS();
    const auto found = std::find_if(targets.begin(), targets.end(), [](const auto& candidate) {
      return std::string_view(candidate.name) == KLADEZ_FUZZ_TARGET;
    });
    if (found == targets.end()) std::abort();
    return *found;
  }();
  target.run(QByteArrayView(data, static_cast<qsizetype>(size)));
  return 0;
}
