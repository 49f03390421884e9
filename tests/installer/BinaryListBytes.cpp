#include "tests/installer/BinaryListBytes.h"

namespace {

std::string Number(std::uint64_t value, int size) {
  std::string bytes;
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
    bytes.push_back(static_cast<char>(value >> shift & 0xFF));
  }
  return bytes;
}

}  // namespace

std::string BinaryListBytes(const std::vector<std::string>& objects) {
  std::string bytes = "bplist00";
  std::string table;
  for (const std::string& object : objects) {
    table += Number(bytes.size(), 4);
    bytes += object;
  }
  const std::size_t tableStart = bytes.size();
  return bytes + table + std::string(6, '\0') + "\x04\x02" + Number(objects.size(), 8) +
         Number(0, 8) + Number(tableStart, 8);
}

std::string ArrayBytes(const std::vector<std::uint16_t>& references) {
  std::string bytes = "\xAF\x12" + Number(references.size(), 4);
  for (const std::uint16_t reference : references) bytes += Number(reference, 2);
  return bytes;
}
