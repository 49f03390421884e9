#pragma once

#include <cstdint>

/// Bytes of the free store that the whole program has in use.
std::uint64_t AllocatedBytes();
