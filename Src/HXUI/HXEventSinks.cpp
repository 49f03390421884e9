#include "Src/HXUI/HXEventSinks.h"

#include <algorithm>
#include <vector>

#include "Src/HXUI/HXEventSinkRecord.h"
#include "Src/HXUI/HXObject.h"
#include "Src/HXUI/HXObjectGuard.h"

namespace {

// Never destroyed: windows that end with the process still leave the list.
std::vector<HXObject*>& Sinks() {
  static auto* sinks = new std::vector<HXObject*>;
  return *sinks;
}

}  // namespace

void HXEventSinks::Add(HXObject* sink) { Sinks().push_back(sink); }

void HXEventSinks::Remove(const HXObject* sink) { std::erase(Sinks(), sink); }

bool HXEventSinks::Send(HXObject* source, std::uint32_t kind, std::int64_t parameter) {
  const HXObjectGuard sourceGuard(source);
  // A sink may add and destroy sinks: the walk keeps to those that were there
  // at the start and asks each time whether the next one still is.
  const std::vector<HXObject*> present = Sinks();
  for (auto next = present.rbegin(); next != present.rend(); ++next) {
    HXObject* const sink = *next;
    const bool gone = std::find(Sinks().begin(), Sinks().end(), sink) == Sinks().end();
    if (gone || !sink->IsEnabled()) continue;
    HXEventSinkRecord record{sourceGuard.Get(), kind, parameter, 1};
    sink->OnEventSink(record);
    if (record.pass == 0) return false;
  }
  return true;
}
