#include "tools/ovfmt/Trace.h"

#ifdef ORVANE_WITH_TRACES
#include "tracing/DiscardedRecord.h"
#include "tracing/TraceGraph.h"
#endif

#include <iostream>

namespace Orvane::ovfmt {
namespace {

constexpr int kExitOk = 0, kExitFailed = 1, kExitUsage = 2;

#ifdef ORVANE_WITH_TRACES
/// "3 events and 1 packet discarded", counting what the discarded records said.
std::string lossLine(std::uint64_t events, std::uint64_t packets) {
  return tracing::lostCount(events, false) + " and " + tracing::lostCount(packets, true) +
         " discarded by the tracer";
}

/// Prints what went wrong, one line each; a failed write is said once, for itself.
void report(const Options& options, const tracing::TraceOutcome& outcome) {
  if (outcome.writeFailed) {
    std::cerr << "ovfmt: cannot write the output\n";
    return;
  }
  for (const auto& problem : outcome.problems) std::cerr << "ovfmt: " << problem << "\n";
  if (options.verbose)
    for (const auto& detail : outcome.details)
      std::cerr << "ovfmt:   caused by: " << detail << "\n";
  if (outcome.invalidFields > 0)
    std::cerr << "ovfmt: " << outcome.invalidFields
              << (outcome.invalidFields == 1 ? " typed field" : " typed fields") << " invalid\n";
  if (outcome.discardedEvents > 0 || outcome.discardedPackets > 0)
    std::cerr << "ovfmt: " << lossLine(outcome.discardedEvents, outcome.discardedPackets) << "\n";
}
#endif

} // namespace

#ifdef ORVANE_WITH_TRACES
int runTrace(const Options& options) {
  tracing::TraceRequest request = options.trace;
  request.inputs = options.positional;
  request.diagnostics = options.verbose;
  const tracing::TraceOutcome outcome = tracing::readTraces(request);
  report(options, outcome);
  if (outcome.status == tracing::TraceOutcome::Status::NoTrace) return kExitUsage;
  const bool lost = outcome.discardedEvents > 0 || outcome.discardedPackets > 0;
  const bool ok = outcome.status == tracing::TraceOutcome::Status::Ok && !outcome.writeFailed &&
                  outcome.invalidFields == 0 && !(lost && options.failOnLoss);
  return ok ? kExitOk : kExitFailed;
}
#else
int runTrace(const Options&) {
  std::cerr << "ovfmt: --trace is not available: ovfmt was built without libbabeltrace2\n";
  return kExitUsage;
}
#endif

} // namespace Orvane::ovfmt
