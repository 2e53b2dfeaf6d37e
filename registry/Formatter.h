// The contract every registered formatter keeps.
//
// A value is a run of bytes at `p` with no outer length prefix. For each type id the
// plug-in supplies two functions:
//   * a length function, which returns how many bytes the value occupies, reading no
//     byte beyond it and printing nothing;
//   * a format function, which prints the value's text on a stream and returns the same
//     count as the length function for the same bytes, also for invalid values.
// An impossible encoding is reported as kInvalidLength with nothing printed for that
// part. Counts are unsigned 32-bit and wrap: composites that embed an invalid field do
// not repair the wrapped sum (see Bytes.h for where a wrapped offset points).
#pragma once

#include <functional>
#include <ostream>

namespace Orvane {

/// The registered format function type: prints the value at `p`, returns its size.
using FormatFn = std::function<unsigned(const unsigned char*, std::ostream&)>;
/// The registered length function type: returns the size of the value at `p`.
using LengthFn = std::function<unsigned(const unsigned char*)>;

/// Plain-pointer forms of the two signatures, used by the composite helpers.
using FormatPtr = unsigned (*)(const unsigned char*, std::ostream&);
using LengthPtr = unsigned (*)(const unsigned char*);

/// The count an impossible encoding reports (-1 as unsigned).
inline constexpr unsigned kInvalidLength = 0xFFFFFFFFu;

} // namespace Orvane
