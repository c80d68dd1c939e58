// Frames and vectors.

#include "stills/shapes/Vectors.h"

namespace orvane::stills {

Vec3 Matrix::Vector(const Vec3& v) const { return x * v[0] + y * v[1] + z * v[2]; }

Vec3 Matrix::Point(const Vec3& p) const { return Vector(p) + origin; }

float Matrix::Determinant() const { return Dot(x, Cross(y, z)); }

Matrix Matrix::Inverse() const {
  const float by = 1 / Determinant();
  const Vec3 a = Cross(y, z) * by, b = Cross(z, x) * by, c = Cross(x, y) * by;
  Matrix inverse;
  inverse.x = {a[0], b[0], c[0]};
  inverse.y = {a[1], b[1], c[1]};
  inverse.z = {a[2], b[2], c[2]};
  inverse.origin = inverse.Vector(origin) * -1;
  return inverse;
}

Matrix operator*(const Matrix& outer, const Matrix& inner) {
  return {outer.Vector(inner.x), outer.Vector(inner.y), outer.Vector(inner.z),
          outer.Point(inner.origin)};
}

Matrix Rotation(const Vec3& axis, float angle) {
  if (Length(axis) == 0 || angle == 0) return {};
  const Vec3 a = Unit(axis);
  const float c = std::cos(angle), s = std::sin(angle);
  const auto turned = [&](const Vec3& v) {
    return v * c + Cross(a, v) * s + a * (Dot(a, v) * (1 - c));
  };
  return {turned({1, 0, 0}), turned({0, 1, 0}), turned({0, 0, 1}), {}};
}

}  // namespace orvane::stills
