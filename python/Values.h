/// How Python values become late-bound values and back.
#pragma once

#include "orvane/automation/Coercion.h"
#include "orvane/automation/Object.h"

#include <memory>

#include <pybind11/pybind11.h>

namespace orvane::python {

/// What a Python object of the model holds on to.
struct Reference {
  std::shared_ptr<host::Object> object;
};

/// Whether `value` is many values in an order: a list, a tuple, an array or anything else that is
/// iterated over, but no text, bytes, mapping or set.
bool IsRow(pybind11::handle value);

/// A Python value on its way to `place`. Numbers of any package go in by what they say
/// of themselves, None is no object, a path is its text.
///
/// A row becomes a row of numbers: arrays of numbers in one go, other rows number by number. In a
/// list whose entries have k > 1 components it is n rows of k numbers, or n * k numbers. Raises
/// TypeMismatch for what has no meaning to the model.
host::Value ToValue(pybind11::handle value, const host::Place& place);

/// A value of the model as Python has it: a row as a tuple of floats, an object as one of the class
/// that `ClassOf` gives.
pybind11::object ToPython(const host::Value& value);

/// The kinds of chart that tables become, and the call that makes them.
void AddCharts(pybind11::module_& module);

/// The Python class of a class of the model: the one that `makeClass` made of its table, once.
pybind11::object ClassOf(const host::TypeInfo& type);
void MakeClassesWith(pybind11::object makeClass);

}  // namespace orvane::python
