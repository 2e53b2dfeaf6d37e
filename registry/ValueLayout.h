// The byte layout of a value that is not written as a field table (FieldKind.h): where
// each part lies, and, for a value whose code picks what the rest holds, the code's
// cases. The per-id reference (IdReference.h) prints it; the formatter reads its value
// through the same parts and cases where it can, so that the two cannot tell different
// layouts:
//
//   constexpr ByteField kOperationBytes[] = {
//       {0, 1, "operation (below)"}, {1, 1, "count"}, {2, 0, "labels", "4 per label"}};
//   constexpr CodeCase kOperations[] = {{0, "push"}, {1, "pop"}};
//   constexpr CodeTable kOperationCodes{"operation (byte 0)", nullptr, kOperations,
//                                       "nothing: the value is invalid", true};
//   constexpr ValueLayout kMplsLabelOperationLayout{kOperationBytes, &kOperationCodes};
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace Orvane {

/// `size` bytes from `offset`, holding `holds`. A part whose size depends on the value
/// has size 0, and `sizeRule` says how its size is found.
struct ByteField {
  unsigned offset = 0;
  unsigned size = 0;
  std::string_view holds = "";
  std::string_view sizeRule = "";
};

/// Bits [low, low + width) of a little-endian word, counting from its least significant
/// bit; width 1 to 64.
struct BitField {
  unsigned low = 0;
  unsigned width = 0;
  std::string_view holds = "";

  /// The field's bits in `word`, shifted down to bit 0.
  constexpr uint64_t of(uint64_t word) const {
    const uint64_t mask = width >= 64 ? ~uint64_t{0} : (uint64_t{1} << width) - 1;
    return (word >> low) & mask;
  }
};

/// One code a value may hold: what it prints, and the bits of the value's word that it
/// gives to each part (none when the code alone decides the text).
struct CodeCase {
  unsigned code = 0;
  std::string_view prints = "";
  std::span<const BitField> parts = {};
};

/// The codes a value's byte or bits pick from: the code's name, its bits when it is
/// part of a word (else the name says where it is), the cases in order of code, and
/// what any other code does. With `printsLiteral`, a case's `prints` is the very text
/// the formatter prints; otherwise it describes the text.
struct CodeTable {
  std::string_view code = "";
  const BitField* bits = nullptr;
  std::span<const CodeCase> cases = {};
  std::string_view otherwise = "";
  bool printsLiteral = false;
};

/// A value's parts in order, from offset 0, and the codes one of them holds, if any.
struct ValueLayout {
  std::span<const ByteField> bytes = {};
  const CodeTable* codes = nullptr;
};

/// True when case i has code i: a formatter that indexes its cases by code asserts it.
constexpr bool indexedByCode(std::span<const CodeCase> cases) {
  for (std::size_t i = 0; i < cases.size(); ++i)
    if (cases[i].code != i) return false;
  return true;
}

} // namespace Orvane
