#include "tests/fuzz/Require.h"

#include <cstdio>
#include <cstdlib>

void Require(bool condition, const char* promise) {
  if (condition) return;
  std::fprintf(stderr, "Broken promise: %s\n", promise);
  std::abort();
}
