// The failures of the Python module's C++ side. They carry the words ovfmt prints for
// the same problem; the module turns each into the Python exception named below. They
// may be thrown with the GIL released: none of them holds a Python object.
#pragma once

#include <stdexcept>

namespace Orvane::python {

/// An id no plug-in registered, or one missing its format or length function
/// (`KeyError`).
struct UnknownIdError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Bytes that do not hold the value their id describes: too short, an invalid encoding,
/// or bytes left after the value (`orvane.FormatError`, a `ValueError`).
struct FormatError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A plug-in path that would not load (`orvane.LoadError`, an `OSError`).
struct LoadError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

} // namespace Orvane::python
