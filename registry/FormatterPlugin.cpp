#include "registry/FormatMap.h"
#include "registry/HostInterface.h"

FormatterPlugin::FormatterPlugin() {
  using namespace Orvane;
  // The host takes its arguments by value, so the map keeps its own functions.
  for (const auto& [id, functions] : formatMap) {
    MessageFormatter::addNewFormattersById(id, functions.first);
    MessageFormatter::addNewLengthById(id, functions.second);
  }
}
