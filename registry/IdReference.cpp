#include "registry/IdReference.h"

#include "registry/IdTable.h"

#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace Orvane {
namespace {

// Zero bytes after an example: a formatter reads no further than its length, and the
// zeros keep a wrong example from reading past the buffer.
constexpr std::size_t kExampleGuard = 64;

std::vector<unsigned char> exampleBytes(std::string_view hex) {
  std::vector<unsigned char> bytes;
  std::istringstream pairs{std::string(hex)};
  for (std::string pair; pairs >> pair;)
    bytes.push_back(static_cast<unsigned char>(std::stoul(pair, nullptr, 16)));
  return bytes;
}

std::string exampleText(const IdEntry& entry) {
  std::vector<unsigned char> bytes = exampleBytes(entry.example);
  bytes.resize(bytes.size() + kExampleGuard);
  std::ostringstream text;
  entry.format(bytes.data(), text);
  return text.str();
}

// A label as a table cell: in backticks, or empty.
void writeLabelCell(std::string_view label, std::ostream& os) {
  os << "| ";
  if (!label.empty()) os << '`' << label << '`';
}

// A field's size cell: its bytes, or how its size is found.
void writeSizeCell(const FieldKind& kind, std::ostream& os) {
  if (kind.size)
    os << kind.size;
  else
    os << (kind.sizeRule.empty() ? "its fields' sizes added" : kind.sizeRule);
}

// A field's offset cell: the sum of the sizes before it while they are fixed, then
// "varies". Called once per row in order; the closing row gets the offset of the end.
class OffsetCells {
public:
  void write(const FieldKind* kind, std::ostream& os) {
    os << "| ";
    if (known_)
      os << offset_;
    else
      os << "varies";
    os << " ";
    if (kind && kind->size)
      offset_ += kind->size;
    else
      known_ = false;
  }

private:
  unsigned offset_ = 0;
  bool known_ = true;
};

// The rows of a table, its fields and then its closing text: the first row started by
// `firstLead`, the others by `lead` (the cells before the offset's).
void writeFieldRows(const LabeledField* field, std::string_view firstLead, std::string_view lead,
                    std::ostream& os) {
  OffsetCells offsets;
  for (os << firstLead; field->kind; ++field, os << lead) {
    offsets.write(field->kind, os);
    writeLabelCell(field->label, os);
    os << " | " << field->kind->name << " | ";
    writeSizeCell(*field->kind, os);
    os << " |\n";
  }
  offsets.write(nullptr, os);
  writeLabelCell(field->label, os);
  os << " | (end) | |\n";
}

// True when every field of the table has a fixed size; `total` is then their sum.
bool fixedSize(const LabeledField* field, unsigned& total) {
  total = 0;
  for (; field->kind; ++field) {
    if (!field->kind->size) return false;
    total += field->kind->size;
  }
  return true;
}

void describeFields(const LabeledField* fields, std::ostream& os) {
  os << "| Offset | Text before | Field | Size in bytes |\n|---|---|---|---|\n";
  writeFieldRows(fields, "", "", os);
  os << "\nLength: ";
  if (unsigned total = 0; fixedSize(fields, total))
    os << total << " bytes, the fields' sizes added.\n";
  else
    os << "the fields' sizes added, each field measured where the one before it ends.\n";
}

// The parts of a value that is not a table, in order.
void describeBytes(std::span<const ByteField> bytes, std::ostream& os) {
  os << "| Offset | Size in bytes | Holds |\n|---|---|---|\n";
  for (const ByteField& part : bytes) {
    os << "| " << part.offset << " | ";
    if (part.size)
      os << part.size;
    else
      os << part.sizeRule;
    os << " | " << part.holds << " |\n";
  }
  os << "\n";
}

void writeBits(const BitField& bits, std::ostream& os) {
  os << bits.low << "-" << bits.low + bits.width - 1;
}

// One row per part of a case (one row when it has none), the code and the text in its
// first row; without bits, the rows have no part cells.
void writeCodeCase(std::string_view code, std::span<const BitField> parts, std::string_view prints,
                   bool withBits, std::ostream& os) {
  os << "| " << code;
  if (withBits) {
    os << " | ";
    if (!parts.empty()) writeBits(parts.front(), os);
    os << " | " << (parts.empty() ? "" : parts.front().holds);
  }
  os << " | " << prints << " |\n";
  for (const BitField& part : parts.subspan(parts.empty() ? 0 : 1)) {
    os << "| | ";
    writeBits(part, os);
    os << " | " << part.holds << " | |\n";
  }
}

void describeCodes(const CodeTable& codes, std::ostream& os) {
  os << "\nCodes of the " << codes.code;
  if (codes.bits) {
    os << " (bits ";
    writeBits(*codes.bits, os);
    os << ")";
  }
  os << ":\n\n"
     << (codes.bits ? "| Code | Bits | Holds | Prints |\n|---|---|---|---|\n"
                    : "| Code | Prints |\n|---|---|\n");
  for (const CodeCase& known : codes.cases) {
    std::ostringstream prints;
    if (codes.printsLiteral)
      prints << '`' << known.prints << '`';
    else
      prints << known.prints;
    writeCodeCase(std::to_string(known.code), known.parts, prints.str(), codes.bits, os);
  }
  writeCodeCase("Any other", {}, codes.otherwise, codes.bits, os);
}

void describeSize(std::string_view size, std::ostream& os) {
  const bool number = size.find_first_not_of("0123456789") == std::string_view::npos;
  os << "Length: " << size << (number ? " bytes" : "") << ".\n";
}

// One table of every variant with a body, its name in the first cell of its first row.
void describeVariants(const FieldVariants& variants, std::ostream& os) {
  os << "\nThe body by " << variants.code << "; offsets count from the body's first byte:\n\n"
     << "| Variant | Offset | Text before | Field | Size in bytes |\n|---|---|---|---|---|\n";
  for (unsigned index = 0; index < variants.count; ++index) {
    const LabeledField* body = variants.body(index);
    if (!body) continue;
    std::ostringstream name;
    if (variants.name)
      variants.name(index, name);
    else
      name << "Code " << index;
    writeFieldRows(body, "| " + name.str() + " ", "| ", os);
  }
}

} // namespace

bool describeId(const char* id, std::ostream& os) {
  if (!id) return false;
  const IdEntry entry = idEntry(id);
  if (!entry.format) return false;
  os << "### " << entry.id << ": " << entry.title << "\n\n";
  if (entry.layout) describeBytes(entry.layout->bytes, os);
  if (entry.fields)
    describeFields(entry.fields->rows, os);
  else
    describeSize(entry.size, os);
  if (entry.layout && entry.layout->codes) describeCodes(*entry.layout->codes, os);
  if (entry.variants) describeVariants(*entry.variants, os);
  os << "\nExample: `" << entry.id << " " << entry.example << "` prints `" << exampleText(entry)
     << "`\n";
  return true;
}

} // namespace Orvane
