#include "orvane/scene/SingleFields.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SceneError.h"
#include "orvane/scene/SceneWriter.h"

#include <array>
#include <cmath>

namespace orvane::scene {

using host::Describe;
using host::Single;
using host::TypeInfo;

const TypeInfo& SFBool::Type() const {
  static const TypeInfo type =
      Describe<SFBool>("A truth value.")
          .Property<bool>("Value", &SFBool::Value, &SFBool::Value, {"The value"})
          .IsValue();
  return type;
}

const TypeInfo& SFInt32::Type() const {
  static const TypeInfo type =
      Describe<SFInt32>("A whole number.")
          .Property<std::int32_t>("Value", &SFInt32::Value, &SFInt32::Value, {"The value"})
          .IsValue();
  return type;
}

const TypeInfo& SFFloat::Type() const {
  static const TypeInfo type =
      Describe<SFFloat>("A number.")
          .Property<float>("Value", &SFFloat::Value, &SFFloat::Value, {"The value"})
          .IsValue();
  return type;
}

const TypeInfo& SFTime::Type() const {
  static const TypeInfo type =
      Describe<SFTime>("A time.")
          .Property<double>("Value", &SFTime::Value, &SFTime::Value, {"The value", "seconds"})
          .IsValue();
  return type;
}

const TypeInfo& SFString::Type() const {
  static const TypeInfo type =
      Describe<SFString>("A text.")
          .Property<std::string>("Value", &SFString::Value, &SFString::Value, {"The value"})
          .IsValue();
  return type;
}

const TypeInfo& SFColor::Type() const {
  static const TypeInfo type =
      Describe<SFColor>("A colour.")
          .Color("Value", &SFColor::Value, &SFColor::Value, {"The colour"})
          .IsValue()
          .Property<float>("Red", &SFColor::Red, {"Red component", "", host::kUnit})
          .Property<float>("Green", &SFColor::Green, {"Green component", "", host::kUnit})
          .Property<float>("Blue", &SFColor::Blue, {"Blue component", "", host::kUnit});
  return type;
}

const TypeInfo& SFVec2f::Type() const {
  static const TypeInfo type =
      Describe<SFVec2f>("A point or size in the plane.")
          .Property<float>("X", &SFVec2f::X, &SFVec2f::X, {"First component"})
          .IsValue()
          .Property<float>("Y", &SFVec2f::Y, &SFVec2f::Y, {"Second component"})
          .IsValue();
  return type;
}

const TypeInfo& SFVec3f::Type() const {
  static const TypeInfo type =
      Describe<SFVec3f>("A point or vector in space.")
          .Property<float>("X", &SFVec3f::X, &SFVec3f::X, {"First component"})
          .IsValue()
          .Property<float>("Y", &SFVec3f::Y, &SFVec3f::Y, {"Second component"})
          .IsValue()
          .Property<float>("Z", &SFVec3f::Z, &SFVec3f::Z, {"Third component"})
          .IsValue();
  return type;
}

const TypeInfo& SFRotation::Type() const {
  static const TypeInfo type =
      Describe<SFRotation>("A rotation about an axis.")
          .Method("SetValue", &SFRotation::SetValue, {"x", "y", "z", "angle"},
                  {"Sets axis and angle", "radians"})
          .IsValue()
          .Method("SetFromAngles", &SFRotation::SetFromAngles, {"ax", "ay", "az"},
                  {"Turns about the fixed x, then y, then z axis", "radians"})
          .Property<float>("X", &SFRotation::X, {"First component of the axis"})
          .Property<float>("Y", &SFRotation::Y, {"Second component of the axis"})
          .Property<float>("Z", &SFRotation::Z, {"Third component of the axis"})
          .Property<float>("Angle", &SFRotation::Angle, {"Angle of the turn", "radians"});
  return type;
}

const TypeInfo& SFNode::Type() const {
  static const TypeInfo type =
      Describe<SFNode>("A node, or none.")
          .Property<std::shared_ptr<Node>>("Value", &SFNode::Value, &SFNode::Value, {"The node"})
          .IsValue();
  return type;
}

std::int32_t SFColor::Value() const {
  const auto byte = [](float component) {
    return static_cast<std::int32_t>(std::lround(component * 255.0F));
  };
  return byte(Red()) | byte(Green()) << 8 | byte(Blue()) << 16;
}

void SFColor::Value(std::int32_t rgb) {
  if (rgb < 0 || rgb > 0xFFFFFF) {
    Raise(host::ErrorNumber::OutOfRange,
          Where() + " takes a colour in the range [0..16777215], got " + std::to_string(rgb));
  }
  const auto component = [rgb](int shift) {
    return static_cast<float>(rgb >> shift & 0xFF) / 255.0F;
  };
  m_value = {component(0), component(8), component(16)};
}

void SFRotation::SetValue(float x, float y, float z, float angle) {
  m_value = {Checked(x), Checked(y), Checked(z), Checked(angle)};
}

void SFRotation::SetFromAngles(float ax, float ay, float az) {
  // The product qz * qy * qx of the three half-angle quaternions.
  const double cx = std::cos(Checked(ax) / 2.0), sx = std::sin(ax / 2.0);
  const double cy = std::cos(Checked(ay) / 2.0), sy = std::sin(ay / 2.0);
  const double cz = std::cos(Checked(az) / 2.0), sz = std::sin(az / 2.0);
  double w = cz * cy * cx + sz * sy * sx;
  std::array<double, 3> v = {cz * cy * sx - sz * sy * cx, cz * sy * cx + sz * cy * sx,
                             sz * cy * cx - cz * sy * sx};
  if (w < 0) {
    w = -w;
    for (double& component : v) component = -component;
  }
  const double length = std::hypot(v[0], v[1], v[2]);
  constexpr double kNoTurn = 1e-9;
  if (length < kNoTurn) {
    m_value = Rotation{};
    return;
  }
  m_value = {Single(v[0] / length), Single(v[1] / length), Single(v[2] / length),
             Single(2 * std::atan2(length, w))};
}

void SFBool::Write(SceneWriter& out) const { out.Put(m_value ? "TRUE" : "FALSE"); }

void SFInt32::Write(SceneWriter& out) const { out.PutNumber(m_value); }

void SFFloat::Write(SceneWriter& out) const { out.PutNumber(m_value); }

void SFTime::Write(SceneWriter& out) const { out.PutNumber(m_value); }

void SFString::Write(SceneWriter& out) const { out.PutString(m_value); }

void SFColor::Write(SceneWriter& out) const {
  out.PutNumbers({m_value.red, m_value.green, m_value.blue});
}

void SFVec2f::Write(SceneWriter& out) const { out.PutNumbers({m_value.x, m_value.y}); }

void SFVec3f::Write(SceneWriter& out) const { out.PutNumbers({m_value.x, m_value.y, m_value.z}); }

void SFRotation::Write(SceneWriter& out) const {
  out.PutNumbers({m_value.x, m_value.y, m_value.z, m_value.angle});
}

void SFNode::Write(SceneWriter& out) const {
  if (m_value == nullptr) {
    out.Put("NULL");
  } else {
    out.PutNode(*m_value);
  }
}

void SFNode::VisitNodes(const std::function<void(const Node&)>& visit) const {
  if (m_value != nullptr) visit(*m_value);
}

}  // namespace orvane::scene
