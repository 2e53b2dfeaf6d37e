#include "bench/StreamStates.h"

#include "decoding/GuardedBuffer.h"
#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/Hex.h"

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <locale>
#include <ostream>
#include <sstream>
#include <stdexcept>
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

void fnv1a(std::uint64_t& hash, std::string_view text) {
  for (unsigned char c : text) hash = (hash ^ c) * 0x100000001b3u;
}

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

std::string stateDigest(const FormatFn& format, const std::vector<unsigned char>& value) {
  static decoding::GuardedBuffer placed;
  std::copy(value.begin(), value.end(), placed.prepare(value.size()));
  placed.setSize(value.size());
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const StreamState& state : streamStates()) {
    fnv1a(hash, state.name);
    fnv1a(hash, ": " + outcomeLine(formatOn(state, format, placed.data())) + "\n");
  }
  std::ostringstream digest;
  digest << std::hex << std::setfill('0') << std::setw(16) << hash;
  return digest.str();
}

std::optional<VectorLine> parseVectorLine(std::string_view line) {
  const auto parts = ovfmt::splitBatchLine(line);
  if (!parts) return std::nullopt;
  VectorLine vector{std::string(parts->id), {}, {}};
  std::string_view hex = parts->hex;
  if (const auto arrow = hex.find("=>"); arrow != std::string_view::npos) {
    std::istringstream(std::string(hex.substr(arrow + 2))) >> vector.digest;
    hex = hex.substr(0, arrow);
  }
  std::string error;
  auto bytes = ovfmt::parseHex(hex, error);
  if (!bytes) throw std::runtime_error(std::string(line) + ": " + error);
  vector.bytes = std::move(*bytes);
  return vector;
}

} // namespace Orvane::test
