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
  TextRun text(os);
  printNlriType(type, text);
  return text.flush();
}

AfiSafi bgpRouteKeyParseNlriType(unsigned char type) {
  auto it = nlriTypeToAfiSafi.find(type);
  return it != nlriTypeToAfiSafi.end() ? it->second : AfiSafi{0, 0};
}

unsigned formatNlriType(const unsigned char* p, std::ostream& os) {
  formatNlriType(static_cast<NlriType>(p[0]), os);
  return lengthNlriType(p);
}
unsigned lengthNlriType(const unsigned char*) { return 1; }

unsigned formatNlriType2AfiSafi(const unsigned char* p, std::ostream& os) {
  const NlriType type = static_cast<NlriType>(p[0]);
  TextRun text(os);
  if (auto it = nlriTypeToAfiSafi.find(type); it != nlriTypeToAfiSafi.end()) {
    printNlriType(type, text);
    printAfiSafi(it->second, text);
  } else {
    text << "<NLRI:unknown-";
    text.number(type);
    text << "><AfiSafi:unknown>";
  }
  text.flush();
  return lengthNlriType2AfiSafi(p);
}
unsigned lengthNlriType2AfiSafi(const unsigned char*) { return 1; }

} // namespace Orvane
