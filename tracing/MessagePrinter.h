// What the reader prints for each message of a trace: events as text or JSON lines,
// discarded events and packets as warnings (text) or records of their own (JSON).
#pragma once

#include "tracing/EventWalker.h"
#include "tracing/JsonLayout.h"
#include "tracing/TextLayout.h"
#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <string>

namespace Orvane::tracing {

/// Collects the output of message after message in two strings the caller writes out
/// and clears: output() for standard output, warnings() for standard error.
class MessagePrinter {
public:
  MessagePrinter(OutputOptions options, TypeMap types);

  /// Appends what `message` shows; messages that show nothing (stream and packet
  /// beginnings and ends, inactivity) are skipped.
  void print(const bt_message* message);

  std::string& output() { return out_; }
  std::string& warnings() { return warnings_; }
  /// Typed fields found invalid so far.
  std::size_t invalidFields() const { return walker_.invalidFields(); }
  /// Events and packets the discarded records counted so far (those that say how many).
  std::uint64_t discardedEvents() const { return discardedEvents_; }
  std::uint64_t discardedPackets() const { return discardedPackets_; }

private:
  void printEvent(const bt_message* message);
  void printDiscarded(const bt_message* message);
  void appendBoundary(const bt_clock_snapshot* snapshot);
  /// The name of `stream`'s trace, looked up again only when the trace changes.
  std::string_view traceOf(const bt_stream* stream);

  bool json_;
  ClockOptions clock_;
  EventWalker walker_;
  std::string out_, warnings_;
  const bt_trace* lastTrace_ = nullptr;
  std::string traceName_;
  std::uint64_t discardedEvents_ = 0, discardedPackets_ = 0;
  TextLayout text_;
  JsonLayout jsonLayout_;
};

} // namespace Orvane::tracing
