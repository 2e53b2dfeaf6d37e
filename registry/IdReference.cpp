#include "registry/IdReference.h"

#include "registry/IdTable.h"

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

void describeFields(const LabeledField* field, std::ostream& os) {
  os << "| Text before | Field | Size in bytes |\n|---|---|---|\n";
  unsigned total = 0;
  bool fixed = true;
  for (; field->kind; ++field) {
    const FieldKind& kind = *field->kind;
    writeLabelCell(field->label, os);
    os << " | " << kind.name << " | ";
    if (kind.size)
      os << kind.size;
    else
      os << (kind.sizeRule.empty() ? "its fields' sizes added" : kind.sizeRule);
    os << " |\n";
    total += kind.size;
    fixed = fixed && kind.size;
  }
  writeLabelCell(field->label, os);
  os << " | (end) | |\n\nLength: ";
  if (fixed)
    os << total << " bytes, the fields' sizes added.\n";
  else
    os << "the fields' sizes added, each field measured where the one before it ends.\n";
}

void describeSize(std::string_view size, std::ostream& os) {
  const bool number = size.find_first_not_of("0123456789") == std::string_view::npos;
  os << "Length: " << size << (number ? " bytes" : "") << ".\n";
}

} // namespace

bool describeId(const char* id, std::ostream& os) {
  if (!id) return false;
  const IdEntry entry = idEntry(id);
  if (!entry.format) return false;
  os << "### " << entry.id << ": " << entry.title << "\n\n";
  if (entry.fields)
    describeFields(entry.fields->rows, os);
  else
    describeSize(entry.size, os);
  os << "\nExample: `" << entry.id << " " << entry.example << "` prints `" << exampleText(entry)
     << "`\n";
  return true;
}

} // namespace Orvane
