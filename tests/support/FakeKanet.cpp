// A stand-in for the packet library, built as libKanet.so in a directory of its own.
// Its decoder echoes its arguments over several lines, so a test sees that the call
// passed every argument and that the newlines were folded. It also tells how many ids
// the host had registered when the library was opened: the packet printer must open it
// before the plug-in registers anything.
#include "host/Registry.h"
#include "packet/KanetPktTraceFormatterWrapper.h"

#include <cstdio>
#include <string>
#include <type_traits>

// A C++ function exported under the plain name the wrapper looks up.
std::string traceStringVerbose(unsigned short tpid, unsigned short tci, unsigned char vlanPresent,
                               const unsigned char* bytes, unsigned count)
    __asm__("traceStringVerbose");

static_assert(std::is_same_v<decltype(&traceStringVerbose),
                             Orvane::KanetPktTraceFormatterWrapper::Decoder>);

namespace {
const std::size_t registrationsWhenOpened = Orvane::host::registrationLog().size();
} // namespace

std::string traceStringVerbose(unsigned short tpid, unsigned short tci, unsigned char vlanPresent,
                               const unsigned char* bytes, unsigned count) {
  std::string text = "tpid " + std::to_string(tpid) + " tci " + std::to_string(tci) + " vlan " +
                     std::to_string(vlanPresent) + "\n" + std::to_string(count) + " bytes:";
  for (unsigned i = 0; i < count; ++i) {
    char byte[4];
    std::snprintf(byte, sizeof byte, " %02x", bytes[i]);
    text += byte;
  }
  return text + "\nopened after " + std::to_string(registrationsWhenOpened) + " registrations\n";
}
