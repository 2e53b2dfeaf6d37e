// Formatter text as Python str.
#pragma once

#include <pybind11/pybind11.h>

#include <string_view>

namespace Orvane::python {

/// A formatter's text as a str. Formatters print bytes as they find them (a corrupt
/// string field may hold any byte), so bytes that are not UTF-8 become "\xNN" escapes.
inline pybind11::str toStr(std::string_view text) {
  PyObject* str =
      PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "backslashreplace");
  if (!str) throw pybind11::error_already_set();
  return pybind11::reinterpret_steal<pybind11::str>(str);
}

} // namespace Orvane::python
