/// Late-bound calls, as a script might make them, on a chart of each kind: what is rejected changes
/// nothing, and a chart that can be written is written alike twice.
#include "Fuzz.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Object.h"
#include "orvane/control/ObjectModel.h"

#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace orvane;
using host::Value;

/// The bytes of an input, one after the other, and zeros behind them.
class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : m_at(data), m_end(data + size) {}
  bool AreLeft() const { return m_at != m_end; }
  unsigned Next() { return AreLeft() ? *m_at++ : 0U; }

 private:
  const std::uint8_t* m_at;
  const std::uint8_t* m_end;
};

Value NextValue(Bytes& bytes) {
  static const Value kValues[] = {true,
                                  false,
                                  -1,
                                  0,
                                  1,
                                  2,
                                  3,
                                  8,
                                  32767,
                                  0xFFFFFF,
                                  0x1000000,
                                  0.5,
                                  -2.25,
                                  1e-45,
                                  3e38,
                                  1e39,
                                  std::numeric_limits<double>::quiet_NaN(),
                                  "",
                                  "plain",
                                  "\"quoted\" \\",
                                  "bad \xFF",
                                  "INNER",
                                  Value::Numbers{},
                                  Value::Numbers{1, 2, 3},
                                  std::shared_ptr<host::Object>()};
  return kValues[bytes.Next() % std::size(kValues)];
}

/// The world of a chart; none where it cannot be written.
std::optional<std::string> Written(host::Object& chart) {
  try {
    return *chart.Call("ExportToString", {true, true}).If<std::string>();
  } catch (const host::AutomationError&) {
    return std::nullopt;
  }
}

/// A value axis keeps what it was given when it cannot make labels of it.
bool KeepsWhatIsRejected(const host::Member& member) {
  return member.name == "Min" || member.name == "Max";
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kKinds[] = {"AreaGraph",    "ColumnGraph",  "RibbonGraph",
                                    "PieGraph",     "ScatterGraph", "SurfaceGraph",
                                    "DensityGraph", "SCComboGraph", "RCComboGraph"};
  constexpr std::size_t kMostParts = 64;
  Bytes bytes(data, size);
  const auto chart = CreateChart(kKinds[bytes.Next() % std::size(kKinds)]);
  std::vector<std::shared_ptr<host::Object>> parts = {chart};
  auto world = Written(*chart);
  while (bytes.AreLeft()) {
    const auto part = parts[bytes.Next() % parts.size()];
    const auto& members = part->Type().Members();
    const auto id = static_cast<int>(bytes.Next() % members.size());
    const auto& member = members[static_cast<std::size_t>(id)];
    if (member.name == "ExportToFile") continue;
    std::vector<Value> arguments;
    for (const auto& parameter : member.parameters) {
      if (!parameter.isOut) arguments.push_back(NextValue(bytes));
    }
    if (!arguments.empty() && bytes.Next() % 4 == 0) {
      arguments.back() = parts[bytes.Next() % parts.size()];
    }
    try {
      if (member.let) {
        arguments.push_back(NextValue(bytes));
        part->Let(id, arguments);
      } else {
        const Value result = part->Get(id, arguments);
        const auto* object = result.If<std::shared_ptr<host::Object>>();
        if (object != nullptr && *object != nullptr && parts.size() < kMostParts) {
          parts.push_back(*object);
        }
      }
      world = Written(*chart);
    } catch (const host::AutomationError&) {
      const auto after = Written(*chart);
      fuzz::Require(after == world || KeepsWhatIsRejected(member),
                    "a rejected call changes nothing");
      world = after;
    }
    fuzz::Require(Written(*chart) == world, "a chart is written alike twice");
    if (world && world->size() > 1 << 20) break;
  }
  return 0;
}
