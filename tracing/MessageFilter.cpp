#include "tracing/MessageFilter.h"

#include "tracing/DiscardedRecord.h"
#include "tracing/EventWalker.h"

#include <fnmatch.h>

namespace Orvane::tracing {

MessageFilter::MessageFilter(const TraceRequest& request)
    : globs_(request.events), begin_(request.begin), end_(request.end),
      gmt_(request.output.clock.gmt) {
  resolved_ = !begin_ && !end_;
}

bool MessageFilter::keeps(const bt_message* message) {
  switch (bt_message_get_type(message)) {
  case BT_MESSAGE_TYPE_EVENT: {
    const bt_event* event = bt_message_event_borrow_event_const(message);
    if (!keepsClass(bt_event_borrow_class_const(event))) return false;
    if (!begin_ && !end_) return true;
    const bt_stream_class* stream =
        bt_stream_borrow_class_const(bt_event_borrow_stream_const(event));
    if (!bt_stream_class_borrow_default_clock_class_const(stream)) return true;
    const bt_clock_snapshot* at = bt_message_event_borrow_default_clock_snapshot_const(message);
    return touchesRange(at, at);
  }
  case BT_MESSAGE_TYPE_DISCARDED_EVENTS:
  case BT_MESSAGE_TYPE_DISCARDED_PACKETS: {
    const DiscardedRecord record = discardedRecordOf(message);
    return !record.begin || touchesRange(record.begin, record.end);
  }
  default: return true;
  }
}

bool MessageFilter::keepsClass(const bt_event_class* eventClass) {
  if (globs_.empty()) return true;
  const auto [found, added] = classes_.try_emplace(eventClass, false);
  if (!added) return found->second;
  const char* name = bt_event_class_get_name(eventClass);
  for (const std::string& glob : globs_)
    if (fnmatch(glob.c_str(), name ? name : "", 0) == 0) return found->second = true;
  return false;
}

bool MessageFilter::touchesRange(const bt_clock_snapshot* begin, const bt_clock_snapshot* end) {
  std::int64_t beginNs = 0, endNs = 0;
  if (!nsFromOrigin(begin, beginNs) || !nsFromOrigin(end, endNs)) return true;
  if (!resolved_) resolveRange(beginNs);
  return endNs >= beginNs_ && beginNs <= endNs_;
}

void MessageFilter::resolveRange(std::int64_t firstNs) {
  if (begin_) beginNs_ = begin_->resolve(firstNs, gmt_);
  if (end_) endNs_ = end_->resolve(firstNs, gmt_);
  resolved_ = true;
}

} // namespace Orvane::tracing
