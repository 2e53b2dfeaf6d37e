// The vocabulary composite values are written in.
//
// A composite key is a table of labelled fields: each entry is the literal text printed
// before a field and the field's kind. A kind knows how to print its field, how to
// measure it and how the per-id reference names it, so one table gives a key's format
// function, its length function and its description (Fields.h walks it):
//
//   constexpr LabeledField kMacVlanPairRows[] = {
//       {"[", &kEthField}, {",", &kU16Field}, {"]"}}; // the last entry: the closing text
//   constexpr FieldTable kMacVlanPairFields{kMacVlanPairRows}; // what kIdTable names
//
// A table ends with an entry without a kind, whose label is the text printed after the
// last field.
#pragma once

#include "registry/Formatter.h"
#include "registry/HostInterface.h"
#include "registry/TextRun.h"

#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace Orvane {

/// How one field is printed, sized and described. The walk prints the field through
/// `append` when there is one (its text may then join the text around it), else through
/// `format` on the stream, and advances by what it returns; `length` measures the field
/// at the same offset.
struct FieldKind {
  FormatPtr format = nullptr;
  LengthPtr length = nullptr;
  AppendPtr append = nullptr;
  /// What the field holds, for the reference.
  std::string_view name = "";
  /// The field's size in bytes when it is fixed, else 0 and `sizeRule` says how it is found.
  unsigned size = 0;
  std::string_view sizeRule = "";
};

/// A field and the literal text printed just before it; without a kind, the end of a
/// table and the text printed after its last field.
struct LabeledField {
  std::string_view label = "";
  const FieldKind* kind = nullptr;
};

/// A composite's table as the id table (IdTable.h) names it. The rows themselves are a
/// constant of their file, so that the format and length functions can be unrolled
/// over them when compiling (Fields.h); this handle is what other files see.
struct FieldTable {
  const LabeledField* rows = nullptr;
};

/// A composite whose body depends on a code in the value, for the per-id reference: the
/// body of each variant is read from the same array the format and length functions
/// index, so the reference lists what they print.
struct FieldVariants {
  /// What picks the body and what the value holds around it.
  std::string_view code;
  /// The variants, indexed from 0.
  unsigned count = 0;
  /// The body of variant `index`, a table as the walk takes it; nullptr when it has none.
  const LabeledField* (*body)(unsigned index) = nullptr;
  /// Writes the variant's name, e.g. "Type 5"; nullptr names variant i "Code i".
  void (*name)(unsigned index, std::ostream& os) = nullptr;
};

/// The most fields a FieldLayout holds.
inline constexpr std::size_t kMaxLayoutFields = 6;

/// A table of up to kMaxLayoutFields fields held by value, for arrays of variants (one
/// per type code) and for layouts that constexpr functions build:
///
///   constexpr FieldLayout kRouterMac{{{"<ip:", &kIpField}, {", routerMac:", &kEthField}}, ">"};
///
/// `fields` is a table as the walk takes it: the fields, then the closing entry.
struct FieldLayout {
  LabeledField fields[kMaxLayoutFields + 1] = {};

  constexpr FieldLayout() = default;
  /// A layout of the fields of `list` that have a kind (constexpr builders pass empty
  /// ones for optional fields), then `closing`; more than kMaxLayoutFields does not
  /// compile in a constant expression.
  constexpr FieldLayout(std::initializer_list<LabeledField> list, std::string_view closing = "") {
    std::size_t end = 0;
    for (const LabeledField& field : list)
      if (field.kind) fields[end++] = field;
    fields[end] = {closing};
  }
};

/// A length function for a field of `Size` bytes whatever the host's sizes.
template <unsigned Size> unsigned fixedLength(const unsigned char*) { return Size; }

// The host's base formatters as fields: printed and measured by the host.
inline constexpr FieldKind kU8Field{formatU8, lengthU8, nullptr, "u8", 1};
inline constexpr FieldKind kU16Field{formatU16, lengthU16, nullptr, "u16", 2};
inline constexpr FieldKind kU16HexField{formatU16Hex, lengthU16, nullptr, "u16, hexadecimal", 2};
inline constexpr FieldKind kU32Field{formatU32, lengthU32, nullptr, "u32", 4};
inline constexpr FieldKind kU32HexField{formatU32Hex, lengthU32, nullptr, "u32, hexadecimal", 4};
inline constexpr FieldKind kU64Field{formatU64, lengthU64, nullptr, "u64", 8};
inline constexpr FieldKind kBoolField{formatBool, lengthBool, nullptr, "bool (True or False)", 1};
inline constexpr FieldKind kStringField{formatString,        lengthString, nullptr, "string", 0,
                                        "1 + its count byte"};
// Printed by the host, measured as a fixed size: keys whose size a table fixes.
inline constexpr FieldKind kU8FixedField{formatU8, fixedLength<1>, nullptr, "u8", 1};
inline constexpr FieldKind kU32FixedField{formatU32, fixedLength<4>, nullptr, "u32", 4};

} // namespace Orvane
