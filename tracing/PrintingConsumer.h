// The text sink's consumer: each message printed (MessagePrinter), output written to
// standard output and warnings to standard error.
#pragma once

#include "tracing/MessageConsumer.h"
#include "tracing/MessagePrinter.h"

namespace Orvane::tracing {

/// Prints messages, writing once a batch leaves enough pending (or a warning) and on
/// finish() at the end. Output is written in large blocks, yet none is lost when the
/// process dies of a fatal signal (libbabeltrace2 aborts on some damaged traces): the
/// lines printed so far are written before the process ends. One printer of a process
/// is guarded so, the one made last.
class PrintingConsumer final : public MessageConsumer {
public:
  PrintingConsumer(OutputOptions options, TypeMap types);
  ~PrintingConsumer() override;
  PrintingConsumer(const PrintingConsumer&) = delete;
  PrintingConsumer& operator=(const PrintingConsumer&) = delete;

  void consume(const bt_message* message) override;
  /// Writes what is pending once it is large or holds a warning.
  bool flush() override;
  /// Writes everything pending; false when standard output cannot be written.
  bool finish() override;

  /// Typed fields printed as invalid so far.
  std::size_t invalidFields() const { return printer_.invalidFields(); }
  /// Events and packets discarded records counted so far.
  std::uint64_t discardedEvents() const { return printer_.discardedEvents(); }
  std::uint64_t discardedPackets() const { return printer_.discardedPackets(); }
  /// Whether standard output could not be written at some point.
  bool writeFailed() const { return writeFailed_; }

private:
  MessagePrinter printer_;
  bool writeFailed_ = false;
};

} // namespace Orvane::tracing
