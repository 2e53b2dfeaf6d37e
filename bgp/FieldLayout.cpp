#include "bgp/FieldLayout.h"

#include "registry/Bytes.h"

namespace Orvane {

unsigned formatLayout(const FieldLayout& layout, const unsigned char* p, unsigned start,
                      std::ostream& os) {
  unsigned off = start;
  for (const LabeledField& field : layout.fields) {
    if (!field.kind.format)
      break;
    os << field.label;
    off += field.kind.format(at(p, off), os);
  }
  os << layout.closing;
  return off;
}

unsigned measureLayout(const FieldLayout& layout, const unsigned char* p, unsigned start) {
  unsigned off = start;
  for (const LabeledField& field : layout.fields) {
    if (!field.kind.length)
      break;
    off += field.kind.length(at(p, off));
  }
  return off;
}

} // namespace Orvane
