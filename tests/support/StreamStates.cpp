#include "tests/support/StreamStates.h"

#include <algorithm>
#include <iomanip>
#include <locale>
#include <ostream>
#include <streambuf>

namespace Orvane::test {
namespace {

// Takes at most `room` characters, then refuses: a full or broken device (npos: all).
class LimitedBuffer : public std::streambuf {
public:
  explicit LimitedBuffer(std::size_t room) : room_(room) {}
  const std::string& text() const { return text_; }

protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof()) || text_.size() >= room_)
      return traits_type::eof();
    text_ += traits_type::to_char_type(c);
    return c;
  }
  std::streamsize xsputn(const char* s, std::streamsize n) override {
    const auto taken = std::min(static_cast<std::size_t>(n), room_ - text_.size());
    text_.append(s, taken);
    return static_cast<std::streamsize>(taken);
  }

private:
  std::size_t room_;
  std::string text_;
};

struct Thousands : std::numpunct<char> {
  std::string do_grouping() const override { return "\3"; }
  char do_thousands_sep() const override { return '\''; }
};

} // namespace

std::vector<StreamState> streamStates() {
  const std::locale grouping(std::locale::classic(), new Thousands);
  return {
      {"new stream", [](std::ostream&) {}},
      {"width 40", [](std::ostream& os) { os << std::setw(40); }},
      {"width 40, left, fill *",
       [](std::ostream& os) { os << std::left << std::setfill('*') << std::setw(40); }},
      {"width 40, internal", [](std::ostream& os) { os << std::internal << std::setw(40); }},
      {"width 3", [](std::ostream& os) { os << std::setw(3); }},
      {"width -5", [](std::ostream& os) { os.width(-5); }},
      {"hex", [](std::ostream& os) { os << std::hex; }},
      {"hex, showbase, uppercase",
       [](std::ostream& os) { os << std::hex << std::showbase << std::uppercase; }},
      {"oct, width 12, fill 0",
       [](std::ostream& os) { os << std::oct << std::setfill('0') << std::setw(12); }},
      {"showpos", [](std::ostream& os) { os << std::showpos; }},
      {"showbase", [](std::ostream& os) { os << std::showbase; }},
      {"grouping locale", [grouping](std::ostream& os) { os.imbue(grouping); }},
      {"grouping locale, width 30",
       [grouping](std::ostream& os) { os.imbue(grouping), os.width(30); }},
      {"failbit", [](std::ostream& os) { os.setstate(std::ios::failbit); }},
      {"badbit, width 9", [](std::ostream& os) { os.setstate(std::ios::badbit), os.width(9); }},
      {"buffer takes 0", [](std::ostream&) {}, 0},
      {"buffer takes 7", [](std::ostream&) {}, 7},
      {"buffer takes 20, width 25", [](std::ostream& os) { os.width(25); }, 20},
  };
}

Outcome formatOn(const StreamState& state, const FormatFn& format, const unsigned char* value) {
  LimitedBuffer buffer(state.room);
  std::ostream os(&buffer);
  state.setUp(os);
  const unsigned count = format(value, os);
  return {buffer.text(), count, os.flags(), os.width(), os.fill(), os.rdstate()};
}

std::string outcomeLine(const Outcome& outcome) {
  return std::to_string(outcome.count) + " " + std::to_string(unsigned(outcome.flags)) + " " +
         std::to_string(outcome.width) + " " + std::to_string(int(outcome.fill)) + " " +
         std::to_string(unsigned(outcome.state)) + " `" + outcome.text + "`";
}

} // namespace Orvane::test
