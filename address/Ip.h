// IPv4 and IPv6 addresses, prefixes and address-with-port: ids "I", "I6", "P"/"AM4",
// "P6"/"AM6" and "IP".
//
// An IPv4 address stored as a u32 is a number in host order (a.b.c.d = a*2^24 + ...); it
// is byte-swapped to network order before conversion. IPv6 addresses are 16 raw bytes in
// network order. A failed conversion prints "unknown" in the address's place.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// Joins (TextRun::join) four raw network-order bytes as a dotted IPv4 address, or
/// "unknown", to `text`.
void printIpv4Bytes(TextRun& text, const unsigned char* bytes);
/// Joins 16 raw network-order bytes as an IPv6 address, or "unknown", to `text`.
void printIpv6Bytes(TextRun& text, const unsigned char* bytes);

/// The append forms (TextRun.h) of formatIp, formatIp6Addr, formatIpPrefix,
/// formatIp6Prefix and formatIpAndPort.
unsigned appendIp(const unsigned char* p, TextRun& text);
unsigned appendIp6Addr(const unsigned char* p, TextRun& text);
unsigned appendIpPrefix(const unsigned char* p, TextRun& text);
unsigned appendIp6Prefix(const unsigned char* p, TextRun& text);
unsigned appendIpAndPort(const unsigned char* p, TextRun& text);

/// Converts the native-order u32 IPv4 address at `p` into `buf` (of `len` bytes) and
/// returns `buf`; when the conversion fails, copies "unknown" with strncpy. Writes
/// nothing to any stream.
ORVANE_API char* formatIpAddr(const unsigned char* p, char* buf, unsigned len);

/// "I": native u32 IPv4 address, e.g. 10.0.0.1. Returns 4.
ORVANE_API unsigned formatIp(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIp(const unsigned char* p); ///< 4

/// "I6": 16-byte IPv6 address. Returns 16.
ORVANE_API unsigned formatIp6Addr(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIp6Addr(const unsigned char* p); ///< 16

/// "P", "AM4": IPv4 address then "/" and the u8 prefix length, e.g. 10.0.0.0/8. Returns 5.
ORVANE_API unsigned formatIpPrefix(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpPrefix(const unsigned char* p); ///< 5

/// "P6", "AM6": IPv6 address then "/" and the u8 prefix length. Returns 17.
ORVANE_API unsigned formatIp6Prefix(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIp6Prefix(const unsigned char* p); ///< 17

/// "IP": IPv4 address, ":" and the native u16 port, e.g. 10.0.0.1:179. Returns 6.
ORVANE_API unsigned formatIpAndPort(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpAndPort(const unsigned char* p); ///< 6

// As fields of composite keys.
inline constexpr FieldKind kIpField{formatIp, lengthIp, appendIp, "IPv4 address (native u32)", 4};
inline constexpr FieldKind kIp6Field{formatIp6Addr, lengthIp6Addr, appendIp6Addr, "IPv6 address",
                                     16};
inline constexpr FieldKind kIpPrefixField{formatIpPrefix, lengthIpPrefix, appendIpPrefix,
                                          "IPv4 prefix (address, length byte)", 5};
inline constexpr FieldKind kIpAndPortField{formatIpAndPort, lengthIpAndPort, appendIpAndPort,
                                           "IPv4 address and u16 port", 6};

} // namespace Orvane
