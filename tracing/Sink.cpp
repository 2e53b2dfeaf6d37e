#include "tracing/Sink.h"

#include "tracing/MessagePrinter.h"

#include <cerrno>
#include <memory>
#include <unistd.h>

namespace Orvane::tracing {
namespace {

/// Output is written once this much is pending, and at the end.
constexpr std::size_t kFlushSize = 1 << 20;

struct TextSink {
  explicit TextSink(SinkOptions options) : printer(std::move(options)) {}

  MessagePrinter printer;
  bt_message_iterator* iterator = nullptr;
  SinkReport* report = nullptr;
};

TextSink& sinkOf(bt_self_component_sink* self) {
  return *static_cast<TextSink*>(
      bt_self_component_get_data(bt_self_component_sink_as_self_component(self)));
}

bool writeAll(int fd, std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  text.clear();
  return true;
}

/// Writes what is pending, output before warnings so they come out in order on one
/// terminal; false when standard output cannot be written.
bool flush(TextSink& sink) {
  const bool written = writeAll(STDOUT_FILENO, sink.printer.output());
  writeAll(STDERR_FILENO, sink.printer.warnings());
  if (sink.report) {
    sink.report->invalidFields = sink.printer.invalidFields();
    sink.report->writeFailed = sink.report->writeFailed || !written;
  }
  return written;
}

bt_component_class_sink_consume_method_status fail(bt_self_component_sink* self,
                                                   const char* problem) {
  BT_CURRENT_THREAD_ERROR_APPEND_CAUSE_FROM_COMPONENT(
      bt_self_component_sink_as_self_component(self), "%s", problem);
  return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_ERROR;
}

} // namespace

bt_component_class_initialize_method_status
initializeTextSink(bt_self_component_sink* self, bt_self_component_sink_configuration*,
                   const bt_value* params, void* initializeData) {
  SinkOptions options;
  if (const std::string problem = readSinkOptions(params, options); !problem.empty()) {
    BT_CURRENT_THREAD_ERROR_APPEND_CAUSE_FROM_COMPONENT(
        bt_self_component_sink_as_self_component(self), "%s", problem.c_str());
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  }
  if (bt_self_component_sink_add_input_port(self, "in", nullptr, nullptr) !=
      BT_SELF_COMPONENT_ADD_PORT_STATUS_OK)
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  auto sink = std::make_unique<TextSink>(std::move(options));
  sink->report = static_cast<SinkReport*>(initializeData);
  bt_self_component_set_data(bt_self_component_sink_as_self_component(self), sink.release());
  return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_OK;
}

void finalizeTextSink(bt_self_component_sink* self) {
  std::unique_ptr<TextSink> sink(static_cast<TextSink*>(
      bt_self_component_get_data(bt_self_component_sink_as_self_component(self))));
  if (!sink) return;
  flush(*sink);
  bt_message_iterator_put_ref(sink->iterator);
}

bt_component_class_sink_graph_is_configured_method_status
textSinkGraphIsConfigured(bt_self_component_sink* self) {
  bt_self_component_port_input* port = bt_self_component_sink_borrow_input_port_by_name(self, "in");
  if (bt_message_iterator_create_from_sink_component(self, port, &sinkOf(self).iterator) !=
      BT_MESSAGE_ITERATOR_CREATE_FROM_SINK_COMPONENT_STATUS_OK)
    return BT_COMPONENT_CLASS_SINK_GRAPH_IS_CONFIGURED_METHOD_STATUS_ERROR;
  return BT_COMPONENT_CLASS_SINK_GRAPH_IS_CONFIGURED_METHOD_STATUS_OK;
}

bt_component_class_sink_consume_method_status consumeTextSink(bt_self_component_sink* self) {
  TextSink& sink = sinkOf(self);
  bt_message_array_const messages;
  std::uint64_t count = 0;
  switch (bt_message_iterator_next(sink.iterator, &messages, &count)) {
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_OK: break;
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_END:
    if (!flush(sink)) return fail(self, "cannot write the output");
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_END;
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_AGAIN:
    return flush(sink) ? BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_AGAIN
                       : fail(self, "cannot write the output");
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_MEMORY_ERROR:
    flush(sink);
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_MEMORY_ERROR;
  default:
    // What came before the fault is printed: the events up to a corrupt packet.
    flush(sink);
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_ERROR;
  }
  for (std::uint64_t i = 0; i < count; ++i) {
    sink.printer.print(messages[i]);
    bt_message_put_ref(messages[i]);
  }
  if ((sink.printer.output().size() >= kFlushSize || !sink.printer.warnings().empty()) &&
      !flush(sink))
    return fail(self, "cannot write the output");
  return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_OK;
}

bt_component_class_sink* createTextSinkClass() {
  bt_component_class_sink* sinkClass =
      bt_component_class_sink_create(kTextSinkName, consumeTextSink);
  if (!sinkClass) return nullptr;
  bt_component_class* base = bt_component_class_sink_as_component_class(sinkClass);
  bt_component_class_set_description(base, kTextSinkDescription);
  bt_component_class_set_help(base, kTextSinkHelp);
  bt_component_class_sink_set_initialize_method(sinkClass, initializeTextSink);
  bt_component_class_sink_set_finalize_method(sinkClass, finalizeTextSink);
  bt_component_class_sink_set_graph_is_configured_method(sinkClass, textSinkGraphIsConfigured);
  return sinkClass;
}

} // namespace Orvane::tracing
