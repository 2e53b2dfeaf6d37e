#include "bgp/FieldLayout.h"

#include "registry/Bytes.h"

namespace Orvane {

unsigned formatLayout(const FieldLayout& layout, const unsigned char* p, unsigned start,
                      std::ostream& os) {
  TextRun text(os);
  const unsigned off = formatLayout(layout, p, start, text);
  text.flush();
  return off;
}

unsigned formatLayout(const FieldLayout& layout, const unsigned char* p, unsigned start,
                      TextRun& text) {
  unsigned off = start;
  for (const LabeledField& field : layout.fields) {
    if (!field.kind) break;
    text << field.label;
    const FieldKind& kind = *field.kind;
    off += kind.append ? kind.append(at(p, off), text) : kind.format(at(p, off), text.flush());
  }
  text << layout.closing;
  return off;
}

unsigned measureLayout(const FieldLayout& layout, const unsigned char* p, unsigned start) {
  unsigned off = start;
  for (const LabeledField& field : layout.fields) {
    if (!field.kind) break;
    off += field.kind->length(at(p, off));
  }
  return off;
}

} // namespace Orvane
