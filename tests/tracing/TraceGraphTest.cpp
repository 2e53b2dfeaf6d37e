// The reader's graph in-process, with a consumer of the test's own (as a language binding
// would use it): events arrive in order, typed fields decoded, a damaged trace fails
// after the events before the damage, a directory without a trace is refused.
#include "tracing/TraceGraph.h"
#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "tracing/EventWalker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace Orvane::test {
namespace {

// Keeps each event's name and the text (or the reason) of each typed field.
class Collector final : public tracing::FieldVisitor {
public:
  std::vector<std::string> events;
  std::vector<std::string> typedFields;

  void beginEvent(const tracing::EventInfo& event) override { events.emplace_back(event.name); }
  void typed(std::string_view id, const tracing::TypedResult& result,
             std::span<const unsigned char>) override {
    typedFields.push_back(std::string(id) + " " +
                          std::string(result.valid ? result.text : result.reason));
  }
  void endEvent() override {}
  void beginScope(tracing::Scope) override {}
  void endScope(tracing::Scope) override {}
  void member(std::string_view) override {}
  void element(std::size_t) override {}
  void unsignedInteger(std::uint64_t, bool) override {}
  void signedInteger(std::int64_t, bool) override {}
  void real(double) override {}
  void boolean(bool) override {}
  void string(std::string_view) override {}
  void none() override {}
  void beginStructure() override {}
  void endStructure() override {}
  void beginArray() override {}
  void endArray() override {}
};

class EventConsumer final : public tracing::MessageConsumer {
public:
  Collector collected;
  int batches = 0, finishes = 0;

  void consume(const bt_message* message) override {
    if (bt_message_get_type(message) != BT_MESSAGE_TYPE_EVENT) return;
    const bt_event* event = bt_message_event_borrow_event_const(message);
    tracing::EventInfo info;
    info.name = bt_event_class_get_name(bt_event_borrow_class_const(event));
    walker_.walk(event, info, collected);
  }
  bool flush() override { return ++batches > 0; }
  bool finish() override { return ++finishes > 0; }

private:
  tracing::EventWalker walker_;
};

tracing::TraceRequest request(const char* trace, std::string begin = {}, std::string end = {}) {
  return {std::string(WORK_DIR) + "/" + trace, false, std::move(begin), std::move(end)};
}

class TraceGraphTest : public ::testing::Test {
protected:
  static void SetUpTestSuite() {
    ASSERT_TRUE(host::loadPlugin(PLUGIN_PATH).empty());
    host::registerBaseTypes();
    const std::string command = std::string(PYTHON " ") + MAKE_TRACE " " + WORK_DIR;
    ASSERT_EQ(std::system(command.c_str()), 0);
  }
};

TEST_F(TraceGraphTest, EventsArriveInOrderWithTypedFieldsDecoded) {
  EventConsumer consumer;
  tracing::TraceGraph graph(request("good"), consumer);
  ASSERT_TRUE(graph.built());
  int steps = 0;
  tracing::TraceGraph::Step step;
  while ((step = graph.step()) == tracing::TraceGraph::Step::More) ++steps;
  EXPECT_EQ(step, tracing::TraceGraph::Step::End);
  EXPECT_GT(steps, 0);
  EXPECT_EQ(consumer.collected.events,
            (std::vector<std::string>{"bgp:peer_up", "bgp:route", "bgp:route", "bgp:route",
                                      "app:message"}));
  ASSERT_EQ(consumer.collected.typedFields.size(), 13u);
  EXPECT_EQ(consumer.collected.typedFields[0], "BPK 10.0.0.1%et1");
  EXPECT_EQ(consumer.collected.typedFields[2],
            "BNH <ip:10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:2)");
  EXPECT_EQ(consumer.collected.typedFields[4], "NOPE unknown id \"NOPE\"");
  EXPECT_EQ(consumer.collected.typedFields[6], "BNH value too short: 10 bytes given, BNH needs 16");
  EXPECT_GT(consumer.finishes, 0);
}

TEST_F(TraceGraphTest, TheTrimmerAndADamagedTraceAndNoTrace) {
  EventConsumer trimmed;
  tracing::TraceGraph range(request("good", "1700000001.000001", "1700000001.000003"), trimmed);
  EXPECT_EQ(range.run(), tracing::TraceGraph::Step::End);
  EXPECT_EQ(trimmed.collected.events.size(), 3u);

  EventConsumer damaged;
  tracing::TraceGraph corrupt(request("corrupt"), damaged);
  EXPECT_EQ(corrupt.run(), tracing::TraceGraph::Step::Failed);
  EXPECT_EQ(damaged.collected.events.size(), 5u); // the first packet, whole
  ASSERT_FALSE(corrupt.problems().empty());
  EXPECT_EQ(corrupt.problems().back(), "cannot read the trace to its end");

  EventConsumer none;
  tracing::TraceGraph missing(request("none"), none);
  EXPECT_FALSE(missing.built());
  EXPECT_EQ(missing.step(), tracing::TraceGraph::Step::Failed);
  ASSERT_EQ(missing.problems().size(), 1u);
  EXPECT_NE(missing.problems()[0].find("no CTF trace"), std::string::npos);
}

// ovfmt --trace on the same traces: text or JSON Lines, and a status and a note for typed
// fields that did not decode (none in the first event) and for damage after valid events.
TEST_F(TraceGraphTest, OvfmtPrintsTheTrace) {
  const auto ovfmt = [](const std::string& options, const char* trace = "good") {
    FILE* pipe = popen((OVFMT " --trace " WORK_DIR "/" + (trace + (" " + options))).c_str(), "r");
    std::string out(1 << 16, '\0');
    out.resize(fread(out.data(), 1, out.size(), pipe));
    const int status = pclose(pipe);
    return std::pair{WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
  };
  const auto [status, first] = ovfmt("--end 1700000001.000000 2>&1");
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(first.ends_with("addr = 10.0.0.1%et1 }\n")) << first;
  EXPECT_EQ(std::count(first.begin(), first.end(), '\n'), 1) << first;
  EXPECT_TRUE(ovfmt("--json").second.starts_with("{\"type\":\"schema\"")) << ovfmt("--json").second;
  const auto full = ovfmt("2>&1 >/dev/full");
  EXPECT_EQ(full.first, 1);
  EXPECT_NE(full.second.find("ovfmt: cannot write the output\novfmt: "), std::string::npos)
      << full.second;
  const auto [damagedStatus, damaged] = ovfmt("--begin 1700000002 2>&1", "corrupt");
  EXPECT_EQ(damagedStatus, 1);
  EXPECT_NE(damaged.find("ovfmt: cannot read the trace to its end\n"), std::string::npos);
}

} // namespace
} // namespace Orvane::test
