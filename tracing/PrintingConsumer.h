// The text sink's consumer: each message printed (MessagePrinter), output written to
// standard output and warnings to standard error.
#pragma once

#include "tracing/MessageConsumer.h"
#include "tracing/MessagePrinter.h"

namespace Orvane::tracing {

/// Prints messages, writing once a batch leaves enough pending (or a warning) and on
/// flush() at the end.
class PrintingConsumer final : public MessageConsumer {
public:
  explicit PrintingConsumer(SinkOptions options) : printer_(std::move(options)) {}

  void consume(const bt_message* message) override { printer_.print(message); }
  /// Writes what is pending once it is large or holds a warning.
  bool flush() override;
  /// Writes everything pending; false when standard output cannot be written.
  bool finish() override;

  /// Typed fields printed as invalid so far.
  std::size_t invalidFields() const { return printer_.invalidFields(); }
  /// Whether standard output could not be written at some point.
  bool writeFailed() const { return writeFailed_; }

private:
  MessagePrinter printer_;
  bool writeFailed_ = false;
};

} // namespace Orvane::tracing
