#include "tests/endurance/Trail.h"

#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>

namespace {

const Trail* present = nullptr;

void PrintPresent() {
  if (present != nullptr) present->Print();
}

}  // namespace

Trail::Trail(std::uint64_t diceSeed) : seed(diceSeed) {
  present = this;
  __sanitizer_set_death_callback(&PrintPresent);
}

Trail::~Trail() { present = nullptr; }

void Trail::Print() const {
  std::fprintf(stderr, "The latest events; MONKEY_SEED=%" PRIu64 " repeats them:\n", seed);
  const std::uint64_t count = std::min<std::uint64_t>(steps.size(), last + 1);
  for (std::uint64_t number = last + 1 - count; number <= last; ++number) {
    const Step& step = steps[number % steps.size()];
    std::fprintf(stderr, "  %" PRIu64 " %s %s (%d, %d) %u\n", step.number, step.action, step.widget,
                 step.x, step.y, step.detail);
  }
}
