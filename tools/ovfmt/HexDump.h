// Reading the bytes back from a hex dump, such as one of a buffer dumped from a debugger.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// Reads the bytes of `dump`, the output of `xxd`, `hexdump -C` or `od -A x -t x1`: each
/// line an offset in hex, the bytes, and (xxd, hexdump -C) a text column, which is
/// dropped. A line "*" stands for copies of the line before, up to the next offset; a
/// last line of an offset alone gives the end. Each offset must be where the bytes
/// before it end. Returns false and sets `error` ("line N: PROBLEM") on a line that
/// does not read so.
bool readHexDump(std::string_view dump, std::vector<unsigned char>& bytes, std::string& error);

} // namespace Orvane::ovfmt
