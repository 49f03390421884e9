#include "installer/EventWait.h"

// The platform wakes for every event.
void KeepEventsMoving() {}
