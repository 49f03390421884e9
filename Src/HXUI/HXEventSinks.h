#pragma once

#include <cstdint>

class HXObject;

/// The process-wide list of event sinks. Objects register through
/// `HXObject::AddEventSink` and leave by being destroyed, which may also
/// happen while an event is on its way. Main thread only.
namespace HXEventSinks {

void Add(HXObject* sink);
/// Takes out every occurrence, so that nothing points to an object that is gone.
void Remove(const HXObject* sink);

/// Shows the event to every enabled sink, the one added last first, until one
/// stops it. Returns false when it was stopped.
bool Send(HXObject* source, std::uint32_t kind, std::int64_t parameter);

}  // namespace HXEventSinks
