/// A VRML97 world as a picture or a model, without a browser: the library's interface.
#pragma once

#include "stills/Error.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::stills {

using Vec3 = std::array<float, 3>;  ///< metres along x, y and z, or red, green and blue from 0 to 1

/// Takes a point from one frame to another: p' = (x, y, z columns) p + origin.
struct Matrix {
  Vec3 x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, origin{0, 0, 0};

  Vec3 Point(const Vec3& p) const;
  Vec3 Vector(const Vec3& v) const;
  float Determinant() const;
  Matrix Inverse() const;
};

/// First `inner`, then `outer`.
Matrix operator*(const Matrix& outer, const Matrix& inner);

/// Triangles or lines in a frame of their own. Parts may share a mesh.
struct Mesh {
  std::vector<Vec3> points;
  std::vector<Vec3> normals;  ///< one a point, of length 1; none for lines
  std::vector<Vec3> colors;   ///< one a point, or none: those of the part's look
  std::vector<std::uint32_t>
      indices;          ///< three a triangle, counter-clockwise from outside; two a line
  bool isSolid = true;  ///< the back of its faces is not drawn
};

/// How a part takes light, as VRML97's Material.
struct Look {
  Vec3 diffuse{0.8F, 0.8F, 0.8F}, emissive{}, specular{};
  float ambientIntensity = 0.2F, shininess = 0.2F, transparency = 0;
  bool isLit = true;  ///< FALSE: drawn in the emissive colour alone
};

enum class PartKind : std::uint8_t { Faces, Lines, Text };

/// One shape that can be seen.
struct Part {
  PartKind kind = PartKind::Faces;
  std::string name;  ///< of the series, slice, surface or axis as the chart's reader knows it
  std::shared_ptr<const Mesh> mesh;
  Matrix place;  ///< from the mesh's frame to the world
  Look look;
  std::vector<float> values;       ///< of a series, in scene units; empty for other parts
  std::vector<std::string> texts;  ///< that belong to the values, as its popups show them
};

struct Light {
  enum class Kind : std::uint8_t { Point, Directional } kind = Kind::Point;
  Vec3 color{1, 1, 1};
  float intensity = 1, ambientIntensity = 0;
  Vec3 location{}, direction{0, 0, -1};  ///< in the world
  Vec3 attenuation{1, 0, 0};
  float radius = 100;
};

/// The sky, and the ground where it has colours, by the angle from the zenith or the nadir in
/// radians.
struct Background {
  std::vector<float> skyAngles, groundAngles;
  std::vector<Vec3> skyColors, groundColors;  ///< one more than angles; none: nothing is drawn
};

struct View {
  std::string name;
  Matrix place;  ///< from the viewer's frame, who looks along -z with y up, to the world
  float fieldOfView = 0.785398F;  ///< of the shorter side of a picture, in radians
};

/// What can be seen of a world from one place: billboards face it, what is hidden is left out.
struct Still {
  std::vector<Part> parts;
  std::vector<Light> lights;
  Background background;
  View view;
};

struct Options {
  Limits limits;
  /// Text of a PROTO file that is not found beside the world, by its name without folders, or null.
  std::function<const std::string*(std::string_view name)> library;
};

/// A world that has been read and whose scripts have run. Raises Error, which names file and line,
/// for a world that is broken or takes more than its limits.
class World {
 public:
  /// Reads a file and the PROTO files that it names, as far as these are files too.
  static World Read(const std::string& path, const Options& options = {});

  /// The same of a text; `path` is where the file would be, beside its PROTO files.
  static World Parse(std::string_view text, const std::string& path, const Options& options = {});

  World(World&&) noexcept;
  World& operator=(World&&) noexcept;
  ~World();

  /// Descriptions of the viewpoints, in order; a viewpoint without one is "".
  std::vector<std::string> Views() const;

  /// What is seen from the viewpoint of that name in any case of letters, or from the first for "".
  /// A world without viewpoints is seen from in front. Raises Error for a name that there is not.
  Still From(std::string_view view);

  /// Sets the clock of all animations that run in loops: 0 at the start of a turn, 1 at its end.
  void Turn(float fraction);
  /// Length of a turn in seconds, 0 where nothing moves by itself; and the fractions between which
  /// everything moves evenly.
  double TurnSeconds() const;
  std::vector<float> TurnKeys() const;

 private:
  World();
  struct Parts;
  std::unique_ptr<Parts> m_parts;
};

}  // namespace orvane::stills
