// The parameters of the sink.orvane.text component.
#pragma once

#include "tracing/Timestamp.h"
#include "tracing/TypedNames.h"

#include <babeltrace2/babeltrace.h>

#include <string>

namespace Orvane::tracing {

/// What the component's parameters ask for.
struct SinkOptions {
  bool json = false;  ///< format="json": JSON Lines instead of text lines
  ClockOptions clock; ///< clock-seconds, clock-date, clock-gmt, no-delta (text only)
  TypeMap types;      ///< types="EVENT.FIELD=ID" or an array of them
};

/// Reads `params` (a map, or null for none) into `options`. Returns what is wrong with
/// them, or an empty string. Parameters it does not know are ignored.
std::string readSinkOptions(const bt_value* params, SinkOptions& options);

} // namespace Orvane::tracing
