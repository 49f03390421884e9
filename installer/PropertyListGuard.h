#pragma once

#include <cstddef>
#include <string_view>

// The platform's property-list parser recurses for every nested container, and
// the main thread's usual stack lasts for some 40,000 of them. It also trusts
// the lengths in a binary file, and builds an object again for every reference
// to it. These limits are far from any real file and well inside what it bears.

/// Bytes of a file of any form.
inline constexpr std::size_t kLargestPropertyList = std::size_t{64} << 20;
/// Containers inside each other in a binary file; in a text, which is not taken
/// apart for this, containers altogether.
inline constexpr std::size_t kMostPropertyListNesting = 10'000;
/// Objects of a binary file, each counted as often as it is referred to.
inline constexpr std::size_t kMostPropertyListObjects = 1'000'000;

/// Whether `bytes`, the content of a property-list file of any form, can be
/// given to the platform's parser without harm. Says nothing about whether the
/// parser will understand it. Any thread.
bool IsSafePropertyList(std::string_view bytes);
