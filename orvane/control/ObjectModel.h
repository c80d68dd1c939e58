/// The public object model as a whole: every class, and charts by name.
#pragma once

#include "orvane/automation/Object.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A fresh object of each public class: the control and its factory, charts, what they are made of,
/// nodes and fields.
ORVANE_API std::vector<std::shared_ptr<host::Object>> ObjectModel();

/// What `member` of a fresh object reads as, for people: "8", "VRML_SERIF", "#ffffff", "0 0 1".
/// Empty for methods, for objects other than fields, and for lists.
ORVANE_API std::string InitialText(host::Object& fresh, const host::Member& member);

/// A new chart of class `className`, such as "AreaGraph", in any case; nullptr when there is none.
ORVANE_API std::shared_ptr<host::Object> CreateChart(std::string_view className);

/// A new object of a class that hosts make themselves, by name in any case: the control, a chart, a
/// scaler, a node or a field. nullptr for what only these make, and where there is no such class.
ORVANE_API std::shared_ptr<host::Object> CreateObject(std::string_view className);

}  // namespace orvane
