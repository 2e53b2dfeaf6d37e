// IPv4 and IPv6 address text: the same characters the C library's inet_ntop writes,
// without its printf machinery.
//
// IPv4: the four octets in decimal joined by "." (10.0.0.1).
// IPv6: the eight 16-bit groups in lowercase hex without leading zeros, joined by ":".
// The longest run of two or more zero groups becomes "::", the first of equal-length
// runs winning; a lone zero group prints as "0". Two forms end in the dotted IPv4 text
// of the last four bytes: "::ffff:" when the longest run is exactly groups 0-4 and
// group 5 is ffff (::ffff:10.0.0.1), and "::" when it is exactly groups 0-5
// (::10.0.0.1, while ::1, whose run is groups 0-6, keeps the hex form).
//
// Internal to the plug-in and not exported: other programs get this text through
// formatIpAddr and the address formatters.
#pragma once

#include <cstddef>

namespace Orvane {

/// Room for the longest IPv4 text, "255.255.255.255", and its NUL.
inline constexpr std::size_t kIpv4TextSize = 16;
/// Room for the longest IPv6 text, eight groups of four digits, and its NUL.
inline constexpr std::size_t kIpv6TextSize = 40;

/// Writes the text of the IPv4 address in the four network-order `bytes`, and a NUL,
/// into `buf` of `size` bytes. Returns the end of the text (where the NUL is), or
/// nullptr when text and NUL do not fit; `buf` is then left untouched.
char* ipv4Text(const unsigned char* bytes, char* buf, std::size_t size);

/// As ipv4Text(), for the 16 network-order bytes of an IPv6 address.
char* ipv6Text(const unsigned char* bytes, char* buf, std::size_t size);

} // namespace Orvane
