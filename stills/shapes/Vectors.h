/// Arithmetic of vectors in space.
#pragma once

#include "stills/Still.h"

#include <cmath>

namespace orvane::stills {

inline Vec3 operator+(const Vec3& a, const Vec3& b) {
  return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
inline Vec3 operator-(const Vec3& a, const Vec3& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
inline Vec3 operator*(const Vec3& a, float s) { return {a[0] * s, a[1] * s, a[2] * s}; }
inline Vec3 operator*(const Vec3& a, const Vec3& b) {
  return {a[0] * b[0], a[1] * b[1], a[2] * b[2]};
}
inline float Dot(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
inline Vec3 Cross(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
inline float Length(const Vec3& a) { return std::sqrt(Dot(a, a)); }
/// Of length 1; a vector of length 0 stays what it is.
inline Vec3 Unit(const Vec3& a) {
  const float length = Length(a);
  return length > 0 ? a * (1 / length) : a;
}

/// By an angle in radians about an axis, as VRML97's SFRotation.
Matrix Rotation(const Vec3& axis, float angle);

}  // namespace orvane::stills
