// The packet printer: the packet library's verbose decoder, opened once at load time.
//
// The wrapper opens "libKanet.so" with dlopen(RTLD_LAZY), found the usual way of the
// dynamic loader (LD_LIBRARY_PATH, the plug-in's run path, the system's directories),
// and looks up the decoder with dlsym under the plain, unmangled name
// "traceStringVerbose". The decoder is a C++ function (it returns a std::string by
// value) with the signature of Decoder below; the library exports it under that plain
// name, e.g. with an assembler label, since an extern "C" function cannot return a
// std::string cleanly. A missing library or symbol is not an error: "PKT" then prints a
// hex dump.
//
// Setting the environment variable OVPKT_HEX to exactly "True" (case-sensitive) before
// the plug-in loads forces the hex dump: no library is opened. The choice is fixed for
// the life of the process.
#pragma once

#include "registry/Export.h"

#include <string>

namespace Orvane {

/// Holds the packet library and its decoder for the life of the plug-in.
class ORVANE_API KanetPktTraceFormatterWrapper {
public:
  /// The decoder: renders a packet as text, possibly over several lines. Takes the
  /// VLAN tag's TPID and TCI, the VLAN-present flag byte, the packet bytes and their
  /// count.
  using Decoder = std::string (*)(unsigned short tpid, unsigned short tci,
                                  unsigned char vlanPresent, const unsigned char* bytes,
                                  unsigned count);

  /// Opens the library and finds the decoder, unless OVPKT_HEX is "True". Leaves both
  /// null when either is missing.
  KanetPktTraceFormatterWrapper();
  /// Closes the library when it was opened.
  ~KanetPktTraceFormatterWrapper();
  KanetPktTraceFormatterWrapper(const KanetPktTraceFormatterWrapper&) = delete;
  KanetPktTraceFormatterWrapper& operator=(const KanetPktTraceFormatterWrapper&) = delete;

  /// The decoder, or null when packets print as a hex dump.
  Decoder decoder() const { return decode; }

private:
  void* library = nullptr;
  Decoder decode = nullptr;
};

/// The one packet printer, built second in the plug-in's load-time order
/// (KaMessageFormatter.cpp).
ORVANE_API extern KanetPktTraceFormatterWrapper kanetPktTraceFormatterWrapper;

} // namespace Orvane
