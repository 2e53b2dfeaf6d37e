#include "bgp/NlriType.h"

#include "registry/TextRun.h"

namespace Orvane {
namespace {

// The bracketed form, gathered into `text` as one piece.
void printNlriType(NlriType type, TextRun& text) {
  text << "<NLRI:" << nameOr(nlriTypeNames, type, "unknown") << ">";
}

} // namespace

std::ostream& formatNlriType(NlriType type, std::ostream& os) {
  return printThroughRun(os, [type](TextRun& text) { printNlriType(type, text); });
}

AfiSafi bgpRouteKeyParseNlriType(unsigned char type) {
  auto it = nlriTypeToAfiSafi.find(type);
  return it != nlriTypeToAfiSafi.end() ? it->second : AfiSafi{0, 0};
}

unsigned appendNlriType(const unsigned char* p, TextRun& text) {
  printNlriType(static_cast<NlriType>(p[0]), text);
  return lengthNlriType(p);
}
unsigned formatNlriType(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendNlriType>(p, os);
}
unsigned lengthNlriType(const unsigned char*) { return 1; }

unsigned appendNlriType2AfiSafi(const unsigned char* p, TextRun& text) {
  const NlriType type = static_cast<NlriType>(p[0]);
  if (auto it = nlriTypeToAfiSafi.find(type); it != nlriTypeToAfiSafi.end()) {
    printNlriType(type, text);
    printAfiSafi(it->second, text);
  } else {
    text << "<NLRI:unknown-";
    text.number(type);
    text << "><AfiSafi:unknown>";
  }
  return lengthNlriType2AfiSafi(p);
}
unsigned formatNlriType2AfiSafi(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendNlriType2AfiSafi>(p, os);
}
unsigned lengthNlriType2AfiSafi(const unsigned char*) { return 1; }

} // namespace Orvane
