/// The single-valued field types of VRML97: SFBool, SFInt32, SFFloat, SFTime, SFString, SFColor,
/// SFVec2f, SFVec3f, SFRotation and SFNode (ISO/IEC 14772-1, clause 5).
#pragma once

#include "orvane/scene/Field.h"
#include "orvane/scene/Geometry.h"
#include "orvane/scene/Node.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace orvane::scene {

/// A value beside the default that it started from.
template <class F, class T>
class ORVANE_API SingleField : public Field {
 public:
  bool IsDefault() const override { return m_value == m_default; }

 protected:
  SingleField() = default;
  SingleField(Node& owner, const char* name, T value, AccessKind access)
      : Field(owner, name, F::kClassName, access), m_value(value), m_default(std::move(value)) {}

  T m_value{};

 private:
  T m_default{};
};

class ORVANE_API SFBool final : public SingleField<SFBool, bool> {
 public:
  static constexpr const char* kClassName = "SFBool";
  const host::TypeInfo& Type() const override;

  SFBool() = default;
  SFBool(Node& owner, const char* name, bool value, AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}

  bool Value() const { return m_value; }
  void Value(bool value) { m_value = value; }

  void Write(SceneWriter& out) const override;
};

class ORVANE_API SFInt32 final : public SingleField<SFInt32, std::int32_t> {
 public:
  static constexpr const char* kClassName = "SFInt32";
  const host::TypeInfo& Type() const override;

  SFInt32() = default;
  SFInt32(Node& owner, const char* name, std::int32_t value,
          AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}

  std::int32_t Value() const { return m_value; }
  void Value(std::int32_t value) { m_value = value; }

  void Write(SceneWriter& out) const override;
};

class ORVANE_API SFFloat final : public SingleField<SFFloat, float> {
 public:
  static constexpr const char* kClassName = "SFFloat";
  const host::TypeInfo& Type() const override;

  SFFloat() = default;
  SFFloat(Node& owner, const char* name, float value, AccessKind access = AccessKind::ExposedField,
          Interval range = kAnyNumber)
      : SingleField(owner, name, value, access), m_range(range) {}
  SFFloat(Node& owner, const char* name, float value, Interval range)
      : SFFloat(owner, name, value, AccessKind::ExposedField, range) {}

  float Value() const { return m_value; }
  /// A finite number in the node's range; NotFinite or OutOfRange otherwise.
  void Value(float value) { m_value = Checked(value, m_range); }

  Interval Range() const override { return m_range; }
  void Write(SceneWriter& out) const override;

 private:
  Interval m_range;
};

/// Seconds; points in time count from 1 January 1970, 00:00 GMT.
class ORVANE_API SFTime final : public SingleField<SFTime, double> {
 public:
  static constexpr const char* kClassName = "SFTime";
  const host::TypeInfo& Type() const override;

  SFTime() = default;
  SFTime(Node& owner, const char* name, double value, Interval range = kAnyNumber)
      : SingleField(owner, name, value, AccessKind::ExposedField), m_range(range) {}

  double Value() const { return m_value; }
  /// A finite number in the node's range; NotFinite or OutOfRange otherwise.
  void Value(double value) { m_value = Checked(value, m_range); }

  Interval Range() const override { return m_range; }
  void Write(SceneWriter& out) const override;

 private:
  Interval m_range;
};

class ORVANE_API SFString final : public SingleField<SFString, std::string> {
 public:
  static constexpr const char* kClassName = "SFString";
  const host::TypeInfo& Type() const override;

  SFString() = default;
  SFString(Node& owner, const char* name, std::string value,
           AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, std::move(value), access) {}

  std::string Value() const { return m_value; }
  void Value(const std::string& value) { m_value = value; }

  void Write(SceneWriter& out) const override;
};

/// A colour. Hosts use 32-bit RGB integers: red in bits 0-7, green in 8-15, blue in 16-23. A byte v
/// is v / 255 in the field and comes back by rounding, so every colour survives the round trip.
class ORVANE_API SFColor final : public SingleField<SFColor, Color> {
 public:
  static constexpr const char* kClassName = "SFColor";
  const host::TypeInfo& Type() const override;

  SFColor() = default;
  /// A free-standing field that holds `value`.
  explicit SFColor(Color value) { m_value = value; }
  SFColor(Node& owner, const char* name, Color value, AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}

  std::int32_t Value() const;
  /// 0..0xFFFFFF; OutOfRange otherwise.
  void Value(std::int32_t rgb);
  float Red() const { return m_value.red; }
  float Green() const { return m_value.green; }
  float Blue() const { return m_value.blue; }

  void Write(SceneWriter& out) const override;
};

class ORVANE_API SFVec2f final : public SingleField<SFVec2f, Vec2f> {
 public:
  static constexpr const char* kClassName = "SFVec2f";
  const host::TypeInfo& Type() const override;

  SFVec2f() = default;
  SFVec2f(Node& owner, const char* name, Vec2f value, AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}

  float X() const { return m_value.x; }
  float Y() const { return m_value.y; }
  void X(float x) { m_value.x = Checked(x); }
  void Y(float y) { m_value.y = Checked(y); }

  void Write(SceneWriter& out) const override;
};

class ORVANE_API SFVec3f final : public SingleField<SFVec3f, Vec3f> {
 public:
  static constexpr const char* kClassName = "SFVec3f";
  const host::TypeInfo& Type() const override;

  SFVec3f() = default;
  SFVec3f(Node& owner, const char* name, Vec3f value, AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}
  /// With a range that each component keeps to.
  SFVec3f(Node& owner, const char* name, Vec3f value, Interval range)
      : SingleField(owner, name, value, AccessKind::ExposedField), m_range(range) {}

  float X() const { return m_value.x; }
  float Y() const { return m_value.y; }
  float Z() const { return m_value.z; }
  void X(float x) { m_value.x = Checked(x, m_range); }
  void Y(float y) { m_value.y = Checked(y, m_range); }
  void Z(float z) { m_value.z = Checked(z, m_range); }

  Interval Range() const override { return m_range; }
  void Write(SceneWriter& out) const override;

 private:
  Interval m_range;
};

class ORVANE_API SFRotation final : public SingleField<SFRotation, Rotation> {
 public:
  static constexpr const char* kClassName = "SFRotation";
  const host::TypeInfo& Type() const override;

  SFRotation() = default;
  SFRotation(Node& owner, const char* name, Rotation value,
             AccessKind access = AccessKind::ExposedField)
      : SingleField(owner, name, value, access) {}

  float X() const { return m_value.x; }
  float Y() const { return m_value.y; }
  float Z() const { return m_value.z; }
  float Angle() const { return m_value.angle; }
  /// Axis and angle in radians, all finite.
  void SetValue(float x, float y, float z, float angle);
  /// The rotation by `ax`, `ay` and `az` radians about the fixed x, then y, then z axis.
  void SetFromAngles(float ax, float ay, float az);

  void Write(SceneWriter& out) const override;
};

class ORVANE_API SFNode final : public SingleField<SFNode, std::shared_ptr<Node>> {
 public:
  static constexpr const char* kClassName = "SFNode";
  const host::TypeInfo& Type() const override;

  SFNode() = default;
  SFNode(Node& owner, const char* name, NodeRole role)
      : SingleField(owner, name, nullptr, AccessKind::ExposedField), m_role(role) {}
  ~SFNode() override { LetGo(m_value); }

  std::shared_ptr<Node> Value() const { return m_value; }
  /// Replaces the previous node; nullptr is VRML97's NULL. TypeMismatch for a node of a type that
  /// VRML97 does not let the field hold.
  void Value(std::shared_ptr<Node> node) {
    Checked(node, m_role);
    m_value = std::move(node);
  }

  void Write(SceneWriter& out) const override;
  void VisitNodes(const std::function<void(const Node&)>& visit) const override;

 private:
  NodeRole m_role = NodeRole::Any;
};

}  // namespace orvane::scene
