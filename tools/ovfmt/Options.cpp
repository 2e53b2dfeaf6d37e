#include "tools/ovfmt/Options.h"

#include "decoding/IdList.h"
#include "decoding/Problems.h"

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
    "[--plugin PATH]... --trace DIR [--json] [--begin T] [--end T]",
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
    "'--', which ends them. --trace prints the events of the CTF traces in DIR,\n"
    "typed fields as their formatters' text; --json prints JSON Lines, --begin\n"
    "and --end keep the events from and up to time T (docs/traces.md).\n"
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
    "be read or a plug-in that would not load.\n";

std::string setMode(Options& options, Mode mode) {
  if (options.modeGiven && options.mode != mode)
    return "give only one of --batch, --hexdump, --list and --describe";
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
};

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
  }
  return "";
}

// Checks the options that only make sense together; returns a usage problem or "".
std::string conflicts(const Options& options) {
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

std::string helpText() {
  std::string help;
  for (std::string_view form : kForms)
    help += (help.empty() ? "Usage: ovfmt " : "  or:  ovfmt ") + std::string(form) + "\n";
  help += kDescription;
  help += "\nOptions:\n";
  help += optionsHelp(kOptions);
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
