#include "Values.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <unordered_map>
#include <utility>

namespace orvane::python {

namespace py = pybind11;

using host::Object;
using host::Place;
using host::TypeInfo;
using host::Value;

namespace {

/// Texts cross as UTF-8; bytes that are none come and go as Python's own file names have them.
constexpr const char* kBadBytes = "surrogateescape";

[[noreturn]] void RaiseNoValue(py::handle value, const Place& place) {
  throw host::AutomationError(
      host::ErrorNumber::TypeMismatch,
      "Type mismatch: " + place.Describe() + " takes no Python " + Py_TYPE(value.ptr())->tp_name);
}

/// A new reference that a call of the C interface handed out. Raises the Python error of a failure.
py::object Owned(PyObject* result) {
  if (result == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(result);
}

std::string Text(py::handle value) {
  const auto bytes = Owned(PyUnicode_AsEncodedString(value.ptr(), "utf-8", kBadBytes));
  return {PyBytes_AS_STRING(bytes.ptr()), static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.ptr()))};
}

/// A Python int; one that no 32-bit number holds goes on as a float, so that the model says where
/// it does not fit.
Value WholeNumber(py::handle value) {
  int overflow = 0;
  const long long whole = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
  if (overflow != 0) return std::copysign(std::numeric_limits<double>::infinity(), overflow);
  if (whole < INT32_MIN || whole > INT32_MAX) return static_cast<double>(whole);
  return static_cast<std::int32_t>(whole);
}

bool IsReal(py::handle value) {
  const PyNumberMethods* methods = Py_TYPE(value.ptr())->tp_as_number;
  if (methods == nullptr || (methods->nb_float == nullptr && methods->nb_index == nullptr)) {
    return false;
  }
  const py::module_ numbers = py::module_::import("numbers");
  return !py::isinstance(value, numbers.attr("Complex")) ||
         py::isinstance(value, numbers.attr("Real"));
}

/// A value that is no row.
Value Scalar(py::handle value, const Place& place) {
  PyObject* const raw = value.ptr();
  if (PyBool_Check(raw)) return raw == Py_True;
  if (PyFloat_Check(raw)) return PyFloat_AS_DOUBLE(raw);
  if (PyLong_Check(raw)) return WholeNumber(value);
  if (PyUnicode_Check(raw)) return Text(value);
  if (value.is_none()) return std::shared_ptr<Object>();
  if (py::isinstance<Reference>(value)) return value.cast<const Reference&>().object;
  if (IsReal(value)) return PyFloat_AS_DOUBLE(Owned(PyNumber_Float(raw)).ptr());
  if (py::hasattr(value, "__fspath__")) {
    return Text(py::module_::import("os").attr("fsdecode")(value));
  }
  RaiseNoValue(value, place);
}

/// Numbers of one kind that lie somewhere in memory.
class Buffer {
 public:
  /// Asks `value` for its memory. There is none for what is no buffer, or one of a kind without
  /// such a view.
  explicit Buffer(py::handle value) {
    constexpr int kKindAndSteps = PyBUF_FORMAT | PyBUF_STRIDES;
    m_isHeld = PyObject_CheckBuffer(value.ptr()) != 0 &&
               PyObject_GetBuffer(value.ptr(), &m_view, kKindAndSteps) == 0;
    PyErr_Clear();
  }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;
  ~Buffer() {
    if (m_isHeld) PyBuffer_Release(&m_view);
  }

  /// The number of dimensions; 0 where there is no memory.
  int Dimensions() const { return m_isHeld ? m_view.ndim : 0; }
  Py_ssize_t Extent(int dimension) const { return m_view.shape[dimension]; }

  /// The numbers of a buffer of one or two dimensions, the last one fastest. False for a kind of
  /// number that has no such type here, such as one of the other byte order.
  bool Read(Value::Numbers& row) const {
    if (m_view.format == nullptr || std::strlen(m_view.format) != 1) return false;
    switch (*m_view.format) {
      case 'f':
        return ReadAs<float>(row);
      case 'd':
        return ReadAs<double>(row);
      case 'b':
        return ReadAs<signed char>(row);
      case 'B':
        return ReadAs<unsigned char>(row);
      case 'h':
        return ReadAs<short>(row);
      case 'H':
        return ReadAs<unsigned short>(row);
      case 'i':
        return ReadAs<int>(row);
      case 'I':
        return ReadAs<unsigned int>(row);
      case 'l':
        return ReadAs<long>(row);
      case 'L':
        return ReadAs<unsigned long>(row);
      case 'q':
        return ReadAs<long long>(row);
      case 'Q':
        return ReadAs<unsigned long long>(row);
      default:
        return false;
    }
  }

 private:
  template <class T>
  bool ReadAs(Value::Numbers& row) const {
    const bool isTable = m_view.ndim == 2;
    const Py_ssize_t lines = isTable ? m_view.shape[0] : 1;
    const Py_ssize_t columns = m_view.shape[m_view.ndim - 1];
    const Py_ssize_t step = m_view.strides[m_view.ndim - 1];
    row.reserve(row.size() + static_cast<std::size_t>(lines * columns));
    for (Py_ssize_t line = 0; line < lines; ++line) {
      const char* at =
          static_cast<const char*>(m_view.buf) + (isTable ? line * m_view.strides[0] : 0);
      for (Py_ssize_t column = 0; column < columns; ++column, at += step) {
        T number;
        std::memcpy(&number, at, sizeof number);  // An array need not be aligned.
        row.push_back(static_cast<double>(number));
      }
    }
    return true;
  }

  Py_buffer m_view{};
  bool m_isHeld = false;
};

/// Collects a row of numbers on its way to `place`, in entries of `components` numbers.
class RowReader {
 public:
  RowReader(const Place& place, std::size_t components)
      : m_place(place), m_components(components) {}

  Value Read(py::handle value) {
    AddRow(value, 0);
    return std::move(m_row);
  }

 private:
  void AddRow(py::handle value, int depth) {
    const std::size_t before = m_row.size();
    if (!AddBuffer(value, depth)) {
      // A copy: what the conversion of an item runs may change the list.
      const auto items =
          py::reinterpret_steal<py::tuple>(Owned(PySequence_Tuple(value.ptr())).release());
      m_row.reserve(before + items.size());
      for (const py::handle item : items) {
        if (depth == 0 && m_components > 1 && IsRow(item)) {
          AddRow(item, depth + 1);
        } else {
          m_row.push_back(host::ToNumber(Scalar(item, m_place), m_place));
        }
      }
    }
    if (depth > 0 && m_row.size() - before != m_components) RaiseShape(m_row.size() - before);
  }

  bool AddBuffer(py::handle value, int depth) {
    const Buffer buffer(value);
    if (buffer.Dimensions() == 0) return false;
    if (buffer.Dimensions() == 2 && depth == 0 && m_components > 1) {
      const auto columns = static_cast<std::size_t>(buffer.Extent(1));
      if (columns != m_components) RaiseShape(columns);
    } else if (buffer.Dimensions() != 1) {
      throw host::AutomationError(host::ErrorNumber::TypeMismatch,
                                  "Type mismatch: " + m_place.Describe() + " takes no array of " +
                                      std::to_string(buffer.Dimensions()) + " dimensions");
    }
    return buffer.Read(m_row);
  }

  [[noreturn]] void RaiseShape(std::size_t got) const {
    throw host::AutomationError(host::ErrorNumber::TypeMismatch,
                                "Type mismatch: " + m_place.Describe() + " takes entries of " +
                                    std::to_string(m_components) + " numbers, got one of " +
                                    std::to_string(got));
  }

  const Place& m_place;
  std::size_t m_components;
  Value::Numbers m_row;
};

/// What makes classes, and those that it made. They stay until the process ends: when the
/// interpreter winds up, nothing may be left that lets go of a Python object.
struct Classes {
  py::object make;
  std::unordered_map<const TypeInfo*, py::object> made;
};

Classes& TheClasses() {
  static auto* const classes = new Classes;
  return *classes;
}

py::object Wrapped(const std::shared_ptr<Object>& object) {
  if (object == nullptr) return py::none();
  const py::object type = ClassOf(object->Type());
  py::object self = type.attr("__new__")(type);
  py::type::of<Reference>().attr("__init__")(self, Reference{object});
  return self;
}

}  // namespace

bool IsRow(py::handle value) {
  PyObject* const raw = value.ptr();
  if (PyList_Check(raw) || PyTuple_Check(raw)) return true;
  if (PyUnicode_Check(raw) || PyBytes_Check(raw) || PyByteArray_Check(raw) || PyDict_Check(raw) ||
      PyAnySet_Check(raw) || py::isinstance<Reference>(value)) {
    return false;
  }
  if (PyObject_CheckBuffer(raw))
    return Buffer(value).Dimensions() > 0;  // numpy.float32(1) is none.
  return Py_TYPE(raw)->tp_iter != nullptr;
}

Value ToValue(py::handle value, const Place& place) {
  if (!IsRow(value)) return Scalar(value, place);
  return RowReader(place, place.Type().components).Read(value);
}

py::object ToPython(const Value& value) {
  if (const auto* truth = value.If<bool>()) return py::bool_(*truth);
  if (const auto* whole = value.If<std::int32_t>()) return py::int_(*whole);
  if (const auto* number = value.If<float>()) return py::float_(*number);
  if (const auto* number = value.If<double>()) return py::float_(*number);
  if (const auto* text = value.If<std::string>()) {
    return Owned(
        PyUnicode_DecodeUTF8(text->data(), static_cast<Py_ssize_t>(text->size()), kBadBytes));
  }
  if (const auto* row = value.If<Value::Numbers>()) {
    py::tuple numbers(row->size());
    for (std::size_t i = 0; i < row->size(); ++i) numbers[i] = py::float_((*row)[i]);
    return numbers;
  }
  if (const auto* object = value.If<std::shared_ptr<Object>>()) return Wrapped(*object);
  return py::none();
}

py::object ClassOf(const TypeInfo& type) {
  Classes& classes = TheClasses();
  if (const auto found = classes.made.find(&type); found != classes.made.end()) {
    return found->second;
  }
  py::object made = classes.make(py::cast(&type, py::return_value_policy::reference));
  return classes.made.emplace(&type, std::move(made)).first->second;
}

void MakeClassesWith(py::object makeClass) { TheClasses().make = std::move(makeClass); }

}  // namespace orvane::python
