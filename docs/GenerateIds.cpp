// Writes docs/ids.md, the reference of every type id, on standard output: the id
// table's families in order, a table of contents, then each id as describeId() gives
// it. `cmake --build --preset dev --target ids_md` rewrites the file; the test
// ids_md_current fails when the committed file differs from what this prints.
#include "registry/IdReference.h"
#include "registry/IdTable.h"

#include <iostream>
#include <string>

namespace {

using namespace Orvane;

template <class Visit> void forEachFamily(Visit visit) {
  const IdEntry* row = std::begin(kIdTable);
  for (const IdFamily& family : kIdFamilies) {
    visit(family, row, row + family.rows);
    row += family.rows;
  }
}

void writeContents(std::ostream& os) {
  os << "## Contents\n\n";
  unsigned number = 0;
  forEachFamily([&](const IdFamily& family, const IdEntry* first, const IdEntry* last) {
    os << "- [" << family.name << "](#family-" << ++number << "):";
    for (const IdEntry* row = first; row != last; ++row)
      os << (row == first ? " " : ", ") << "[" << row->id << "](#" << row->id << ")";
    os << "\n";
  });
}

} // namespace

int main() {
  std::cout << "# Type ids\n\n"
               "Every id the plug-in supplies: what the value holds; its bytes, for a key "
               "written as one\ntable its fields in order with their offsets and sizes, for "
               "some other values their\nparts and the codes that pick what they print; how "
               "its size is found; and an example\nwith the text it prints. Offsets and sizes "
               "are in bytes; numbers are little-endian unless\nsaid otherwise, and bits "
               "count from the least significant. Generated from the tables the\nformatters "
               "use by docs/GenerateIds.cpp; do not edit. `ovfmt --describe ID` prints one\n"
               "id's entry.\n\n";
  writeContents(std::cout);
  unsigned number = 0;
  forEachFamily([&](const IdFamily& family, const IdEntry* first, const IdEntry* last) {
    std::cout << "\n<a id=\"family-" << ++number << "\"></a>\n\n## " << family.name << "\n";
    for (const IdEntry* row = first; row != last; ++row) {
      std::cout << "\n<a id=\"" << row->id << "\"></a>\n\n";
      describeId(std::string(row->id).c_str(), std::cout);
    }
  });
  return std::cout ? 0 : 1;
}
