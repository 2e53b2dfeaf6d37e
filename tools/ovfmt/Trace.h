// ovfmt --trace: printing the events of CTF traces, typed fields as their formatters'
// text, exactly as `babeltrace2 DIR -c sink.orvane.text` prints them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Orvane::ovfmt {

/// Whether the command line asks for --trace.
bool isTraceCommand(int argc, char** argv);

/// Loads the plug-ins given with --plugin (the default ones when none is given) and the
/// host's base types; returns false, having reported why, when one would not load.
using PluginLoading = std::function<bool(const std::vector<std::string>& plugins)>;

/// Runs `ovfmt [--plugin PATH]... --trace DIR [--json] [--begin T] [--end T]` and
/// returns the exit status: 0 every event printed, 1 the trace could not be read to its
/// end, a typed field was invalid or the output could not be written, 2 a usage error,
/// no trace in DIR or a plug-in that would not load.
int runTrace(int argc, char** argv, const PluginLoading& loadPlugins);

} // namespace Orvane::ovfmt
