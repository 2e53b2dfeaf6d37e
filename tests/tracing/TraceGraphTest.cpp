// The reader's graph in-process with a consumer of the test's own (filters, traces found
// and named, damage in one line), and ovfmt --trace on the same traces.
#include "tracing/TraceGraph.h"
#include "tracing/PrintingConsumer.h"
#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "tracing/EventWalker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Orvane::test {
namespace {

// Keeps each event's name and the text (or the reason) of each typed field.
class Collector final : public tracing::FieldVisitor {
public:
  std::vector<std::string> events;

  void beginEvent(const tracing::EventInfo& event) override { events.emplace_back(event.name); }
  void typed(std::string_view, const tracing::TypedResult&, std::span<const unsigned char>) override {}
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

  void consume(const bt_message* message) override {
    if (bt_message_get_type(message) != BT_MESSAGE_TYPE_EVENT) return;
    const bt_event* event = bt_message_event_borrow_event_const(message);
    tracing::EventInfo info;
    info.name = bt_event_class_get_name(bt_event_borrow_class_const(event));
    walker_.walk(event, info, collected);
  }
  bool flush() override { return true; }

private:
  tracing::EventWalker walker_;
};

namespace fs = std::filesystem;

// The traces of this process: ctest runs the tests of this file at once, one a process.
const std::string kWork = std::string(WORK_DIR) + "/" + std::to_string(getpid());

std::string at(const char* trace) { return kWork + "/" + trace; }

// A request for `inputs` with the parameters `name=value` given.
tracing::TraceRequest request(std::vector<std::string> inputs,
                              std::vector<std::pair<const char*, const char*>> parameters = {}) {
  tracing::TraceRequest made;
  made.inputs = std::move(inputs);
  for (const auto& [name, value] : parameters)
    EXPECT_EQ(tracing::setRequestParameter(made, name, value), "") << name;
  return made;
}
tracing::TraceRequest request(const char* trace) { return request({at(trace)}); }

class TraceGraphTest : public ::testing::Test {
protected:
  // The writer's traces, and under "tree": a copy of "good" (one UUID: one trace),
  // "discarded" a level down, and a trace whose metadata is not CTF.
  static void SetUpTestSuite() {
    ASSERT_TRUE(host::loadPlugin(PLUGIN_PATH).empty());
    host::registerBaseTypes();
    setenv("TZ", "UTC", 1); // for the times ovfmt prints
    const std::string command = std::string(PYTHON " ") + MAKE_TRACE " " + kWork;
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::pair<const char*, const char*> copies[] = {
        {"good", "tree/a/good"}, {"good", "tree/a/copy"}, {"discarded", "tree/b/discarded"},
        {"good", "tree/broken"}};
    for (const auto& [from, to] : copies) {
      fs::create_directories(fs::path(at(to)).parent_path());
      fs::copy(at(from), at(to), fs::copy_options::recursive);
    }
    std::ofstream(at("tree/broken/metadata")) << "/* CTF 1.8 */ not a trace {";
  }
  static void TearDownTestSuite() { fs::remove_all(kWork); }
};

TEST_F(TraceGraphTest, KeepsTheEventsTheRequestAsksFor) {
  struct Case {
    std::vector<std::pair<const char*, const char*>> parameters;
    std::size_t events;
  };
  const Case cases[] = {
      {{}, 5},
      {{{"events", "bgp:route,nothing"}}, 3},
      {{{"begin", "1700000001000001000"}, {"end", "1700000001000003000"}}, 3},
      {{{"clock-gmt", ""}, {"begin", "22:13:21.000004"}}, 1},
      {{{"clock-gmt", ""}, {"end", "2023-11-14 22:13:21.000001"}}, 2},
      {{{"end", "1700000000"}}, 0},
  };
  for (const Case& c : cases) {
    EventConsumer consumer;
    tracing::TraceGraph graph(request({at("good")}, c.parameters), consumer);
    EXPECT_EQ(graph.run(), tracing::TraceGraph::Step::End);
    EXPECT_EQ(consumer.collected.events.size(), c.events) << c.parameters.size();
  }
}

TEST_F(TraceGraphTest, FindsAndNamesTracesAsBabeltrace2Does) {
  const auto found = tracing::discoverTraces({at("tree"), at("none"), at("corrupt")});
  ASSERT_EQ(found.sources.size(), 4u);
  EXPECT_EQ(found.sources[0].inputs, (std::vector<std::string>{at("tree/a/copy"), at("tree/a/good")}));
  EXPECT_EQ(found.sources[0].name, ""); // copies of one trace: its hostname only
  EXPECT_EQ(found.sources[1].name, "b/discarded");
  EXPECT_EQ(found.sources[2].name, "broken");
  EXPECT_EQ(found.sources[3].inputs, std::vector<std::string>{at("corrupt")});
  EXPECT_EQ(found.sources[3].name, "");
  ASSERT_EQ(found.problems.size(), 1u);
  EXPECT_EQ(found.problems[0], "cannot read " + at("none") + ": No such file or directory");

  // One UUID, one trace: from a packetized metadata file's first header, or its text.
  const auto write = [](const std::string& dir, const std::string& metadata) {
    fs::create_directories(at(dir.c_str()));
    std::ofstream(at((dir + "/metadata").c_str()), std::ios::binary) << metadata;
  };
  const std::string header("\x57\x1d\xd1\x75", 4), uuid(16, 'u'), other(16, 'o');
  for (const char* copy : {"groups/p1", "groups/p2"}) write(copy, header + uuid + "rest");
  write("groups/p3", header + other + "rest");
  for (const char* copy : {"groups/t1", "groups/t2"})
    write(copy, "trace {\n\tuuid=\"2a75c3ff-37de-55b8-b1bb-23c86d2d99c1\"; };");
  const auto groups = tracing::discoverTraces({at("groups")});
  ASSERT_EQ(groups.sources.size(), 3u);
  EXPECT_EQ(groups.sources[0].inputs.size(), 2u);
  EXPECT_EQ(groups.sources[2].inputs.size(), 2u);
}

TEST_F(TraceGraphTest, ReportsDamageInOneLineAndReadsTheRest) {
  EventConsumer consumer;
  tracing::TraceGraph graph(request({at("tree")}), consumer);
  EXPECT_EQ(graph.run(), tracing::TraceGraph::Step::End);
  EXPECT_TRUE(graph.damaged());
  EXPECT_EQ(consumer.collected.events.size(), 15u); // both copies, and discarded
  ASSERT_EQ(graph.problems().size(), 1u);
  EXPECT_TRUE(graph.problems()[0].starts_with("cannot read the trace " + at("tree/broken") +
                                              " to its end: "))
      << graph.problems()[0];
}

// A source that stops a stream part-way leaves an error on the thread and returns OK:
// the reader reports it and goes on, where libbabeltrace2 would abort at the next call.
TEST_F(TraceGraphTest, AStreamStoppedPartWayIsReportedNotFatal) {
  const std::string copy = at("overrun");
  EventConsumer consumer;
  tracing::TraceGraph graph(request({copy}), consumer);
  EXPECT_EQ(graph.run(), tracing::TraceGraph::Step::End);
  EXPECT_EQ(consumer.collected.events.size(), 3u); // as many as babeltrace2 prints
  EXPECT_TRUE(graph.damaged());
  EXPECT_EQ(graph.problems(), std::vector<std::string>{"cannot read the trace " + copy +
                                                       " to its end: Cannot handle state: "
                                                       "state=DSCOPE_EVENT_PAYLOAD_CONTINUE"});
}

// The lines printed before the process dies of a signal are written all the same.
TEST_F(TraceGraphTest, PrintedLinesSurviveAnAbort) {
  const std::string out = at("aborted.txt");
  const pid_t child = fork();
  if (child == 0) {
    dup2(open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644), STDOUT_FILENO);
    tracing::PrintingConsumer printer({}, {});
    tracing::TraceGraph graph(request("good"), printer);
    while (graph.step() == tracing::TraceGraph::Step::More) {
    }
    std::abort(); // before finish(): nothing was written yet
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT);
  std::ifstream printed(out);
  const std::string text((std::istreambuf_iterator<char>(printed)), {});
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5) << text;
}

// ovfmt --trace on the same traces: what it prints, its one-line problems and its status.
TEST_F(TraceGraphTest, OvfmtReadsTracesAsTheSinkDoes) {
  const auto ovfmt = [](const std::string& arguments) {
    const std::string command = OVFMT " 2>&1 " + arguments; // before any redirection of theirs
    FILE* pipe = popen(command.c_str(), "r");
    std::string out(1 << 16, '\0');
    out.resize(fread(out.data(), 1, out.size(), pipe));
    const int status = pclose(pipe);
    return std::pair{WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
  };
  const std::string good = at("good"), lossy = at("discarded");
  struct Case {
    std::string arguments;
    int status;
    std::string shown; // a part of what is printed (stdout, then stderr)
  };
  const Case cases[] = {
      {"--trace " + good + " --end 1700000001.000000 --fail-on-loss", 0, "1\", addr = 10"},
      {"--trace " + good + " --end 1700000001.000001", 1, "ovfmt: 1 typed field invalid\n"},
      {"--trace net://127.0.0.1:1/host/h/s", 1, "cannot read the trace net://127.0.0.1:1/host/h/s"},
      {"--trace " + good + " --events 'app:*' --json", 0, "\"name\":\"app:message\",\"trace\":\"router1\""},
      {"--trace " + lossy + " --events 'app:*'", 0, "ovfmt: 7 events and 1 packet discarded by the tracer\n"},
      {"--trace " + lossy + " --events 'app:*' --fail-on-loss", 1,
       "1000] and [22:13:23.000002000] in stream 0 of trace \"router1\"\n"}, // a warning
      {"--trace " + good + " >/dev/full", 1, "ovfmt: cannot write the output\n"},
      {"--trace " + at("corrupt") + " --begin 1700000002", 1, "ovfmt: cannot read " + at("corrupt/stream_0") + " to its end: No event class"},
      {"--trace " + at("none"), 2, "ovfmt: no CTF trace (a directory with a metadata file) in "},
  };
  for (const Case& c : cases) {
    const auto [status, shown] = ovfmt(c.arguments);
    EXPECT_EQ(status, c.status) << c.arguments << "\n" << shown;
    EXPECT_NE(shown.find(c.shown), std::string::npos) << c.arguments << "\n" << shown;
  }
}

} // namespace
} // namespace Orvane::test
