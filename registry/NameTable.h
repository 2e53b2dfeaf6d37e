// Code-to-name tables: read-only hash maps built once at load time.
#pragma once

#include <initializer_list>
#include <ostream>
#include <unordered_map>

namespace Orvane {

/// Maps an unsigned code to constant text.
using NameTable = std::unordered_map<unsigned, const char*>;

/// Writes the name of `code`, or `code` in decimal when the table has no entry.
inline void printName(std::ostream& os, const NameTable& table, unsigned code) {
  if (auto it = table.find(code); it != table.end())
    os << it->second;
  else
    os << code;
}

/// The name of `code`, or `fallback` when the table has no entry.
inline const char* nameOr(const NameTable& table, unsigned code, const char* fallback) {
  auto it = table.find(code);
  return it != table.end() ? it->second : fallback;
}

} // namespace Orvane
