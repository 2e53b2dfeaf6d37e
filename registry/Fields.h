// Walking the table of a composite value (FieldKind.h).
//
// Each field starts at the running sum of the counts the earlier fields returned, and
// the walk returns the final sum. formatFields() and measureFields() take the same table
// and advance by the same fields, so a key's text and its size come from one list;
// formatTable and lengthTable are a table's two functions, formatVariant and
// lengthVariant a variant composite's (one table of several, picked by the value):
//
//   unsigned formatMacVlanPair(const unsigned char* p, std::ostream& os) {
//     return formatTable<kMacVlanPairRows>(p, os);
//   }
//   unsigned lengthMacVlanPair(const unsigned char* p) {
//     return lengthTable<kMacVlanPairRows>(p);
//   }
//
// Literals under a caller's width, one rule for every table: a label joins the text
// pending in the run (TextRun) unchecked, and the run is inserted with `<<` when a field
// needs the stream (a field printed on the stream, or one whose text cannot join because
// the stream has a width) and at the end. A width the caller set therefore pads the
// text gathered up to the first field that needs the stream, the label and what the key
// printed before it together, as one insertion: the same text whether the key prints a
// label or a caller's run holds it.
//
// The rule shows where a field prints nothing (an Optimized prefix of tag 0 and length
// 255) between two labels: under a width, "MFGKO" pads "(" when its first prefix prints
// and "(, " when it prints nothing, the text pending when the first field text arrives.
// tests/vectors/stream-states.digests freezes what the rule gives for the demo values and those
// keys in every stream state a caller may leave (bench/compare_stream_states --freeze
// writes it; StreamStates.FrozenVectors checks it), so that it cannot drift unseen.
//
// Sums are unsigned 32-bit and wrap; a field after an invalid one (0xFFFFFFFF) is read
// where at() puts it, and the wrapped total is returned unrepaired.
#pragma once

#include "registry/Bytes.h"
#include "registry/FieldKind.h"
#include "registry/Formatter.h"
#include "registry/TextRun.h"

#include <cstddef>
#include <ostream>

namespace Orvane {

/// Prints each field of `fields` (a table ending in an entry without a kind): its label,
/// then the field at the running offset, which begins at `start`; then the closing
/// label. The text stays pending in `text` for the caller to continue and flush.
/// Returns the final offset.
unsigned printFields(const LabeledField* fields, const unsigned char* p, unsigned start,
                     TextRun& text);

/// printFields() on a run of its own, inserted before returning.
unsigned formatFields(const LabeledField* fields, const unsigned char* p, std::ostream& os,
                      unsigned start = 0);

/// The final offset of the same walk, printing nothing.
unsigned measureFields(const LabeledField* fields, const unsigned char* p, unsigned start = 0);

/// The body a variant composite's bytes hold (FieldVariants in FieldKind.h): the table of
/// the variant its code picks and the offset of that table's first field; no table when
/// the bytes hold no variant, and the value is then invalid. A composite states its
/// variants once, in the array its selector indexes, and the variant walks below print
/// and measure whichever one the selector picks.
struct VariantBody {
  const LabeledField* rows = nullptr;
  unsigned start = 0;
};

/// printFields() over the variant's table; kInvalidLength, printing nothing, without one.
inline unsigned printVariant(VariantBody body, const unsigned char* p, TextRun& text) {
  return body.rows ? printFields(body.rows, p, body.start, text) : kInvalidLength;
}

/// printVariant() on a run of its own, inserted before returning.
inline unsigned formatVariant(VariantBody body, const unsigned char* p, std::ostream& os) {
  return body.rows ? formatFields(body.rows, p, os, body.start) : kInvalidLength;
}

/// The final offset of the same walk, printing nothing; kInvalidLength without a table.
inline unsigned lengthVariant(VariantBody body, const unsigned char* p) {
  return body.rows ? measureFields(body.rows, p, body.start) : kInvalidLength;
}

namespace detail {

// The walks of printFields() and measureFields() unrolled over a table known when
// compiling: each field's functions are called directly, each label is a constant.
template <const LabeledField* Fields, std::size_t I = 0>
unsigned printTable(const unsigned char* p, unsigned off, TextRun& text) {
  constexpr LabeledField field = Fields[I];
  if constexpr (field.kind == nullptr) {
    text << field.label;
    return off;
  } else {
    constexpr FieldKind kind = *field.kind;
    if constexpr (kind.append != nullptr)
      off += kind.append(at(p, off), text << field.label);
    else
      off += kind.format(at(p, off), text.flushWith(field.label));
    return printTable<Fields, I + 1>(p, off, text);
  }
}

template <const LabeledField* Fields, std::size_t I = 0>
unsigned measureTable(const unsigned char* p, unsigned off) {
  constexpr const FieldKind* kind = Fields[I].kind;
  if constexpr (kind == nullptr)
    return off;
  else
    return measureTable<Fields, I + 1>(p, off + kind->length(at(p, off)));
}

} // namespace detail

/// The format and length functions of the table `Fields`, the same walks as
/// formatFields() and measureFields() unrolled: what a composite's exported functions
/// return, and a kind's functions when a key is a field of another.
template <const LabeledField* Fields>
unsigned formatTable(const unsigned char* p, std::ostream& os) {
  TextRun text(os);
  const unsigned off = detail::printTable<Fields>(p, 0, text);
  text.flush();
  return off;
}
template <const LabeledField* Fields> unsigned lengthTable(const unsigned char* p) {
  return detail::measureTable<Fields>(p, 0);
}

} // namespace Orvane
