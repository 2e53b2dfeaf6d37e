#include "tracing/Sink.h"

#include "tracing/MessageFilter.h"
#include "tracing/PrintingConsumer.h"
#include "tracing/SinkParameters.h"

#include <memory>

namespace Orvane::tracing {
namespace {

/// A sink's state: the consumer (its own, or the one the program that created it
/// gave), what it keeps, and the iterator over its input.
struct Sink {
  std::unique_ptr<PrintingConsumer> printing; ///< when the sink prints
  MessageConsumer* consumer = nullptr;
  std::unique_ptr<MessageFilter> filter;
  bt_message_iterator* iterator = nullptr;
};

bt_self_component* selfOf(bt_self_component_sink* self) {
  return bt_self_component_sink_as_self_component(self);
}

Sink* sinkOf(bt_self_component_sink* self) {
  return static_cast<Sink*>(bt_self_component_get_data(selfOf(self)));
}

bt_component_class_sink_consume_method_status fail(bt_self_component_sink* self,
                                                   const char* problem) {
  BT_CURRENT_THREAD_ERROR_APPEND_CAUSE_FROM_COMPONENT(selfOf(self), "%s", problem);
  return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_ERROR;
}

/// The sink for a program's own graph, or for babeltrace2's from the parameters.
std::unique_ptr<Sink> makeSink(const bt_value* params, const SinkSetup* setup,
                               std::string& problem) {
  auto sink = std::make_unique<Sink>();
  if (setup) {
    sink->consumer = setup->consumer;
    sink->filter = std::make_unique<MessageFilter>(*setup->request);
    return sink;
  }
  TraceRequest request;
  if (problem = readSinkParameters(params, request); !problem.empty()) return nullptr;
  sink->filter = std::make_unique<MessageFilter>(request);
  sink->printing = std::make_unique<PrintingConsumer>(request.output, std::move(request.types));
  sink->consumer = sink->printing.get();
  return sink;
}

} // namespace

bt_component_class_initialize_method_status
initializeTextSink(bt_self_component_sink* self, bt_self_component_sink_configuration*,
                   const bt_value* params, void* initializeData) {
  std::string problem;
  std::unique_ptr<Sink> sink =
      makeSink(params, static_cast<const SinkSetup*>(initializeData), problem);
  if (!sink) {
    BT_CURRENT_THREAD_ERROR_APPEND_CAUSE_FROM_COMPONENT(selfOf(self), "%s", problem.c_str());
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  }
  if (bt_self_component_sink_add_input_port(self, "in", nullptr, nullptr) !=
      BT_SELF_COMPONENT_ADD_PORT_STATUS_OK)
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  bt_self_component_set_data(selfOf(self), sink.release());
  return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_OK;
}

void finalizeTextSink(bt_self_component_sink* self) {
  std::unique_ptr<Sink> sink(sinkOf(self));
  if (!sink) return;
  sink->consumer->finish();
  bt_message_iterator_put_ref(sink->iterator);
}

bt_component_class_sink_graph_is_configured_method_status
textSinkGraphIsConfigured(bt_self_component_sink* self) {
  bt_self_component_port_input* port = bt_self_component_sink_borrow_input_port_by_name(self, "in");
  if (bt_message_iterator_create_from_sink_component(self, port, &sinkOf(self)->iterator) !=
      BT_MESSAGE_ITERATOR_CREATE_FROM_SINK_COMPONENT_STATUS_OK)
    return BT_COMPONENT_CLASS_SINK_GRAPH_IS_CONFIGURED_METHOD_STATUS_ERROR;
  return BT_COMPONENT_CLASS_SINK_GRAPH_IS_CONFIGURED_METHOD_STATUS_OK;
}

bt_component_class_sink_consume_method_status consumeTextSink(bt_self_component_sink* self) {
  Sink& sink = *sinkOf(self);
  bt_message_array_const messages;
  std::uint64_t count = 0;
  switch (bt_message_iterator_next(sink.iterator, &messages, &count)) {
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_OK: break;
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_END:
    if (!sink.consumer->finish()) return fail(self, "cannot write the output");
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_END;
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_AGAIN:
    // A live source has nothing yet: what came so far is shown now.
    return sink.consumer->finish() ? BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_AGAIN
                                   : fail(self, "cannot write the output");
  case BT_MESSAGE_ITERATOR_NEXT_STATUS_MEMORY_ERROR:
    sink.consumer->finish();
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_MEMORY_ERROR;
  default:
    // What came before the fault is printed: the events up to a corrupt packet.
    sink.consumer->finish();
    return BT_COMPONENT_CLASS_SINK_CONSUME_METHOD_STATUS_ERROR;
  }
  for (std::uint64_t i = 0; i < count; ++i) {
    if (sink.filter->keeps(messages[i])) sink.consumer->consume(messages[i]);
    bt_message_put_ref(messages[i]);
  }
  if (!sink.consumer->flush()) return fail(self, "cannot write the output");
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
