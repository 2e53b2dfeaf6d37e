#include "tracing/DiscardedRecord.h"

#include "decoding/Escape.h"

namespace Orvane::tracing {

DiscardedRecord discardedRecordOf(const bt_message* message) {
  DiscardedRecord d;
  d.packets = bt_message_get_type(message) == BT_MESSAGE_TYPE_DISCARDED_PACKETS;
  if (d.packets) {
    d.stream = bt_message_discarded_packets_borrow_stream_const(message);
    d.hasCount = bt_message_discarded_packets_get_count(message, &d.count) ==
                 BT_PROPERTY_AVAILABILITY_AVAILABLE;
    if (bt_stream_class_discarded_packets_have_default_clock_snapshots(
            bt_stream_borrow_class_const(d.stream))) {
      d.begin = bt_message_discarded_packets_borrow_beginning_default_clock_snapshot_const(message);
      d.end = bt_message_discarded_packets_borrow_end_default_clock_snapshot_const(message);
    }
    return d;
  }
  d.stream = bt_message_discarded_events_borrow_stream_const(message);
  d.hasCount = bt_message_discarded_events_get_count(message, &d.count) ==
               BT_PROPERTY_AVAILABILITY_AVAILABLE;
  if (bt_stream_class_discarded_events_have_default_clock_snapshots(
          bt_stream_borrow_class_const(d.stream))) {
    d.begin = bt_message_discarded_events_borrow_beginning_default_clock_snapshot_const(message);
    d.end = bt_message_discarded_events_borrow_end_default_clock_snapshot_const(message);
  }
  return d;
}

std::string lostCount(std::uint64_t count, bool packets) {
  const char* what =
      packets ? (count == 1 ? " packet" : " packets") : (count == 1 ? " event" : " events");
  return std::to_string(count) + what;
}

std::string lostText(const DiscardedRecord& record) {
  if (record.hasCount) return lostCount(record.count, record.packets);
  return record.packets ? "some packets" : "some events";
}

void appendLossPlace(std::string& out, const DiscardedRecord& record, std::string_view trace) {
  out += " in stream " + std::to_string(bt_stream_get_id(record.stream)) + " of trace \"";
  decoding::appendEscapedText(out, trace);
  out += '"';
}

} // namespace Orvane::tracing
