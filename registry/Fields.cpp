#include "registry/Fields.h"

namespace Orvane {

unsigned printFields(const LabeledField* field, const unsigned char* p, unsigned off,
                     TextRun& text) {
  for (; field->kind; ++field) {
    const FieldKind& kind = *field->kind;
    if (kind.append)
      off += kind.append(at(p, off), text << field->label);
    else
      off += kind.format(at(p, off), text.flushWith(field->label));
  }
  text << field->label;
  return off;
}

unsigned formatFields(const LabeledField* fields, const unsigned char* p, std::ostream& os,
                      unsigned start) {
  TextRun text(os);
  const unsigned off = printFields(fields, p, start, text);
  text.flush();
  return off;
}

unsigned measureFields(const LabeledField* field, const unsigned char* p, unsigned off) {
  for (; field->kind; ++field) off += field->kind->length(at(p, off));
  return off;
}

} // namespace Orvane
