#import <AppKit/AppKit.h>

#include <cstdio>
#include <cstring>

#include "Src/HXUI/Cocoa/ApplicationStart.h"
#include "bench/Rows.h"

namespace {

struct Row {
  const char* name;
  bool (*measure)();
  /// Opens windows itself.
  bool isGraphical;
};

constexpr Row kRows[] = {
    {"start", MeasureStartUp, false},        {"pages", MeasurePages, true},
    {"install", MeasureInstallation, false}, {"widgets", MeasureWidgets, true},
    {"pointer", MeasurePointer, true},       {"square", MeasureColorSquare, false},
    {"drag", MeasureColorDrag, true},        {"find", MeasureFindFile, false},
    {"map", MeasureMappedFile, false},       {"profiler", MeasureProfiler, false},
};

bool Measure(const Row& row) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  const bool isMeasured = (!row.isGraphical || StartApplication("bench")) && row.measure();
  [pool drain];
  return isMeasured;
}

}  // namespace

/// Measures the row that its one argument names, so that no row finds the
/// memory as another one has left it; without an argument, names the rows.
int main(int argc, const char** argv) {
  for (const Row& row : kRows) {
    if (argc < 2) std::puts(row.name);
    if (argc == 2 && std::strcmp(argv[1], row.name) == 0) return Measure(row) ? 0 : 1;
  }
  return argc < 2 ? 0 : 2;
}
