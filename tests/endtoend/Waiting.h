#pragma once

#include <chrono>
#include <functional>

/// How long a test waits for what must happen: far more than a slow machine needs.
inline constexpr std::chrono::seconds kPatience{20};

/// Asks `condition` again and again until it holds; false when it still does not
/// after `patience`.
bool WaitUntil(const std::function<bool()>& condition,
               std::chrono::milliseconds patience = kPatience);
