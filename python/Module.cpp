/// The compiled half of the Python package: objects of the model behind one class, and the type
/// tables from which the other half makes a Python class for each class of the model.

#include "Values.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/control/ObjectModel.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

namespace orvane::python {
namespace {

namespace py = pybind11;

using host::EnumInfo;
using host::EventInfo;
using host::Help;
using host::Member;
using host::Parameter;
using host::TypeInfo;
using host::Value;
using host::ValueType;

const Member& MemberAt(const TypeInfo& type, int id) {
  return type.Members().at(static_cast<std::size_t>(id));
}

std::vector<Value> ToValues(const py::tuple& values, const TypeInfo& type, int id) {
  std::vector<Value> converted;
  converted.reserve(values.size());
  for (const py::handle value : values) {
    converted.push_back(ToValue(value, {type, MemberAt(type, id), converted.size()}));
  }
  return converted;
}

py::object Get(const Reference& self, int id, const py::tuple& arguments) {
  return ToPython(self.object->Get(id, ToValues(arguments, self.object->Type(), id)));
}

void Let(const Reference& self, int id, const py::tuple& argumentsAndValue) {
  self.object->Let(id, ToValues(argumentsAndValue, self.object->Type(), id));
}

/// Raises what a Python handler of `event` has raised as the error of the call that raised the
/// event, with the Python exception as its cause. What is no Exception, such as an interrupt, goes
/// on as it is.
[[noreturn]] void RaiseFromHandler(const py::error_already_set& raised, const std::string& event) {
  if (!raised.matches(PyExc_Exception)) throw raised;
  auto number = host::ErrorNumber::HandlerFailed;
  std::string text = "The handler of " + event +
                     " failed: " + py::str(raised.type().attr("__name__")).cast<std::string>() +
                     ": " + py::str(raised.value()).cast<std::string>();
  if (raised.matches(py::module_::import("orvane._orvane").attr("AutomationError"))) {
    number = static_cast<host::ErrorNumber>(
        py::getattr(raised.value(), "number", py::int_(static_cast<std::uint32_t>(number)))
            .cast<std::uint32_t>());
    text = py::str(raised.value()).cast<std::string>();
  }
  try {
    throw raised;
  } catch (...) {
    std::throw_with_nested(host::AutomationError(number, text));
  }
}

int Subscribe(const Reference& self, const std::string& event, const py::function& handler) {
  const std::string where = self.object->Type().Name() + "." + event;
  return self.object->Subscribe(event, [handler, where](host::Object::Arguments arguments) {
    py::tuple values(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) values[i] = ToPython(arguments[i]);
    try {
      handler(*values);
    } catch (const py::error_already_set& raised) {
      RaiseFromHandler(raised, where);
    }
  });
}

/// Makes the Python exception that `error` came from, if any, the cause of `raised`.
void AddCause(const host::AutomationError& error, const py::object& raised) {
  try {
    std::rethrow_if_nested(error);
  } catch (const py::error_already_set& cause) {
    PyException_SetCause(raised.ptr(), cause.value().inc_ref().ptr());
  }
}

/// A Python exception class. It stays until the process ends.
PyObject* NewException(const char* name, const char* text, const py::object& bases) {
  PyObject* exception = PyErr_NewExceptionWithDoc(name, text, bases.ptr(), nullptr);
  if (exception == nullptr) throw py::error_already_set();
  return exception;
}

/// Makes the exception classes and has every host::AutomationError raised as one of them.
void AddErrors(py::module_& module) {
  static PyObject* const automationError =
      NewException("orvane.AutomationError",
                   "What the object model raises.\n\n"
                   "number: which error it is, such as 0x80040000 for what a component rejects.\n"
                   "message: what is wrong and what is allowed; also the text of the exception.\n"
                   "source: \"Orvane\", or \"Nodewright\" for the scene library.",
                   py::reinterpret_borrow<py::object>(PyExc_Exception));
  static PyObject* const unknownMember =
      NewException("orvane.UnknownMember",
                   "A name that is no member of its object: also an AttributeError, so that\n"
                   "hasattr() and getattr() with a default work.",
                   py::make_tuple(py::handle(automationError), py::handle(PyExc_AttributeError)));
  module.add_object("AutomationError", automationError);
  module.add_object("UnknownMember", unknownMember);
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(std::move(thrown));
    } catch (const host::AutomationError& error) {
      const bool isUnknown = error.Number() == host::ErrorNumber::UnknownMember;
      const py::handle type = isUnknown ? unknownMember : automationError;
      const py::object message = ToPython(error.Description());
      const py::object raised = type(message);
      raised.attr("number") = static_cast<std::uint32_t>(error.Number());
      raised.attr("message") = message;
      raised.attr("source") = error.Source();
      AddCause(error, raised);
      PyErr_SetObject(type.ptr(), raised.ptr());
    }
  });
}

/// The type tables, as they are.
void AddTables(py::module_& module) {
  py::class_<EnumInfo>(module, "EnumInfo")
      .def_property_readonly("name", &EnumInfo::Name)
      .def_property_readonly("enumerators", [](const EnumInfo& info) {
        std::vector<std::pair<std::string, std::int32_t>> enumerators;
        for (const auto& each : info.Enumerators()) enumerators.emplace_back(each.name, each.value);
        return enumerators;
      });
  py::class_<ValueType>(module, "ValueType")
      .def_readonly("name", &ValueType::name)
      .def_readonly("enumeration", &ValueType::enumeration)
      .def_readonly("components", &ValueType::components);
  py::class_<Parameter>(module, "Parameter")
      .def_readonly("name", &Parameter::name)
      .def_readonly("type", &Parameter::type)
      .def_property_readonly("range", [](const Parameter& p) { return p.range.Text(); })
      .def_readonly("is_out", &Parameter::isOut)
      .def_property_readonly("is_optional",
                             [](const Parameter& p) { return !p.fallback.IsEmpty(); })
      .def_property_readonly("fallback", [](const Parameter& p) { return ToPython(p.fallback); });
  py::class_<Help>(module, "Help")
      .def_readonly("text", &Help::text)
      .def_readonly("unit", &Help::unit)
      .def_property_readonly("range", [](const Help& help) { return help.range.Text(); });
  py::class_<Member>(module, "Member")
      .def_readonly("name", &Member::name)
      .def_readonly("is_method", &Member::isMethod)
      .def_readonly("type", &Member::type)
      .def_readonly("parameters", &Member::parameters)
      .def_readonly("help", &Member::help)
      .def_property_readonly("is_read", [](const Member& m) { return static_cast<bool>(m.get); })
      .def_property_readonly("is_let", [](const Member& m) { return static_cast<bool>(m.let); });
  py::class_<EventInfo>(module, "EventInfo")
      .def_readonly("name", &EventInfo::name)
      .def_readonly("parameters", &EventInfo::parameters)
      .def_readonly("text", &EventInfo::text);
  py::class_<TypeInfo>(module, "TypeInfo")
      .def_property_readonly("name", &TypeInfo::Name)
      .def_property_readonly("text", &TypeInfo::Text)
      .def_property_readonly("members", &TypeInfo::Members)
      .def_property_readonly("events", &TypeInfo::Events)
      .def_property_readonly("entry", [](const TypeInfo& type) {
        return type.Entry().name.empty() ? nullptr : &type.Entry();
      });

  module.def("types", [] {
    py::list types;
    for (const auto& object : ObjectModel()) {
      types.append(py::cast(&object->Type(), py::return_value_policy::reference));
    }
    return types;
  });
  // How the members of each class read at first.
  module.def("initial_texts", [] {
    py::dict texts;
    for (const auto& object : ObjectModel()) {
      py::dict members;
      for (const Member& member : object->Type().Members()) {
        members[py::str(member.name)] = ToPython(InitialText(*object, member));
      }
      texts[py::str(object->Type().Name())] = members;
    }
    return texts;
  });
}

void AddObject(py::module_& module) {
  py::class_<Reference>(module, "Object")
      .def(py::init<const Reference&>())
      .def("_get", Get)
      .def("_let", Let)
      .def("_subscribe", Subscribe)
      .def("_unsubscribe",
           [](const Reference& self, int subscription) { self.object->Unsubscribe(subscription); })
      .def("_id", [](const Reference& self,
                     const std::string& name) { return self.object->Type().IdOf(name); })
      .def("__eq__",
           [](const Reference& self, const py::object& other) {
             return py::isinstance<Reference>(other) &&
                    self.object == other.cast<const Reference&>().object;
           })
      .def("__hash__", [](const Reference& self) {
        return std::hash<std::shared_ptr<host::Object>>()(self.object);
      });
  module.def("create", [](const std::string& className) -> py::object {
    auto object = CreateObject(className);
    return object == nullptr ? py::none() : py::cast(Reference{std::move(object)});
  });
}

}  // namespace
}  // namespace orvane::python

PYBIND11_MODULE(_orvane, module) {
  using namespace orvane::python;
  AddErrors(module);
  AddTables(module);
  AddObject(module);
  AddCharts(module);
  module.attr("version") = ORVANE_VERSION;
  module.def("is_row", IsRow);
  module.def("class_of", ClassOf);
  module.def("make_classes_with", MakeClassesWith);
}
