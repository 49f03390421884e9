#pragma once

/// Sees to it that no event lies unnoticed in the platform's queue while the
/// application waits for the next one. Once, on the main thread, before the
/// application runs.
void KeepEventsMoving();
