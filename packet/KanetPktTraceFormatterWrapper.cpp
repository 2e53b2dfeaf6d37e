#include "packet/KanetPktTraceFormatterWrapper.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>

namespace Orvane {
namespace {

bool hexForced() {
  const char* value = std::getenv("OVPKT_HEX");
  return value && std::strcmp(value, "True") == 0;
}

} // namespace

KanetPktTraceFormatterWrapper::KanetPktTraceFormatterWrapper() {
  if (hexForced()) return;
  library = dlopen("libKanet.so", RTLD_LAZY);
  if (library) decode = reinterpret_cast<Decoder>(dlsym(library, "traceStringVerbose"));
}

KanetPktTraceFormatterWrapper::~KanetPktTraceFormatterWrapper() {
  if (library) dlclose(library);
}

} // namespace Orvane
