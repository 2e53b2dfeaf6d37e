// Composite BGP values described as data.
//
// The next hop, the route keys and the peer keys each have many variants that differ
// only in which fields follow one another and which text goes between them. Each
// variant is written as a FieldLayout: up to six labelled fields and a closing text.
// One walker prints a layout and one measures it; both start at the same offset and
// advance by the same per-field counts, so the text and the size of a value can never
// disagree.
//
//   constexpr FieldLayout kRouterMac{{{"<ip:", &kIp4Field}, {", routerMac:", &kMacField}}, ">"};
//   formatLayout(kRouterMac, p, 6, os); // <ip:10.0.0.1, routerMac:001c.73aa.bbcc>, returns 16
#pragma once

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Formatter.h"
#include "registry/HostInterface.h"
#include "registry/TextRun.h"

#include <cstddef>
#include <ostream>
#include <string_view>

namespace Orvane {

/// How one field is printed and sized: a format function and its length function, and
/// the format function's append form (TextRun.h) when it has one, which the walk uses
/// instead, so that the field's text may join the text around it.
struct FieldKind {
  FormatPtr format = nullptr;
  LengthPtr length = nullptr;
  AppendPtr append = nullptr;
};

/// A field and the literal text printed just before it. Layouts point at shared kinds,
/// so that the loader relocates each function pointer once, not once per field.
struct LabeledField {
  std::string_view label = "";
  const FieldKind* kind = nullptr;
};

/// The most fields any layout has.
inline constexpr std::size_t kMaxLayoutFields = 6;

/// A value's fields in order, then the text printed after the last one. Entries after
/// the last field are left empty (no kind); a layout without fields prints only its
/// closing text.
struct FieldLayout {
  LabeledField fields[kMaxLayoutFields] = {};
  std::string_view closing = "";
};

/// Prints each field's label and then the field at the running offset, which begins at
/// `start` and advances by what each field's formatter returns; then the closing text.
/// Returns the final offset (sums wrap; see Bytes.h for where a wrapped offset points).
unsigned formatLayout(const FieldLayout& layout, const unsigned char* p, unsigned start,
                      std::ostream& os);

/// formatLayout() within a longer text: each label joins the text pending in `text`
/// and the closing text is left pending there, for the caller to continue and flush.
unsigned formatLayout(const FieldLayout& layout, const unsigned char* p, unsigned start,
                      TextRun& text);

/// The final offset of the same walk as formatLayout, printing nothing.
unsigned measureLayout(const FieldLayout& layout, const unsigned char* p, unsigned start);

// Field kinds shared by the BGP composites.
inline constexpr FieldKind kIp4Field{formatIp, lengthIp, appendIp}; ///< native u32 IPv4
inline constexpr FieldKind kIp6Field{formatIp6Addr, lengthIp6Addr, appendIp6Addr}; ///< 16 bytes
inline constexpr FieldKind kMacField{formatEth, lengthEth, appendEth}; ///< 001c.73aa.bbcc
inline constexpr FieldKind kEsiField{formatEthSegment, lengthEthSegment, appendEthSegment};
inline constexpr FieldKind kGenAddrField{formatIpGenAddr, lengthIpGenAddr,
                                         appendIpGenAddr}; ///< 21 bytes
inline constexpr FieldKind kGenAddrOptField{formatIpGenAddrOpt, lengthIpGenAddrOpt,
                                            appendIpGenAddrOpt};
inline constexpr FieldKind kU8Field{formatU8, lengthU8};
inline constexpr FieldKind kU16Field{formatU16, lengthU16};
inline constexpr FieldKind kU32Field{formatU32, lengthU32};
inline constexpr FieldKind kU64Field{formatU64, lengthU64};
inline constexpr FieldKind kBoolField{formatBool, lengthBool}; ///< "True" / "False"
inline constexpr FieldKind kStringField{formatString, lengthString};

} // namespace Orvane
