#include "Src/HXUI/Assert.h"

#include <cstdio>
#include <cstdlib>

void HXAssertFailed(const char* function, const char* condition, const char* source, int line) {
  std::fprintf(stderr, "Assertion failed: (%s), function %s, file %s, line %d.\n", condition,
               function, source, line);
  std::abort();
}
