#include "tracing/MessagePrinter.h"

#include "decoding/Escape.h"
#include "tracing/DiscardedRecord.h"
#include "tracing/Numbers.h"

namespace Orvane::tracing {
MessagePrinter::MessagePrinter(OutputOptions options, TypeMap types)
    : json_(options.json), clock_(options.clock), walker_(std::move(types)),
      text_(out_, options.clock), jsonLayout_(out_) {
  if (json_) out_ = jsonSchemaLine();
}

void MessagePrinter::print(const bt_message* message) {
  switch (bt_message_get_type(message)) {
  case BT_MESSAGE_TYPE_EVENT: printEvent(message); break;
  case BT_MESSAGE_TYPE_DISCARDED_EVENTS:
  case BT_MESSAGE_TYPE_DISCARDED_PACKETS: printDiscarded(message); break;
  default: break;
  }
}

void MessagePrinter::printEvent(const bt_message* message) {
  const bt_event* event = bt_message_event_borrow_event_const(message);
  EventInfo info = eventInfoOf(message);
  info.trace = traceOf(bt_event_borrow_stream_const(event));
  if (json_)
    walker_.walk(event, info, jsonLayout_);
  else
    walker_.walk(event, info, text_);
}

std::string_view MessagePrinter::traceOf(const bt_stream* stream) {
  const bt_trace* trace = bt_stream_borrow_trace_const(stream);
  if (trace != lastTrace_) {
    lastTrace_ = trace;
    traceName_ = traceNameOf(trace);
  }
  return traceName_;
}

void MessagePrinter::appendBoundary(const bt_clock_snapshot* snapshot) {
  std::int64_t ns = 0;
  if (!nsFromOrigin(snapshot, ns)) {
    (json_ ? out_ : warnings_) += json_ ? "null" : "?";
    return;
  }
  if (json_) {
    appendSigned(out_, ns, false);
  } else {
    ClockOptions plain = clock_;
    plain.delta = false;
    std::string stamp;
    TimestampPrinter(plain).append(stamp, ns);
    warnings_.append(stamp, 0, stamp.size() - 1); // without the blank after "]"
  }
}

void MessagePrinter::printDiscarded(const bt_message* message) {
  const DiscardedRecord d = discardedRecordOf(message);
  (d.packets ? discardedPackets_ : discardedEvents_) += d.hasCount ? d.count : 0;
  if (json_) {
    out_ += R"({"type":"discarded_)";
    out_ += d.packets ? "packets" : "events";
    out_ += R"(","count":)";
    d.hasCount ? appendUnsigned(out_, d.count, false) : void(out_ += "null");
    out_ += R"(,"begin_ns":)";
    appendBoundary(d.begin);
    out_ += R"(,"end_ns":)";
    appendBoundary(d.end);
    out_ += R"(,"trace":")";
    decoding::appendJsonString(out_, traceOf(d.stream));
    out_ += R"(","stream_id":)";
    appendUnsigned(out_, bt_stream_get_id(d.stream), false);
    out_ += "}\n";
    return;
  }
  warnings_ += "orvane: warning: " + lostText(d) + " discarded";
  if (d.begin && d.end) {
    warnings_ += " between ";
    appendBoundary(d.begin);
    warnings_ += " and ";
    appendBoundary(d.end);
  }
  appendLossPlace(warnings_, d, traceOf(d.stream));
  warnings_ += '\n';
}

} // namespace Orvane::tracing
