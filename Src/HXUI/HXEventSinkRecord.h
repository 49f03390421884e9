#pragma once

#include <cstdint>

class HXObject;

/// One event on its way past the event sinks. Lives for the duration of one
/// `OnEventSink` call; the sinks do not own anything in it.
struct HXEventSinkRecord {
  /// The widget whose view received the event; null when it has none.
  HXObject* source = nullptr;
  /// A `MouseKind`, or an `EventSinkKind`.
  std::uint32_t kind = 0;
  /// Key code, wheel delta times 120 (positive away from the user), or 0.
  std::int64_t parameter = 0;
  /// 1 before the first sink; a sink writes 0 to stop the event.
  std::uint8_t pass = 1;
};
