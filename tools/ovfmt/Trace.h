// ovfmt --trace: printing the events of CTF traces, typed fields as their formatters'
// text, exactly as `babeltrace2 INPUT... -c sink.orvane.text` prints them.
#pragma once

#include "tools/ovfmt/Options.h"

namespace Orvane::ovfmt {

/// Reads the traces under `options.positional` as `options.trace` asks (the formatters
/// already loaded) and returns the exit status: 0 every event printed; 1 a typed field
/// was invalid, something could not be read to its end, the output could not be
/// written, or events were lost with `failOnLoss`; 2 no trace under the inputs. Prints
/// one line per problem on stderr (every cause with `verbose`), and one line that sums
/// up the events and packets lost, if any were.
int runTrace(const Options& options);

} // namespace Orvane::ovfmt
