/// Shape, its appearance and its geometries (ISO/IEC 14772-1, 4.6.3).
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

namespace orvane::scene {

/// A geometry with its appearance.
///
///     Shape {
///       exposedField SFNode appearance NULL
///       exposedField SFNode geometry   NULL
///     }
class ORVANE_API Shape final : public NodeOf<Shape> {
 public:
  static constexpr const char* kClassName = "Shape";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFNode geometry{*this, "geometry", NodeRole::Geometry};
};

///     Appearance {
///       exposedField SFNode material         NULL
///       exposedField SFNode texture          NULL
///       exposedField SFNode textureTransform NULL
///     }
class ORVANE_API Appearance final : public NodeOf<Appearance> {
 public:
  static constexpr const char* kClassName = "Appearance";
  static constexpr NodeRole kRole = NodeRole::Appearance;

  SFNode material{*this, "material", NodeRole::Material};
  SFNode texture{*this, "texture", NodeRole::Texture};
  SFNode textureTransform{*this, "textureTransform", NodeRole::TextureTransform};
};

///     Material {
///       exposedField SFFloat ambientIntensity 0.2           # [0,1]
///       exposedField SFColor diffuseColor     0.8 0.8 0.8   # [0,1]
///       exposedField SFColor emissiveColor    0 0 0         # [0,1]
///       exposedField SFFloat shininess        0.2           # [0,1]
///       exposedField SFColor specularColor    0 0 0         # [0,1]
///       exposedField SFFloat transparency     0             # [0,1]
///     }
class ORVANE_API Material final : public NodeOf<Material> {
 public:
  static constexpr const char* kClassName = "Material";
  static constexpr NodeRole kRole = NodeRole::Material;

  SFFloat ambientIntensity{*this, "ambientIntensity", 0.2F, kUnit};
  SFColor diffuseColor{*this, "diffuseColor", {0.8F, 0.8F, 0.8F}};
  SFColor emissiveColor{*this, "emissiveColor", {0, 0, 0}};
  SFFloat shininess{*this, "shininess", 0.2F, kUnit};
  SFColor specularColor{*this, "specularColor", {0, 0, 0}};
  SFFloat transparency{*this, "transparency", 0, kUnit};
};

/// Flat text, one line an entry of `string`.
///
///     Text {
///       exposedField MFString string    []
///       exposedField SFNode   fontStyle NULL
///       exposedField MFFloat  length    []    # [0,inf)
///       exposedField SFFloat  maxExtent 0     # [0,inf)
///     }
class ORVANE_API Text final : public NodeOf<Text> {
 public:
  static constexpr const char* kClassName = "Text";
  static constexpr NodeRole kRole = NodeRole::Geometry;

  MFString string{*this, "string"};
  SFNode fontStyle{*this, "fontStyle", NodeRole::FontStyle};
  MFFloat length{*this, "length", {}, kNotNegative};
  SFFloat maxExtent{*this, "maxExtent", 0, kNotNegative};
};

///     FontStyle {
///       field MFString family      "SERIF"
///       field SFBool   horizontal  TRUE
///       field MFString justify     "BEGIN"
///       field SFString language    ""
///       field SFBool   leftToRight TRUE
///       field SFFloat  size        1.0       # (0,inf)
///       field SFFloat  spacing     1.0       # [0,inf)
///       field SFString style       "PLAIN"
///       field SFBool   topToBottom TRUE
///     }
class ORVANE_API FontStyle final : public NodeOf<FontStyle> {
 public:
  static constexpr const char* kClassName = "FontStyle";
  static constexpr NodeRole kRole = NodeRole::FontStyle;

  MFString family{*this, "family", {"SERIF"}, AccessKind::Field};
  SFBool horizontal{*this, "horizontal", true, AccessKind::Field};
  MFString justify{*this, "justify", {"BEGIN"}, AccessKind::Field};
  SFString language{*this, "language", "", AccessKind::Field};
  SFBool leftToRight{*this, "leftToRight", true, AccessKind::Field};
  SFFloat size{*this, "size", 1, AccessKind::Field, kPositive};
  SFFloat spacing{*this, "spacing", 1, AccessKind::Field, kNotNegative};
  SFString style{*this, "style", "PLAIN", AccessKind::Field};
  SFBool topToBottom{*this, "topToBottom", true, AccessKind::Field};
};

/// A cone about the y axis, centred on the origin.
///
///     Cone {
///       field SFFloat bottomRadius 1     # (0,inf)
///       field SFFloat height       2     # (0,inf)
///       field SFBool  side         TRUE
///       field SFBool  bottom       TRUE
///     }
class ORVANE_API Cone final : public NodeOf<Cone> {
 public:
  static constexpr const char* kClassName = "Cone";
  static constexpr NodeRole kRole = NodeRole::Geometry;

  SFFloat bottomRadius{*this, "bottomRadius", 1, AccessKind::Field, kPositive};
  SFFloat height{*this, "height", 2, AccessKind::Field, kPositive};
  SFBool side{*this, "side", true, AccessKind::Field};
  SFBool bottom{*this, "bottom", true, AccessKind::Field};
};

/// A cylinder about the y axis, centred on the origin.
///
///     Cylinder {
///       field SFBool  bottom TRUE
///       field SFFloat height 2      # (0,inf)
///       field SFFloat radius 1      # (0,inf)
///       field SFBool  side   TRUE
///       field SFBool  top    TRUE
///     }
class ORVANE_API Cylinder final : public NodeOf<Cylinder> {
 public:
  static constexpr const char* kClassName = "Cylinder";
  static constexpr NodeRole kRole = NodeRole::Geometry;

  SFBool bottom{*this, "bottom", true, AccessKind::Field};
  SFFloat height{*this, "height", 2, AccessKind::Field, kPositive};
  SFFloat radius{*this, "radius", 1, AccessKind::Field, kPositive};
  SFBool side{*this, "side", true, AccessKind::Field};
  SFBool top{*this, "top", true, AccessKind::Field};
};

}  // namespace orvane::scene
