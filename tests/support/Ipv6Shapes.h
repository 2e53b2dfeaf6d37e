// IPv6 addresses drawn by shape, for comparing address text with the C library's.
#pragma once

#include <array>
#include <random>

namespace Orvane::test {

/// Number of shapes: 256 patterns of zero groups times four fillings.
inline constexpr unsigned kIpv6Shapes = 256 * 4;

/// An address of shape `shape % kIpv6Shapes`, free parts drawn from `random`. Bit i of the
/// low byte zeroes group i (every run length at every position, equal runs, lone zeros, all
/// zeros); the filling (shape / 256 % 4) sets the others: 0 random of 1 to 4 digits, 1 ffff,
/// 2 as 0 with group 5 ffff (v4-mapped; pattern 0x3f is v4-compatible), 3 random bytes.
inline std::array<unsigned char, 16> ipv6OfShape(unsigned shape, std::mt19937_64& random) {
  const unsigned zeros = shape % 256, filling = shape / 256 % 4;
  std::array<unsigned char, 16> bytes{};
  for (unsigned group = 0; group < 8; ++group) {
    const unsigned drawn = std::uniform_int_distribution(1u, 0xffffu >> 4 * (random() % 4))(random);
    unsigned value = zeros >> group & 1 ? 0 : filling == 1 ? 0xffff : drawn;
    if (filling == 2 && group == 5) value = 0xffff;
    if (filling == 3) value = random() % 0x10000;
    bytes[2 * group] = static_cast<unsigned char>(value >> 8);
    bytes[2 * group + 1] = static_cast<unsigned char>(value);
  }
  return bytes;
}

} // namespace Orvane::test
