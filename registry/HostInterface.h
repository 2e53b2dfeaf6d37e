// What the plug-in needs of the host formatter. The host library defines these; the
// plug-in links against it and never defines them itself.
#pragma once

#include "registry/Export.h"
#include "registry/Formatter.h"

#include <ostream>
#include <string>

namespace Orvane {

/// The host's registry of formatters by type id.
class ORVANE_API MessageFormatter {
public:
  /// Records the format function for `id`. A duplicate id keeps its first registration.
  static void addNewFormattersById(std::string id,
                                   std::function<unsigned(const unsigned char*, std::ostream&)> fn);
  /// Records the length function for `id`. A duplicate id keeps its first registration.
  static void addNewLengthById(std::string id, std::function<unsigned(const unsigned char*)> fn);
};

// Base formatters. Each format function prints one field and returns the bytes it
// consumed; each length function returns that same count.

/// Unsigned 8-bit, inserted as a number with `os << value` (follows the stream's base,
/// width and fill). 1 byte.
ORVANE_API unsigned formatU8(const unsigned char* p, std::ostream& os);
/// Unsigned 16-bit, native order, inserted with `os << value`. 2 bytes.
ORVANE_API unsigned formatU16(const unsigned char* p, std::ostream& os);
/// Unsigned 16-bit in hexadecimal; the stream is set back to decimal. 2 bytes.
ORVANE_API unsigned formatU16Hex(const unsigned char* p, std::ostream& os);
/// Unsigned 32-bit, native order, inserted with `os << value`. 4 bytes.
ORVANE_API unsigned formatU32(const unsigned char* p, std::ostream& os);
/// Unsigned 32-bit in hexadecimal; the stream is set back to decimal. 4 bytes.
ORVANE_API unsigned formatU32Hex(const unsigned char* p, std::ostream& os);
/// Unsigned 64-bit, native order, inserted with `os << value`. 8 bytes.
ORVANE_API unsigned formatU64(const unsigned char* p, std::ostream& os);
/// "True" when the byte is non-zero, else "False". 1 byte.
ORVANE_API unsigned formatBool(const unsigned char* p, std::ostream& os);
/// A host string: one count byte n, then n bytes written as they are. 1 + n bytes.
ORVANE_API unsigned formatString(const unsigned char* p, std::ostream& os);

ORVANE_API unsigned lengthU8(const unsigned char* p);     ///< 1
ORVANE_API unsigned lengthU16(const unsigned char* p);    ///< 2
ORVANE_API unsigned lengthU32(const unsigned char* p);    ///< 4
ORVANE_API unsigned lengthU64(const unsigned char* p);    ///< 8
ORVANE_API unsigned lengthBool(const unsigned char* p);   ///< 1
ORVANE_API unsigned lengthString(const unsigned char* p); ///< 1 + the count byte

} // namespace Orvane
