// Walking a trace record: consecutive arguments, each formatted where the length
// function of the one before says it ends, the way a host decodes a record.
#pragma once

#include "decoding/GuardedBuffer.h"
#include "decoding/TextStream.h"
#include "host/Registry.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::decoding {

/// An argument's type id and the functions registered for it (both set).
struct ArgumentType {
  std::string_view id;
  const host::FormatterPair* formatter = nullptr;
};

/// What formatting one argument of a record produced.
struct Argument {
  std::string_view id;
  std::size_t offset = 0; ///< where the argument starts in the record
  unsigned length = 0;    ///< the length function's result
  unsigned consumed = 0;  ///< the format function's result
  std::string_view text;  ///< what the format function printed
};

/// What is wrong with an argument, if anything, in the order a walk checks it.
enum class Fault {
  None,
  InvalidLength,   ///< the length function returned kInvalidLength
  PastEnd,         ///< the length exceeds the bytes left in the record
  ConsumedDiffers, ///< the format function consumed other than the length
};

/// The first fault of `argument` in a record of `recordSize` bytes.
inline Fault faultOf(const Argument& argument, std::size_t recordSize) {
  if (argument.length == kInvalidLength) return Fault::InvalidLength;
  if (argument.length > recordSize - argument.offset) return Fault::PastEnd;
  if (argument.consumed != argument.length) return Fault::ConsumedDiffers;
  return Fault::None;
}

/// Decodes records one after another in one guarded buffer and one TextStream. The
/// record's bytes are placed between the guards once and every argument is read in
/// place at its running offset, so a corrupt argument's reads land in the record or in
/// the zero guard, never outside the buffer. Each argument is formatted on the stream in
/// a new stream's state. One walker serves one thread.
class RecordWalker {
public:
  /// Places `bytes` as the record, replacing the one before.
  void load(std::span<const unsigned char> bytes);
  /// Room for a record of up to `capacity` bytes, for a caller that decodes its input
  /// (hex text, say) straight into the buffer; place() then makes its first bytes the
  /// record.
  unsigned char* prepare(std::size_t capacity) { return buffer_.prepare(capacity); }
  /// Makes the first `size` bytes written after prepare() the record.
  void place(std::size_t size) { buffer_.setSize(size); }
  /// Bytes in the current record.
  std::size_t size() const { return buffer_.size(); }
  /// The current record's first byte, between the zero guards.
  const unsigned char* data() const { return buffer_.data(); }

  /// Formats `types` in order over the record placed by load() or place(). The walk
  /// stops after an argument whose length is invalid or runs past the bytes left, so it
  /// may return fewer arguments than `types`. The result and its texts stay valid until
  /// the next walk or load.
  std::span<const Argument> walk(std::span<const ArgumentType> types) {
    text_.clear();
    return walkInto(types, {buffer_.data(), buffer_.size()}, text_, {});
  }
  /// walk() over the caller's `record` in place, without guards: every byte the
  /// arguments' functions read must be inside it (as when each argument fits).
  std::span<const Argument> walk(std::span<const ArgumentType> types,
                                 std::span<const unsigned char> record) {
    text_.clear();
    return walkInto(types, record, text_, {});
  }
  /// walk() printing the texts into `out`, after what it holds, each preceded by the
  /// gap of its position (`gaps[i]` before argument i, where given). The texts view
  /// `out` and stay valid until it changes.
  std::span<const Argument> walk(std::span<const ArgumentType> types, TextStream& out,
                                 std::span<const std::string_view> gaps) {
    return walkInto(types, {buffer_.data(), buffer_.size()}, out, gaps);
  }

  /// Whether the last walk formatted every type and none invalid or past the end.
  bool finished() const { return finished_; }
  /// Bytes after the last argument of a finished walk.
  std::size_t leftover() const { return size_ - end_; }

private:
  std::span<const Argument> walkInto(std::span<const ArgumentType> types,
                                     std::span<const unsigned char> record, TextStream& out,
                                     std::span<const std::string_view> gaps);

  GuardedBuffer buffer_;
  TextStream text_;
  std::vector<Argument> arguments_;
  std::vector<std::size_t> textBounds_; ///< where each argument's text starts and ends
  std::size_t size_ = 0;                ///< bytes in the record of the last walk
  std::size_t end_ = 0;                 ///< where the last argument of the last walk ended
  bool finished_ = false;
};

} // namespace Orvane::decoding
