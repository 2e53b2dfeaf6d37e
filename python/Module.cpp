// The `orvane` Python module: the formatters of the loaded plug-ins, reached through the
// host the way ovfmt reaches them. Python objects are read and made here, with the GIL
// held; formatting itself (Formatting.h, ValueBatch.h) runs with the GIL released.
#include "decoding/IdList.h"
#include "decoding/Problems.h"
#include "host/Registry.h"
#include "python/Errors.h"
#include "python/Formatting.h"
#include "python/Plugins.h"
#include "python/PyText.h"
#ifdef ORVANE_WITH_TRACES
#include "python/TraceEvents.h"
#endif
#include "python/ValueBatch.h"

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

#include <optional>
#include <variant>

namespace py = pybind11;

namespace Orvane::python {
namespace {

/// orvane.FormatError, made when the module is initialised.
py::object& formatErrorType() {
  static py::object* type = new py::object(); // never destroyed: Python may outlive statics
  return *type;
}

/// The bytes of a bytes-like object, held (so that they neither move nor go away) for
/// the life of the view. A buffer that is not C-contiguous raises BufferError.
class Bytes {
public:
  explicit Bytes(py::handle object) {
    if (PyUnicode_Check(object.ptr()))
      throw py::type_error("data must be bytes-like, not str: pass bytes, such as "
                           "bytes.fromhex(\"01140a0110\") for hex text");
    if (PyObject_GetBuffer(object.ptr(), &view_, PyBUF_SIMPLE) != 0) throw py::error_already_set();
  }
  ~Bytes() { PyBuffer_Release(&view_); }
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;

  std::span<const unsigned char> span() const {
    return {static_cast<const unsigned char*>(view_.buf), static_cast<std::size_t>(view_.len)};
  }

private:
  Py_buffer view_;
};

/// resolve() with `where()` put before the problem of an id it cannot resolve (built
/// only then: most ids resolve).
template <class Where> decoding::ArgumentType resolveAt(std::string_view id, const Where& where) {
  try {
    return resolve(id);
  } catch (const UnknownIdError& error) {
    throw UnknownIdError(where() + error.what());
  }
}

void load(const std::optional<std::filesystem::path>& path) {
  loadPlugins(path ? path->string() : defaultPluginPath());
}

std::vector<std::string> ids() {
  ensurePluginLoaded();
  return host::registeredIds();
}

unsigned length(std::string_view id, const py::object& data) {
  ensurePluginLoaded();
  const decoding::ArgumentType type = resolve(id);
  // One call of a length function: less than handing the GIL over would cost.
  return measure(type, Bytes(data).span());
}

py::str format(std::string_view id, const py::object& data) {
  ensurePluginLoaded();
  const decoding::ArgumentType type = resolve(id);
  const Bytes bytes(data);
  std::vector<std::string> texts;
  {
    py::gil_scoped_release unlocked;
    texts = formatRecord({&type, 1}, bytes.span());
  }
  return toStr(texts.front());
}

using IdList = std::variant<std::string, std::vector<std::string>>;

py::object formatRecordOf(const IdList& list, const py::object& data,
                          const std::optional<std::string>& layout) {
  ensurePluginLoaded();
  std::vector<std::string_view> ids;
  if (const auto* text = std::get_if<std::string>(&list))
    decoding::splitIdList(*text, ids);
  else
    ids.assign(std::get<1>(list).begin(), std::get<1>(list).end());
  if (ids.empty()) throw std::invalid_argument("a record needs at least one id");
  std::optional<decoding::Template> filled;
  if (layout) filled = parseTemplate(*layout, ids.size());
  std::vector<decoding::ArgumentType> types;
  for (std::size_t i = 0; i < ids.size(); ++i)
    types.push_back(
        resolveAt(ids[i], [&] { return decoding::argumentPrefix(i + 1, ids.size(), ids[i]); }));

  const Bytes bytes(data);
  std::vector<std::string> texts;
  std::string line;
  {
    py::gil_scoped_release unlocked;
    texts = formatRecord(types, bytes.span());
    if (filled) filled->render(std::vector<std::string_view>(texts.begin(), texts.end()), line);
  }
  if (filled) return toStr(line);
  py::list out;
  for (const std::string& text : texts) out.append(toStr(text));
  return out;
}

/// Adds item `index` of format_many's input, an (id, data) pair, to `batch`.
void addItem(ValueBatch& batch, py::handle item, std::size_t index) {
  if (!PySequence_Check(item.ptr()) || PySequence_Size(item.ptr()) != 2) {
    PyErr_Clear(); // PySequence_Size fails for a sequence without a length
    throw py::type_error(itemPrefix(index) + "expected an (id, data) pair, not " +
                         Py_TYPE(item.ptr())->tp_name);
  }
  const auto id = py::reinterpret_steal<py::object>(PySequence_GetItem(item.ptr(), 0));
  const auto data = py::reinterpret_steal<py::object>(PySequence_GetItem(item.ptr(), 1));
  if (!id || !data) throw py::error_already_set();
  if (!PyUnicode_Check(id.ptr()))
    throw py::type_error(itemPrefix(index) + "the id must be a str, not " +
                         Py_TYPE(id.ptr())->tp_name);
  if (PyUnicode_Check(data.ptr()) || !PyObject_CheckBuffer(data.ptr()))
    throw py::type_error(
        itemPrefix(index) + "the data must be bytes-like, not " + Py_TYPE(data.ptr())->tp_name +
        (PyUnicode_Check(data.ptr()) ? " (bytes.fromhex() turns hex into bytes)" : ""));
  Py_ssize_t size = 0;
  const char* utf8 = PyUnicode_AsUTF8AndSize(id.ptr(), &size);
  if (!utf8) throw py::error_already_set();
  const decoding::ArgumentType type =
      resolveAt({utf8, static_cast<std::size_t>(size)}, [&] { return itemPrefix(index); });
  batch.add(*type.formatter, type.id, Bytes(data).span());
}

/// The exception object of the error being handled (thrown by addItem), for
/// format_many(errors="return").
py::object caughtError() {
  try {
    throw;
  } catch (py::error_already_set& error) {
    return error.value();
  } catch (const UnknownIdError& error) {
    return py::reinterpret_borrow<py::object>(PyExc_KeyError)(error.what());
  } catch (const py::type_error& error) {
    return py::reinterpret_borrow<py::object>(PyExc_TypeError)(error.what());
  }
}

/// Whether format_many returns a failed item's exception in its place (errors="return")
/// or raises it (errors="raise").
bool returnsErrors(std::string_view errors) {
  if (errors != "raise" && errors != "return")
    throw py::value_error("errors must be \"raise\" or \"return\", not \"" + std::string(errors) +
                          "\"");
  return errors == "return";
}

py::list formatMany(const py::iterable& items, std::string_view errors) {
  // Values per release of the GIL: enough to make its cost vanish, few enough to keep
  // the copies in the cache.
  constexpr std::size_t kBatchSize = 1024;
  const bool inPlace = returnsErrors(errors);
  ensurePluginLoaded();
  py::list results;
  ValueBatch batch;
  std::size_t index = 0;
  auto append = [&](const py::object& result) {
    if (PyList_Append(results.ptr(), result.ptr()) != 0) throw py::error_already_set();
  };
  // Formats the batch and appends its results; raises the first failure unless inPlace.
  auto flush = [&] {
    {
      py::gil_scoped_release unlocked;
      batch.format(index - batch.size());
    }
    if (!inPlace && batch.firstFailure() < batch.size())
      throw FormatError(std::string(batch.problem(batch.firstFailure())));
    for (std::size_t i = 0; i < batch.size(); ++i)
      append(batch.problem(i).empty() ? py::object(toStr(batch.text(i)))
                                      : formatErrorType()(std::string(batch.problem(i))));
    batch.clear();
  };
  for (py::handle item : items) {
    try {
      addItem(batch, item, index);
    } catch (...) {
      flush(); // the items before this one come first, and so does their problem
      if (!inPlace) throw;
      append(caughtError());
    }
    ++index;
    if (batch.size() == kBatchSize) flush();
  }
  flush();
  return results;
}

} // namespace
} // namespace Orvane::python

// The compiled part of the `orvane` package (python/orvane/__init__.py documents it and
// re-exports what is here).
PYBIND11_MODULE(_core, m) {
  using namespace Orvane::python;
  m.doc() = "The compiled formatters of the orvane package; import orvane instead.";
  m.attr("__version__") = ORVANE_VERSION;
  defaultPluginPath(); // fixed now, before the program can change its directory

  formatErrorType() = py::register_exception<FormatError>(m, "FormatError", PyExc_ValueError);
  formatErrorType().doc() =
      "Data that does not hold the value its id describes: too short, an invalid "
      "encoding, or bytes left after the value. A ValueError.";
  py::register_exception<LoadError>(m, "LoadError", PyExc_OSError).doc() =
      "A plug-in that would not load. An OSError.";
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(thrown);
    } catch (const UnknownIdError& error) {
      PyErr_SetString(PyExc_KeyError, error.what());
    }
  });

  m.def("load", &load, py::arg("path") = py::none(),
        R"(Load formatter plug-ins: the shared object at path, or every *.so in the
directory path; with no path, the plug-in installed or built beside this module.
The host's base types (u8, u16, u32, u64, x16, x32, bool, str) are registered
after the first plug-in. Loading a plug-in again does nothing. Raises LoadError
(an OSError) naming each path that failed.)");
#ifdef ORVANE_WITH_TRACES
  py::class_<TraceReader>(m, "TraceReader",
                          "The event batches of traces; orvane.trace.events() reads with it.")
      .def(py::init<const std::vector<std::string>&, py::handle, py::handle,
                    const std::vector<std::string>&, const std::vector<std::string>&, py::object>(),
           py::arg("inputs"), py::arg("begin"), py::arg("end"), py::arg("events"), py::arg("types"),
           py::arg("invalid_type"))
      .def("__iter__", [](TraceReader& reader) -> TraceReader& { return reader; })
      .def("__next__", &TraceReader::next)
      .def("problems", &TraceReader::problems,
           "What could not be read, one line each; empty unless something could not.");
#endif
  m.def("ids", &ids, "Every registered id, sorted: the plug-ins' and the host's base types.");
  m.def("length", &length, py::arg("id"), py::arg("data"),
        R"(The size in bytes of the value of type id at the start of data, as its
length function says; data may go on past the value. Raises KeyError for an
unknown id, FormatError for an invalid encoding or a value longer than data.)");
  m.def("format", &format, py::arg("id"), py::arg("data"),
        R"(The text of the value of type id that data holds, exactly. Raises KeyError
for an unknown id, FormatError when data is too short, the encoding invalid, or
bytes are left after the value.)");
  m.def("format_record", &formatRecordOf, py::arg("ids"), py::arg("data"),
        py::arg("template") = py::none(),
        R"(Decode a record: consecutive arguments of the types in ids (a list of ids,
or one string "ID,ID,..."), each starting where the one before ends. Returns the
list of their texts; with a template, the template with each {} replaced by the
next text ({{ and }} print a brace). Raises ValueError for a template whose {}
differ in number from the ids, KeyError for an unknown id, FormatError for an
argument that is invalid or runs past data, or bytes left after the last; the
message names the argument.)");
  m.def("format_many", &formatMany, py::arg("items"), py::kw_only(), py::arg("errors") = "raise",
        R"(The texts of many values: items is an iterable of (id, data) pairs, each
formatted as format() would. Returns a list of texts. With errors="raise" (the
default), raises for the first item that fails what format() would, the message
starting "item K: " (K counts from 0). With errors="return", a failed item's
exception object stands in the list in place of its text, and the other items
are formatted all the same.)");
}
