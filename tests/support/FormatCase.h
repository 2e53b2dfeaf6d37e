// Table-driven checks of registered formatters: bytes in, text and counts out.
#pragma once

#include "decoding/Decode.h"

#include <string>
#include <vector>

namespace Orvane::test {

/// One value of a type id, as hex, and what formatting it must give.
struct FormatCase {
  std::string id;
  std::string hex;
  std::string text;
  unsigned length; ///< both the length function's and the format function's result
};

/// Formats `hex` through the pair registered for `id`, as the host does.
decoding::Decoded decode(const std::string& id, const std::string& hex);

/// Checks every case: exact text, length, and format consuming exactly the length.
void expectCases(const std::vector<FormatCase>& cases);

} // namespace Orvane::test
