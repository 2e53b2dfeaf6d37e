// Formatting the bytes of one typed field, as ovfmt formats a value: copied between zero
// guards (never read past the field's bytes) and printed in a new stream's state.
#pragma once

#include "decoding/Record.h"
#include "host/Registry.h"

#include <span>
#include <string>
#include <string_view>

namespace Orvane::tracing {

/// What a typed field's bytes gave: the formatter's text, or why there is none.
struct TypedResult {
  bool valid = false;
  std::string_view text;   ///< the formatter's text, unescaped, when valid
  std::string_view reason; ///< why the value is invalid, when not valid
};

/// Formats typed fields one after another, reusing one guarded buffer and one stream.
/// The texts and reasons it returns stay valid until the next call. One decoder serves
/// one thread.
class TypedValueDecoder {
public:
  /// Formats `bytes` as a value of `id`, whose registered pair is `formatter` (nullptr
  /// for an id nothing registered). Invalid: an unknown id, no bytes at all (what the
  /// writer records for a value it would not copy), an invalid length (0xFFFFFFFF),
  /// fewer bytes than the length function says, or a format function that consumes
  /// other than that length. Bytes after the value do not make it invalid.
  TypedResult decode(std::string_view id, const host::FormatterPair* formatter,
                     std::span<const unsigned char> bytes);

  /// decode() with the pair the registry holds for `id`.
  TypedResult decode(std::string_view id, std::span<const unsigned char> bytes) {
    return decode(id, host::findFormatter(id), bytes);
  }

private:
  TypedResult invalid(std::string reason);

  decoding::RecordWalker walker_;
  std::string reason_;
};

} // namespace Orvane::tracing
