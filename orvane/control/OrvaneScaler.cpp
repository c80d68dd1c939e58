#include "orvane/control/OrvaneScaler.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/Describe.h"

namespace orvane {

using host::Quotient;
using host::Single;

const host::TypeInfo& OrvaneScaler::Type() const {
  using Scaler = OrvaneScaler;
  static const host::TypeInfo type =
      host::Describe<Scaler>("A straight-line mapping from a data range into a chart's range.")
          .Property<float>("ToMin", &Scaler::ToMin, &Scaler::ToMin, {"Image of FromMin"})
          .Property<float>("ToMax", &Scaler::ToMax, &Scaler::ToMax, {"Image of FromMax"})
          .Property<float>("FromMin", &Scaler::FromMin, &Scaler::FromMin,
                           {"Low end of the input range"})
          .Property<float>("FromMax", &Scaler::FromMax, &Scaler::FromMax,
                           {"High end of the input range"})
          .Method("ScaledValue", &Scaler::ScaledValue, {"value"}, {"The image of a value"});
  return type;
}

float OrvaneScaler::ScaledValue(float value) const {
  const double numerator = static_cast<double>(value) - m_fromMin;
  const float t = Single(Quotient(numerator, static_cast<double>(m_fromMax) - m_fromMin));
  const float d = Single((static_cast<double>(m_toMax) - m_toMin) * t);
  return Single(static_cast<double>(m_toMin) + d);
}

}  // namespace orvane
