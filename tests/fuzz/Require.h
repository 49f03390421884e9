#pragma once

/// Ends the program, and with it the search, when `condition` does not hold:
/// prints `promise`, the sentence that turned out to be wrong.
void Require(bool condition, const char* promise);
