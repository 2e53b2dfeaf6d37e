// The one request every reader is given: the time grammar, the parameters by name, and
// the sink's parameters as babeltrace2 values.
#include "tracing/SinkParameters.h"
#include "tracing/TraceRequest.h"

#include <gtest/gtest.h>

namespace Orvane::tracing {
namespace {

constexpr std::int64_t kSecond = 1000000000;
constexpr std::int64_t k221321 = 1700000001 * kSecond; // 2023-11-14 22:13:21 UTC

TEST(TimeBound, ReadsEveryFormAndNothingElse) {
  struct Case {
    const char* text;
    std::int64_t ns; // resolved in UTC on the day of k221321
    const char* problem = nullptr;
  };
  const Case cases[] = {
      {"1700000001000001000", k221321 + 1000},
      {"12345678901", 12345678901}, // 11 digits: nanoseconds
      {"1700000001", k221321},      // 10 digits: seconds
      {"1700000001.5", k221321 + 500000000},
      {"-1.000000001", -1000000001},
      {"2023-11-14 22:13:21.25", k221321 + 250000000},
      {"2023-11-14 22:13", k221321 - 21 * kSecond},
      {"22:13:21.000000007", k221321 + 7},
      {"99999999999999999999", 0, "is out of range"},
      {"9999999999.5", 0, "is out of range"},
      {"garbage", 0, "cannot read the time \"garbage\": give NANOSECONDS"},
      {"1.", 0, "cannot read"},
      {"1700000001x", 0, "cannot read"},
      {"24:00", 0, "cannot read"},
      {"22:60", 0, "cannot read"},
      {"2023-13-01 00:00", 0, "cannot read"},
  };
  for (const Case& c : cases) {
    std::string problem;
    const auto bound = TimeBound::parse(c.text, problem);
    if (c.problem) {
      EXPECT_FALSE(bound) << c.text;
      EXPECT_NE(problem.find(c.problem), std::string::npos) << c.text << ": " << problem;
    } else {
      ASSERT_TRUE(bound) << c.text << ": " << problem;
      EXPECT_EQ(bound->resolve(k221321, true), c.ns) << c.text;
    }
  }
}

TEST(TimeBound, KnowsWhichBoundsItCanCompareBeforeReading) {
  std::string problem;
  const auto at = [&](const char* text) { return *TimeBound::parse(text, problem); };
  EXPECT_TRUE(at("22:13:22").after(at("22:13:21"), false));
  EXPECT_FALSE(at("22:13:21").after(at("22:13:21"), false));
  EXPECT_TRUE(at("1700000002").after(at("2023-11-14 22:13:21"), true));
  EXPECT_FALSE(at("1700000001").after(at("2023-11-14 22:13:21"), true)); // equal
  EXPECT_FALSE(at("22:13:22").after(at("1"), true)); // only the trace's day tells
  EXPECT_TRUE(at("22:13:22").timeOfDay());
}

TEST(RequestParameters, SetByNameWithOneSetOfMessages) {
  struct Case {
    const char* name;
    const char* value;
    const char* problem; // "" when it is set
  };
  const Case cases[] = {
      {"format", "xml", "format is \"text\" or \"json\", not \"xml\""},
      {"clock-gmt", "yes", "clock-gmt is true or false, not \"yes\""},
      {"events", "bgp:*,app:message", ""},
      {"events", "bgp:*,", "events takes GLOB[,GLOB]: a pattern is empty"},
      {"types", "bgp:route.raw=PGO,*.blob=E", ""},
      {"types", "raw=PGO", "types takes \"EVENT.FIELD=ID\", not \"raw=PGO\""},
      {"begin", "tomorrow", "cannot read the time \"tomorrow\""},
      {"fromat", "json", "unknown parameter \"fromat\" (known: format, begin, end, events,"},
  };
  for (const Case& c : cases) {
    TraceRequest request;
    const std::string problem = setRequestParameter(request, c.name, c.value);
    EXPECT_TRUE(problem.starts_with(c.problem) && problem.empty() == !*c.problem)
        << c.name << "=" << c.value << ": " << problem;
  }
  TraceRequest request;
  for (const char* flag : {"clock-seconds", "clock-date", "clock-gmt", "no-delta"})
    ASSERT_EQ(setRequestParameter(request, flag, "true"), "");
  ASSERT_EQ(setRequestParameter(request, "events", "a*,b"), "");
  ASSERT_EQ(setRequestParameter(request, "events", "c"), "");
  const ClockOptions& clock = request.output.clock;
  EXPECT_TRUE(clock.seconds && clock.date && clock.gmt && !clock.delta);
  EXPECT_EQ(request.events, (std::vector<std::string>{"a*", "b", "c"}));
  ASSERT_EQ(setRequestParameter(request, "no-delta", "false"), "");
  EXPECT_TRUE(request.output.clock.delta);
}

TEST(SinkParameters, TakeTypedValuesAndRefuseWhatTheyDoNotKnow) {
  struct Case {
    const char* name;
    bt_value* value;
    const char* problem;
  };
  bt_value* globs = bt_value_array_create();
  bt_value_array_append_string_element(globs, "bgp:*");
  bt_value_array_append_string_element(globs, "app:*");
  bt_value* badList = bt_value_array_create();
  bt_value_array_append_signed_integer_element(badList, 1);
  const Case cases[] = {
      {"format", bt_value_string_create_init("json"), ""},
      {"format", bt_value_bool_create_init(BT_TRUE), "parameter format must be a string"},
      {"no-delta", bt_value_string_create_init("yes"), "parameter no-delta must be true or false"},
      {"begin", bt_value_integer_signed_create_init(-5), ""},
      {"end", bt_value_real_create_init(5), "parameter end must be a string or an integer"},
      {"events", globs, ""},
      {"events", badList, "parameter events must be a string or an array of strings"},
      {"fromat", bt_value_string_create_init("json"), "unknown parameter \"fromat\""},
  };
  for (const Case& c : cases) {
    bt_value* params = bt_value_map_create();
    bt_value_map_insert_entry(params, c.name, c.value);
    TraceRequest request;
    const std::string problem = readSinkParameters(params, request);
    EXPECT_TRUE(problem.starts_with(c.problem) && problem.empty() == !*c.problem)
        << c.name << ": " << problem;
    bt_value_put_ref(params);
    bt_value_put_ref(c.value);
  }
  TraceRequest request;
  bt_value* params = bt_value_map_create();
  bt_value_map_insert_signed_integer_entry(params, "begin", 7);
  bt_value_map_insert_string_entry(params, "events", "bgp:*,app:*");
  ASSERT_EQ(readSinkParameters(params, request), "");
  EXPECT_EQ(request.begin->resolve(0, false), 7);
  EXPECT_EQ(request.events.size(), 2u);
  bt_value_map_insert_signed_integer_entry(params, "end", 6);
  EXPECT_EQ(readSinkParameters(params, request), "the range's begin is after its end");
  bt_value_put_ref(params);
}

} // namespace
} // namespace Orvane::tracing
