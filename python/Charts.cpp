/// Charts from tables, for the Python half of the package: the kinds there are, and the one call
/// that makes them.

#include "Values.h"

#include "orvane/scene/ProtoFiles.h"
#include "orvane/tables/ChartKinds.h"

#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

namespace orvane::python {
namespace {

namespace py = pybind11;

using tables::ChartKind;
using tables::Option;
using tables::TableInput;

/// A table as text: what messages call it, and its CSV; without text, the file of that name.
using TableText = std::pair<std::string, std::optional<std::string>>;

TableInput InputOf(const TableText& table) {
  const auto& [name, text] = table;
  return text ? tables::TableText(name, *text) : tables::TableFile(name);
}

/// The chart, and what is to be said about it.
std::pair<py::object, std::vector<std::string>> MakeChart(
    const std::string& kindName, const TableText& table,
    const std::vector<std::pair<std::string, std::string>>& options,
    const std::optional<TableText>& surface) {
  const ChartKind& kind = tables::ChartKindOf(kindName);
  tables::ChartOptions chosen;
  for (const auto& [name, text] : options) tables::SetOption(kind, chosen, name, text);
  if (surface) chosen.surface = InputOf(*surface);
  const auto made = kind.make(InputOf(table), chosen);
  return {ToPython(host::Value(made.chart)), made.remarks};
}

}  // namespace

void AddCharts(py::module_& module) {
  // What is wrong with a table is wrong with a value, as what is wrong with an option.
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(std::move(thrown));
    } catch (const tables::FileError& error) {
      PyErr_SetString(PyExc_ValueError, error.what());
    }
  });
  py::class_<Option>(module, "Option")
      .def_readonly("name", &Option::name)
      .def_readonly("values", &Option::values)
      .def_readonly("help", &Option::help);
  py::class_<ChartKind>(module, "ChartKind")
      .def_readonly("name", &ChartKind::name)
      .def_readonly("graph", &ChartKind::graph)
      .def_readonly("help", &ChartKind::help)
      .def_readonly("table", &ChartKind::table)
      .def_readonly("options", &ChartKind::options);
  module.def("chart_kinds", &tables::ChartKinds, py::return_value_policy::reference);
  module.def("make_chart", &MakeChart);
  module.def("write_protos", [](const std::string& folder) { WriteProtos(folder); });
}

}  // namespace orvane::python
