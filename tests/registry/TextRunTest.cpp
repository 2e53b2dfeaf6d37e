// TextRun prints what the insertions it gathers would have printed, in every stream state
// the joining can meet: each case runs the same steps through a run and as plain `<<`
// insertions (the width a caller set belongs to the first insertion either way).
#include "registry/TextRun.h"

#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <sstream>
#include <string>

namespace Orvane::test {
namespace {

struct Thousands : std::numpunct<char> {
  std::string do_grouping() const override { return "\3"; }
};

// One case: the steps on a run, and the insertions they stand for.
struct RunCase {
  const char* name;
  std::function<void(TextRun&)> run;
  std::function<void(std::ostream&)> insertions;
};

const std::string kLong(300, 'x'); // more than the run holds at once

const RunCase kCases[] = {
    {"pieces gathered into one insertion",
     [](TextRun& t) {
       t << "ab"
         << ""
         << "cd";
     },
     [](std::ostream& os) { os << "abcd"; }},
    {"a joined piece after the pending text",
     [](TextRun& t) {
       t << "ab";
       t.join("cd");
     },
     [](std::ostream& os) {
       os << "ab"
          << "cd";
     }},
    {"a number after the pending text",
     [](TextRun& t) {
       t << "n=";
       t.number(1234567);
     },
     [](std::ostream& os) { os << "n=" << uint64_t{1234567}; }},
    {"a number alone", [](TextRun& t) { t.number(0); },
     [](std::ostream& os) { os << uint64_t{0}; }},
    // The pending text goes first, so a width pads "<" alone.
    {"text longer than the run", [](TextRun& t) { t << "<" << kLong << kLong << ">"; },
     [](std::ostream& os) { os << "<" << kLong << kLong << ">"; }},
    {"flushWith, nothing pending", [](TextRun& t) { t.flushWith("z"); },
     [](std::ostream& os) { os << "z"; }},
    {"flushWith after pending text: one insertion",
     [](TextRun& t) {
       t << "y";
       t.flushWith("z");
     },
     [](std::ostream& os) { os << "yz"; }},
    {"flushWith of nothing inserts nothing", [](TextRun& t) { t.flushWith(""); },
     [](std::ostream&) {}},
    {"numbers filling the run",
     [](TextRun& t) {
       for (int i = 0; i < 40; ++i) t.number(~0ull);
     },
     [](std::ostream& os) {
       for (int i = 0; i < 40; ++i) os << ~0ull;
     }},
};

const std::pair<const char*, std::function<void(std::ostream&)>> kStates[] = {
    {"new stream", [](std::ostream&) {}},
    {"width 12", [](std::ostream& os) { os << std::setw(12); }},
    {"left, fill *, width 3",
     [](std::ostream& os) { os << std::left << std::setfill('*') << std::setw(3); }},
    {"hex, showbase", [](std::ostream& os) { os << std::hex << std::showbase; }},
    {"grouping locale",
     [](std::ostream& os) { os.imbue(std::locale(std::locale::classic(), new Thousands)); }},
};

TEST(TextRun, PrintsWhatTheInsertionsWould) {
  for (const auto& [state, setUp] : kStates)
    for (const RunCase& c : kCases) {
      std::ostringstream viaRun, direct;
      setUp(viaRun), setUp(direct);
      TextRun run(viaRun);
      c.run(run);
      run.flush();
      c.insertions(direct);
      EXPECT_EQ(viaRun.str(), direct.str()) << c.name << ", " << state;
      EXPECT_EQ(viaRun.width(), direct.width()) << c.name << ", " << state;
    }
}

TEST(TextRun, NullPieceFailsTheStreamAfterThePendingText) {
  std::ostringstream os;
  TextRun run(os);
  run << "kept" << static_cast<const char*>(nullptr);
  EXPECT_EQ(os.str(), "kept");
  EXPECT_TRUE(os.bad());
}

TEST(TextRun, PendingTextIsNotWrittenWithoutFlush) {
  std::ostringstream os;
  {
    TextRun run(os);
    run << "lost";
  }
  EXPECT_EQ(os.str(), "");
}

} // namespace
} // namespace Orvane::test
