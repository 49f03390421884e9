#pragma once

#include <cstdint>

/// What the pointer did. The numbers are those that the notification hook and
/// the event sinks receive. `kLeftUp` reaches a widget only after a `kLeftDown` on
/// the same widget that the pointer has not left: owners take it as the click.
/// Whoever holds the mouse capture gets each `kLeftUp`, wherever the press was,
/// and nobody is told of entering and leaving meanwhile.
enum MouseKind : std::uint32_t {
  kMouseMove = 0,
  kLeftDown = 1,
  kLeftUp = 2,
  kLeftDouble = 3,
  kRightDown = 4,
  kRightUp = 5,
  kRightDouble = 6,
  kOtherDown = 7,
  kOtherUp = 8,
  kMouseEntered = 11,
  kMouseExited = 12,
};

/// Kinds that only event sinks see, beside the ones above.
enum EventSinkKind : std::uint32_t {
  kWheel = 10,
  kKeyDown = 13,
  kKeyUp = 15,
};
