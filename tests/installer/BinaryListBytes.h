#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A binary property list of `objects`, each given as its bytes, with references
/// of two bytes and offsets of four; the first object is the root.
std::string BinaryListBytes(const std::vector<std::string>& objects);

/// The bytes of an array of one or of many references, for BinaryListBytes.
std::string ArrayBytes(const std::vector<std::uint16_t>& references);
