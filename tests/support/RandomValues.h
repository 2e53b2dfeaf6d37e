// Random trace values for the tests and tools that format every id over many of them.
#pragma once

#include <random>
#include <vector>

namespace Orvane::test {

/// A value of 0 to 320 random bytes. Half the values get small leading bytes (0 to 8),
/// so tags, kinds and counts hit their valid ranges often instead of almost never.
inline std::vector<unsigned char> randomValue(std::mt19937& rng) {
  std::uniform_int_distribution<int> size(0, 320), byte(0, 255), smallByte(0, 8);
  std::vector<unsigned char> value(size(rng));
  const bool small = rng() & 1;
  for (std::size_t i = 0; i < value.size(); ++i)
    value[i] = static_cast<unsigned char>(small && i < 8 ? smallByte(rng) : byte(rng));
  return value;
}

} // namespace Orvane::test
