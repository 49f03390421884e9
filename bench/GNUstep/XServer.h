#pragma once

#include "Src/HXUI/HXTypes.h"

/// What the measurements need from the X server beside AppKit. Main thread only.
namespace XServer {

/// Returns when the server has done everything that AppKit has asked for so far.
void Finish();

/// Puts the pointer at a place of the screen (pixels, from its top left corner)
/// and returns when it is there; AppKit gets to hear of it by an event.
void MovePointer(HXPoint place);

}  // namespace XServer
