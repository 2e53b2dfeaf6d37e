#include "tools/ovfmt/Options.h"

#include "decoding/IdList.h"
#include "decoding/Problems.h"

#include <algorithm>
#include <charconv>

namespace Orvane::ovfmt {
namespace {

constexpr unsigned kMaxJobs = 256;

// The forms of the command line, one per "Usage:" line.
constexpr std::string_view kForms[] = {
    "[OPTION]... ID[,ID...] HEX...",
    "[OPTION]... --batch [FILE]...",
    "[OPTION]... --hexdump ID[,ID...] [FILE]",
    "[OPTION]... --list",
    "[OPTION]... --describe ID",
    "[OPTION]... --trace INPUT...",
};

constexpr std::string_view kDescription =
    "Decode binary trace values through the registered formatter plug-ins.\n"
    "\n"
    "ID is a type id (--list shows them); ID,ID,... is a record of arguments\n"
    "back to back, each starting where the one before ends, printed on one\n"
    "line. HEX is pairs of hex digits; blanks, ':', '-' and '.' may separate\n"
    "the pairs, so a MAC reads as 00:1c:73:aa:bb:cc, 00-1c-73-aa-bb-cc or\n"
    "001c.73aa.bbcc; a '0x' before a byte is an error that says so. A FILE\n"
    "of '-', or none, is standard input. Options may come anywhere before a\n"
    "'--', which ends them.\n"
    "\n"
    "--trace prints the events of the CTF traces under each INPUT (a trace, a\n"
    "directory of traces, or an LTTng live URL net://HOST/host/NAME/SESSION),\n"
    "merged in time order, typed fields as their formatters' text, as\n"
    "'babeltrace2 INPUT... -c sink.orvane.text' prints them; the trace options\n"
    "below are the sink's parameters (/usr/share/doc/orvane/traces.md).\n"
    "\n"
    "Control characters in a formatter's text (bytes 0x00 to 0x1f and 0x7f,\n"
    "and C2 80 to C2 9F, U+0080 to U+009F in UTF-8) print as \\xNN, byte by\n"
    "byte, so that one value is one line and no traced byte reaches a\n"
    "terminal as a control sequence; --raw prints the text as the formatter\n"
    "made it. Errors go to standard error, one line each, naming the record\n"
    "(FILE:LINE in a batch) and the problem; a record that fails prints no text.\n";

constexpr std::string_view kAfterOptions =
    "\n"
    "Exit status: 0 when every record printed, 1 when a record failed or the\n"
    "output could not be written, 2 on a usage error, an input file that cannot\n"
    "be read or a plug-in that would not load. With --trace: 0 when every event\n"
    "printed, 1 when a typed field was invalid, a trace, directory or stream\n"
    "could not be read to its end (the events read are printed), the output\n"
    "could not be written, or events were lost and --fail-on-loss is given; 2 on\n"
    "a usage error, no trace under the INPUTs, or a plug-in that would not load.\n"
    "\n"
    "Environment: OVFMT_PLUGIN_DIR (see --plugin); OVPKT_HEX=True prints packets\n"
    "as hex; TZ, the time zone of --trace's times unless --clock-gmt.\n";

std::string setMode(Options& options, Mode mode) {
  if (options.modeGiven && options.mode != mode)
    return "give only one of --batch, --hexdump, --list, --describe and --trace";
  options.mode = mode;
  options.modeGiven = true;
  return "";
}

std::string setJobs(Options& options, std::string_view text) {
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, options.jobs);
  if (error == std::errc() && rest == end && options.jobs >= 1 && options.jobs <= kMaxJobs)
    return "";
  return "--jobs needs a number from 1 to " + std::to_string(kMaxJobs);
}

// Returns "" from a row's action that only sets a flag.
template <bool Options::*flag> std::string set(Options& options, std::string_view) {
  options.*flag = true;
  return "";
}
template <bool PrintOptions::*flag> std::string setPrint(Options& options, std::string_view) {
  options.print.*flag = true;
  return "";
}

// The help of the request parameter `name`, which the sink and Python share.
constexpr std::string_view requestHelp(std::string_view name) {
  return tracing::findRequestParameter(name)->help;
}

// Sets the request parameter `Name` from an option of the same name.
template <const char* Name>
std::string setTraceParameter(Options& options, std::string_view value) {
  options.traceOnly.push_back(std::string("--") + Name);
  return tracing::setRequestParameter(options.trace, Name, value);
}

constexpr char kBegin[] = "begin", kEnd[] = "end", kEvents[] = "events", kTypes[] = "types",
               kClockSeconds[] = "clock-seconds", kClockDate[] = "clock-date",
               kClockGmt[] = "clock-gmt", kNoDelta[] = "no-delta";

// Sets a flag of --trace's own, the option `Name`.
template <bool Options::*flag, const char* Name>
std::string setTraceFlag(Options& options, std::string_view) {
  options.*flag = true;
  options.traceOnly.push_back(std::string("--") + Name);
  return "";
}

constexpr char kFailOnLoss[] = "fail-on-loss", kVerbose[] = "verbose";

constexpr OptionRow kOptions[] = {
    {"batch", 0, "",
     "format one record per line 'ID[,ID...] HEX...' of\n"
     "each FILE; blank lines and lines starting with '#'\n"
     "are skipped",
     [](Options& o, std::string_view) { return setMode(o, Mode::Batch); }},
    {"hexdump", 0, "",
     "format one record whose bytes are in FILE as xxd,\n"
     "hexdump -C or od -A x -t x1 print them (their\n"
     "offsets and text column are dropped)",
     [](Options& o, std::string_view) { return setMode(o, Mode::HexDump); }},
    {"list", 0, "",
     "print every plug-in id, sorted, then a blank line\n"
     "and the host's base-type ids (u8 u16 u32 u64 x16\n"
     "x32 bool str)",
     [](Options& o, std::string_view) { return setMode(o, Mode::List); }},
    {"describe", 0, "",
     "print what the id ID holds: its fields in order\n"
     "with their sizes, how its length is found, and an\n"
     "example in hex with its text",
     [](Options& o, std::string_view) { return setMode(o, Mode::Describe); }},
    {"counts", 0, "",
     "print 'ID<TAB>length<TAB>consumed<TAB>text' for\n"
     "every argument, also an invalid or incomplete one,\n"
     "after which the record stops (and fails)",
     setPrint<&PrintOptions::counts>},
    {"sep", 0, "TEXT",
     "put TEXT between the texts of a record's arguments\n"
     "(default: a blank)",
     [](Options& o, std::string_view text) {
       o.print.separator = text;
       o.separatorGiven = true;
       return std::string();
     }},
    {"template", 0, "TEXT",
     "print TEXT with each '{}' replaced by the next\n"
     "argument's text; '{{' and '}}' print a brace; the\n"
     "'{}' must match the arguments one for one",
     [](Options& o, std::string_view text) {
       o.layout = text;
       return std::string();
     }},
    {"raw", 0, "", "print control characters in texts as they are", setPrint<&PrintOptions::raw>},
    {"line-number", 'n', "",
     "(batch) start each output line with the number of\n"
     "its input line and ':'",
     setPrint<&PrintOptions::numberLines>},
    {"with-filename", 'H', "",
     "(batch) start each output line with its FILE and\n"
     "':' (before the line number with -n)",
     setPrint<&PrintOptions::nameSource>},
    {"keep-lines", 0, "",
     "(batch) print one output line per input line: an\n"
     "empty line for a blank or comment line, '?' for a\n"
     "record that failed",
     setPrint<&PrintOptions::keepLines>},
    {"jobs", 'j', "N",
     "(batch) format on N threads (default 1); the\n"
     "output is the same",
     setJobs},
    {"plugin", 0, "PATH",
     "also load this plug-in, a .so (a name without '/'\n"
     "is looked for in the current directory first) or\n"
     "a directory of them; instead of $OVFMT_PLUGIN_DIR",
     [](Options& o, std::string_view path) {
       o.plugins.emplace_back(path);
       return std::string();
     }},
    {"no-default-plugin", 0, "", "do not load the plug-in installed beside ovfmt",
     [](Options& o, std::string_view) {
       o.defaultPlugin = false;
       return std::string();
     }},
    {"help", 'h', "", "print this help and exit", set<&Options::help>},
    {"version", 'V', "", "print the version and exit", set<&Options::version>},
    // From here on, the options of --trace (traceOptionTable()).
    {"trace", 0, "", "print the events of the traces each INPUT names",
     [](Options& o, std::string_view) { return setMode(o, Mode::Trace); }},
    {"json", 0, "", "print JSON Lines, not text lines",
     [](Options& o, std::string_view) {
       o.traceOnly.emplace_back("--json");
       return tracing::setRequestParameter(o.trace, "format", "json");
     }},
    {kBegin, 0, "T", requestHelp(kBegin), setTraceParameter<kBegin>},
    {kEnd, 0, "T", requestHelp(kEnd), setTraceParameter<kEnd>},
    {kEvents, 0, "GLOB[,GLOB]", requestHelp(kEvents), setTraceParameter<kEvents>},
    {kTypes, 0, "EVENT.FIELD=ID", requestHelp(kTypes), setTraceParameter<kTypes>},
    {kClockSeconds, 0, "", requestHelp(kClockSeconds), setTraceParameter<kClockSeconds>},
    {kClockDate, 0, "", requestHelp(kClockDate), setTraceParameter<kClockDate>},
    {kClockGmt, 0, "", requestHelp(kClockGmt), setTraceParameter<kClockGmt>},
    {kNoDelta, 0, "", requestHelp(kNoDelta), setTraceParameter<kNoDelta>},
    {kFailOnLoss, 0, "", "exit 1 when the tracer lost events or packets",
     setTraceFlag<&Options::failOnLoss, kFailOnLoss>},
    {kVerbose, 'v', "", "print every cause libbabeltrace2 gives for a\nproblem, not one line",
     setTraceFlag<&Options::verbose, kVerbose>},
};

// Where the options of --trace start in kOptions.
constexpr std::size_t kFirstTraceOption = static_cast<std::size_t>(
    std::ranges::find(kOptions, std::string_view("trace"), &OptionRow::name) - kOptions);

// The words a mode takes: how many, at least and at most.
std::string checkWords(const Options& options) {
  const std::size_t words = options.positional.size();
  switch (options.mode) {
  case Mode::Record:
    return words ? "" : "nothing to do: give ID HEX..., --batch, --hexdump, --list or --describe";
  case Mode::Batch: return "";
  case Mode::HexDump:
    if (words == 0) return "--hexdump needs the ID[,ID...] of the record";
    return words > 2 ? "--hexdump reads one FILE" : "";
  case Mode::List: return words ? "--list takes no ID or HEX" : "";
  case Mode::Describe:
    if (words == 0) return "--describe needs an id";
    return words > 1 ? "--describe takes one ID" : "";
  case Mode::Trace: return words ? std::string() : "--trace needs a trace: give INPUT...";
  }
  return "";
}

// The value options that --trace does not take, by name; empty when none was given.
std::string valueOptionIn(const Options& options) {
  const PrintOptions& print = options.print;
  if (print.counts) return "--counts";
  if (print.raw) return "--raw";
  if (options.separatorGiven) return "--sep";
  if (options.layout) return "--template";
  return "";
}

// Checks the options of --trace, or that none is given without it.
std::string traceConflicts(const Options& options) {
  if (options.mode != Mode::Trace)
    return options.traceOnly.empty() ? "" : options.traceOnly.front() + " goes with --trace";
  if (const std::string option = valueOptionIn(options); !option.empty())
    return option + " does not go with --trace";
  return tracing::checkRange(options.trace);
}

// Checks the options that only make sense together; returns a usage problem or "".
std::string conflicts(const Options& options) {
  if (std::string problem = traceConflicts(options); !problem.empty()) return problem;
  const PrintOptions& print = options.print;
  if (options.separatorGiven && options.layout)
    return "give --sep or --template, not both: the template holds the text between arguments";
  if (print.counts && (options.separatorGiven || options.layout))
    return "--counts prints a line per argument: --sep and --template do not apply";
  if (print.counts && print.keepLines)
    return "--counts prints a line per argument: --keep-lines does not apply";
  const bool batchOnly =
      options.jobs != 1 || print.numberLines || print.nameSource || print.keepLines;
  if (batchOnly && options.mode != Mode::Batch)
    return "--jobs, --line-number, --with-filename and --keep-lines apply to --batch only";
  return "";
}

// Parses the template, and checks it against the record's ids when they are given.
std::string prepareTemplate(Options& options) {
  if (!options.layout) return "";
  std::string error;
  options.print.layout = decoding::Template::parse(*options.layout, error);
  if (!options.print.layout) return error;
  if (options.mode != Mode::Record && options.mode != Mode::HexDump) return "";
  std::vector<std::string_view> ids;
  decoding::splitIdList(options.positional.front(), ids);
  if (options.print.layout->placeholders() == ids.size()) return "";
  return decoding::placeholderCountProblem(options.print.layout->placeholders(), ids.size());
}

} // namespace

std::span<const OptionRow> optionTable() { return kOptions; }

std::span<const OptionRow> traceOptionTable() {
  return std::span(kOptions).subspan(kFirstTraceOption);
}

std::string helpText() {
  std::string help;
  for (std::string_view form : kForms)
    help += (help.empty() ? "Usage: ovfmt " : "  or:  ovfmt ") + std::string(form) + "\n";
  help += kDescription;
  help += "\nOptions:\n";
  help += optionsHelp(std::span(kOptions).first(kFirstTraceOption));
  help += "\nTrace options:\n";
  help += optionsHelp(traceOptionTable());
  help += kAfterOptions;
  return help;
}

std::string readOptions(int argc, const char* const* argv, Options& options) {
  const std::span<const char* const> args(argv + 1, static_cast<std::size_t>(argc - 1));
  std::string problem = parseCommandLine(args, kOptions, options, options.positional);
  if (!problem.empty() || options.help || options.version) return problem;
  if (problem = checkWords(options); !problem.empty()) return problem;
  if (problem = conflicts(options); !problem.empty()) return problem;
  return prepareTemplate(options);
}

} // namespace Orvane::ovfmt
