// The trace reader's pieces that need no trace: typed names and the id map, decoding a
// typed field's bytes, timestamps, and the two line layouts (their escaping is
// decoding/Escape.h's, tested in tests/decoding/EscapeTest.cpp).
#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "tracing/JsonLayout.h"
#include "tracing/TextLayout.h"
#include "tracing/TypedNames.h"
#include "tracing/TypedValue.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace Orvane::test {
namespace {

using tracing::TypedResult;

std::vector<unsigned char> bytesOf(const std::string& hex) {
  std::vector<unsigned char> bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
    bytes.push_back(static_cast<unsigned char>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return bytes;
}

TEST(TypedNames, OnlyANameEndingInTwoUnderscoresAndAnIdSplits) {
  const struct {
    const char* name;
    const char* shown; // nullptr: no split
    const char* id;
  } cases[] = {
      {"nexthop__BNH", "nexthop", "BNH"}, {"a__b__I6", "a__b", "I6"},
      {"x__EL2old", "x", "EL2old"},       {"nexthop", nullptr, nullptr},
      {"__BNH", nullptr, nullptr},        {"nexthop__", nullptr, nullptr},
      {"nexthop_BNH", nullptr, nullptr},
  };
  for (const auto& c : cases) {
    const auto split = tracing::splitTypedName(c.name);
    ASSERT_EQ(split.has_value(), c.shown != nullptr) << c.name;
    if (!split) continue;
    EXPECT_EQ(split->shown, c.shown);
    EXPECT_EQ(split->id, c.id);
  }
  EXPECT_EQ(tracing::lengthFieldName("nexthop__BNH"), "_nexthop__BNH_length");
}

TEST(TypeMap, EventEntriesComeBeforeWildcardsAndBadEntriesAreRefused) {
  tracing::TypeMap types;
  for (const char* bad : {"", "ev.field", "ev.field=", "field=BNH", ".field=BNH", "ev.=BNH"})
    EXPECT_FALSE(types.add(bad)) << bad;
  EXPECT_TRUE(types.empty());
  ASSERT_TRUE(types.add("*.addr=I"));
  ASSERT_TRUE(types.add("bgp.v2:route.addr=I6"));
  ASSERT_TRUE(types.add("bgp:route.nh=BNH"));
  EXPECT_EQ(types.find("bgp.v2:route", "addr"), "I6");
  EXPECT_EQ(types.find("other", "addr"), "I");
  EXPECT_EQ(types.find("bgp:route", "nh"), "BNH");
  EXPECT_EQ(types.find("other", "nh"), "");
}

TEST(TypedValueDecoder, EveryFaultIsNamedAndValidValuesPrintTheFormattersText) {
  const struct {
    const char* id;
    std::string hex;
    const char* expected; // the text, or a part of the reason when invalid
    bool valid;
  } cases[] = {
      {"PGO", "01140a0110", "10.1.16.0/20", true},
      {"PGO", "01140a0110ff", "10.1.16.0/20", true}, // bytes after the value are no fault
      {"BNH", "0102000000030100000a001c73aabbcc",
       "<ip:10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:2)", true},
      {"BNH", "0102000000030100000a", "value too short: 10 bytes given, BNH needs 16", false},
      {"PGO", "07", "the length function of PGO returned 0xFFFFFFFF", false},
      {"PGO", "", "empty value", false},
      {"NOPE", "01", "unknown id \"NOPE\"", false},
      {"u32", "2a000000", "42", true},
  };
  ASSERT_TRUE(host::loadPlugin(PLUGIN_PATH).empty());
  host::registerBaseTypes();
  tracing::TypedValueDecoder decoder;
  for (const auto& c : cases) {
    // An exactly-sized heap copy: a read past the field's bytes would show under ASan.
    const std::vector<unsigned char> bytes = bytesOf(c.hex);
    const auto exact = std::make_unique<unsigned char[]>(bytes.size() + 1);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    const TypedResult result = decoder.decode(c.id, {exact.get(), bytes.size()});
    EXPECT_EQ(result.valid, c.valid) << c.id << " " << c.hex;
    if (c.valid)
      EXPECT_EQ(result.text, c.expected);
    else
      EXPECT_NE(result.reason.find(c.expected), std::string_view::npos) << result.reason;
  }
}

TEST(TimestampPrinter, ClockOptionsShapeTheTimeAndTheDelta) {
  setenv("TZ", "UTC", 1);
  constexpr std::int64_t kNs = 1700000000123456789; // 2023-11-14 22:13:20 UTC
  const struct {
    tracing::ClockOptions options;
    std::int64_t second; // the next event, after kNs
    const char* expected;
  } cases[] = {
      {{},
       kNs + 1500000000,
       "[22:13:20.123456789] (+?.?????????"
       ") [22:13:21.623456789] (+1.500000000) "},
      {{.seconds = true, .delta = false},
       kNs + 1,
       "[1700000000.123456789] [1700000000.123456790] "},
      {{.date = true, .gmt = true, .delta = false},
       kNs,
       "[2023-11-14 22:13:20.123456789] [2023-11-14 22:13:20.123456789] "},
      {{.seconds = true, .delta = false}, -1, "[1700000000.123456789] [-1.999999999] "},
  };
  for (const auto& c : cases) {
    tracing::TimestampPrinter printer(c.options);
    std::string out;
    printer.append(out, kNs);
    printer.append(out, c.second);
    EXPECT_EQ(out, c.expected);
  }
}

// Plays one event with a context, nested containers, a valid and an invalid typed field
// and a string with a newline into `visitor`.
void playEvent(tracing::FieldVisitor& visitor) {
  const std::vector<unsigned char> bytes = {0x01, 0x02};
  visitor.beginEvent({"bgp:route", "r1", true, 1700000000000000000});
  visitor.beginScope(tracing::Scope::Context);
  visitor.member("cpu_id");
  visitor.unsignedInteger(3, false);
  visitor.endScope(tracing::Scope::Context);
  visitor.beginScope(tracing::Scope::Payload);
  visitor.member("flags");
  visitor.unsignedInteger(255, true);
  visitor.member("delta");
  visitor.signedInteger(-2, false);
  visitor.member("list");
  visitor.beginArray();
  visitor.element(0);
  visitor.beginStructure();
  visitor.member("ok");
  visitor.boolean(true);
  visitor.endStructure();
  visitor.element(1);
  visitor.none();
  visitor.endArray();
  visitor.member("empty");
  visitor.beginArray();
  visitor.endArray();
  visitor.member("nh");
  visitor.typed("BNH", {true, "text\x1b", {}}, bytes);
  visitor.member("bad");
  visitor.typed("BNH", {false, {}, "value too short"}, bytes);
  visitor.member("s");
  visitor.string("a\nb");
  visitor.member("r");
  visitor.real(0.5);
  visitor.endScope(tracing::Scope::Payload);
  visitor.endEvent();
}

TEST(Layouts, OneEventIsOneLineInEitherLayout) {
  setenv("TZ", "UTC", 1);
  std::string text, json;
  tracing::TextLayout textLayout(text, {.delta = false});
  tracing::JsonLayout jsonLayout(json);
  playEvent(textLayout);
  playEvent(jsonLayout);
  EXPECT_EQ(text, "[22:13:20.000000000] r1 bgp:route: { cpu_id = 3 }, { flags = 0xff, delta = -2, "
                  "list = [ [0] = { ok = true }, [1] = null ], empty = [ ], nh = text\\x1b, "
                  "bad = <invalid: value too short [01 02]>, s = \"a\\x0ab\", r = 0.5 }\n");
  EXPECT_EQ(json, R"({"type":"event","timestamp_ns":1700000000000000000,"name":"bgp:route","trace":"r1",)"
                  R"("context":{"cpu_id":3},"payload":{"flags":255,"delta":-2,)"
                  R"("list":[{"ok":true},null],"empty":[],"nh":"text\u001b",)"
                  R"("bad":{"invalid":"value too short","id":"BNH","hex":"0102"},)"
                  R"("s":"a\nb","r":0.5}})"
                  "\n");
  EXPECT_EQ(tracing::jsonSchemaLine(), R"({"type":"schema","name":"orvane-trace","version":1})"
                                       "\n");
}

} // namespace
} // namespace Orvane::test
