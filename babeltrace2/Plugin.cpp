// The babeltrace2 plug-in `orvane`: sink.orvane.text, the reader of tracing/Sink.h, with
// the formatters loaded from the plug-in installed or built beside this library.
#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "tracing/Sink.h"

#include <babeltrace2/babeltrace.h>

#include <dlfcn.h>
#include <string>

namespace {

using namespace Orvane;

/// The formatter plug-in beside the host library this plug-in is linked with: the
/// build tree and the installed tree both keep it at ORVANE_FORMATTERS_FROM_LIBDIR from
/// the host library's directory.
std::string defaultFormatters() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&host::findFormatter), &info) == 0 || !info.dli_fname)
    return ORVANE_FORMATTERS_FROM_LIBDIR;
  const std::string host = info.dli_fname;
  return host.substr(0, host.rfind('/') + 1) + ORVANE_FORMATTERS_FROM_LIBDIR;
}

/// Loads the formatters unless the process has some already (a program that loaded its
/// own before building a graph). Returns the problem, or an empty string.
std::string ensureFormatters() {
  if (!host::registrationLog().empty()) return {};
  const std::string path = defaultFormatters();
  std::string problem;
  for (const auto& error : host::loadPluginPath(path))
    problem += "cannot load formatter plug-in " + error.path + ": " + error.reason;
  if (problem.empty()) host::registerBaseTypes();
  return problem;
}

bt_component_class_initialize_method_status initialize(bt_self_component_sink* self,
                                                       bt_self_component_sink_configuration* config,
                                                       const bt_value* params, void* data) {
  if (const std::string problem = ensureFormatters(); !problem.empty()) {
    BT_CURRENT_THREAD_ERROR_APPEND_CAUSE_FROM_COMPONENT(
        bt_self_component_sink_as_self_component(self), "%s", problem.c_str());
    return BT_COMPONENT_CLASS_INITIALIZE_METHOD_STATUS_ERROR;
  }
  return tracing::initializeTextSink(self, config, params, data);
}

} // namespace

// babeltrace2 finds the plug-in's descriptors through functions of these C names.
extern "C" {
BT_PLUGIN_MODULE();
BT_PLUGIN(orvane);
BT_PLUGIN_DESCRIPTION("Typed trace values printed as the Orvane formatters' text");
BT_PLUGIN_LICENSE("Proprietary");
BT_PLUGIN_SINK_COMPONENT_CLASS(text, Orvane::tracing::consumeTextSink);
BT_PLUGIN_SINK_COMPONENT_CLASS_DESCRIPTION(text, Orvane::tracing::kTextSinkDescription);
BT_PLUGIN_SINK_COMPONENT_CLASS_HELP(text, Orvane::tracing::kTextSinkHelp);
BT_PLUGIN_SINK_COMPONENT_CLASS_INITIALIZE_METHOD(text, initialize);
BT_PLUGIN_SINK_COMPONENT_CLASS_FINALIZE_METHOD(text, Orvane::tracing::finalizeTextSink);
BT_PLUGIN_SINK_COMPONENT_CLASS_GRAPH_IS_CONFIGURED_METHOD(
    text, Orvane::tracing::textSinkGraphIsConfigured);
}
