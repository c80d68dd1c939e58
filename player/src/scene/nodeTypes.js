// The types of nodes that are played, as the standard declares them (ISO/IEC 14772-1, 6), and Spheres.

import { Parser } from '../vrml/Parser.js';

const INTERPOLATOR = `
  eventIn SFFloat set_fraction
  exposedField MFFloat key [ ]`;

const GROUP = `
  eventIn MFNode addChildren
  eventIn MFNode removeChildren
  exposedField MFNode children [ ]
  field SFVec3f bboxCenter 0 0 0
  field SFVec3f bboxSize -1 -1 -1`;

const FACES = `
  field SFBool ccw TRUE
  field SFFloat creaseAngle 0
  field SFBool solid TRUE`;

const LIGHT = `
  exposedField SFFloat ambientIntensity 0
  exposedField SFColor color 1 1 1
  exposedField SFFloat intensity 1
  exposedField SFBool on TRUE`;

const TEXTURE = `
  field SFBool repeatS TRUE
  field SFBool repeatT TRUE`;

const POINTING = `
  exposedField SFBool enabled TRUE
  eventOut SFBool isActive`;

const DRAG = `${POINTING}
  exposedField SFBool autoOffset TRUE
  eventOut SFVec3f trackPoint_changed`;

const BINDABLE = `
  eventIn SFBool set_bind
  eventOut SFBool isBound`;

const TYPES = {
  Anchor: `${GROUP}
    exposedField SFString description ""
    exposedField MFString parameter [ ]
    exposedField MFString url [ ]`,
  Appearance: `
    exposedField SFNode material NULL
    exposedField SFNode texture NULL
    exposedField SFNode textureTransform NULL`,
  Background: `${BINDABLE}
    exposedField MFFloat groundAngle [ ]
    exposedField MFColor groundColor [ ]
    exposedField MFString backUrl [ ]
    exposedField MFString bottomUrl [ ]
    exposedField MFString frontUrl [ ]
    exposedField MFString leftUrl [ ]
    exposedField MFString rightUrl [ ]
    exposedField MFString topUrl [ ]
    exposedField MFFloat skyAngle [ ]
    exposedField MFColor skyColor [ 0 0 0 ]`,
  Billboard: `${GROUP}
    exposedField SFVec3f axisOfRotation 0 1 0`,
  Box: 'field SFVec3f size 2 2 2',
  Color: 'exposedField MFColor color [ ]',
  ColorInterpolator: `${INTERPOLATOR}
    exposedField MFColor keyValue [ ]
    eventOut SFColor value_changed`,
  Cone: `
    field SFFloat bottomRadius 1
    field SFFloat height 2
    field SFBool side TRUE
    field SFBool bottom TRUE`,
  Coordinate: 'exposedField MFVec3f point [ ]',
  CoordinateInterpolator: `${INTERPOLATOR}
    exposedField MFVec3f keyValue [ ]
    eventOut MFVec3f value_changed`,
  Cylinder: `
    field SFBool bottom TRUE
    field SFFloat height 2
    field SFFloat radius 1
    field SFBool side TRUE
    field SFBool top TRUE`,
  CylinderSensor: `${DRAG}
    exposedField SFFloat diskAngle 0.262
    exposedField SFFloat maxAngle -1
    exposedField SFFloat minAngle 0
    exposedField SFFloat offset 0
    eventOut SFRotation rotation_changed`,
  DirectionalLight: `${LIGHT}
    exposedField SFVec3f direction 0 0 -1`,
  ElevationGrid: `${FACES}
    eventIn MFFloat set_height
    exposedField SFNode color NULL
    exposedField SFNode normal NULL
    exposedField SFNode texCoord NULL
    field MFFloat height [ ]
    field SFBool colorPerVertex TRUE
    field SFBool normalPerVertex TRUE
    field SFInt32 xDimension 0
    field SFFloat xSpacing 1
    field SFInt32 zDimension 0
    field SFFloat zSpacing 1`,
  FontStyle: `
    field MFString family "SERIF"
    field SFBool horizontal TRUE
    field MFString justify "BEGIN"
    field SFString language ""
    field SFBool leftToRight TRUE
    field SFFloat size 1
    field SFFloat spacing 1
    field SFString style "PLAIN"
    field SFBool topToBottom TRUE`,
  Group: GROUP,
  ImageTexture: `${TEXTURE}
    exposedField MFString url [ ]`,
  IndexedFaceSet: `${FACES}
    eventIn MFInt32 set_colorIndex
    eventIn MFInt32 set_coordIndex
    eventIn MFInt32 set_normalIndex
    eventIn MFInt32 set_texCoordIndex
    exposedField SFNode color NULL
    exposedField SFNode coord NULL
    exposedField SFNode normal NULL
    exposedField SFNode texCoord NULL
    field MFInt32 colorIndex [ ]
    field SFBool colorPerVertex TRUE
    field SFBool convex TRUE
    field MFInt32 coordIndex [ ]
    field MFInt32 normalIndex [ ]
    field SFBool normalPerVertex TRUE
    field MFInt32 texCoordIndex [ ]`,
  IndexedLineSet: `
    eventIn MFInt32 set_colorIndex
    eventIn MFInt32 set_coordIndex
    exposedField SFNode color NULL
    exposedField SFNode coord NULL
    field MFInt32 colorIndex [ ]
    field SFBool colorPerVertex TRUE
    field MFInt32 coordIndex [ ]`,
  Material: `
    exposedField SFFloat ambientIntensity 0.2
    exposedField SFColor diffuseColor 0.8 0.8 0.8
    exposedField SFColor emissiveColor 0 0 0
    exposedField SFFloat shininess 0.2
    exposedField SFColor specularColor 0 0 0
    exposedField SFFloat transparency 0`,
  NavigationInfo: `${BINDABLE}
    exposedField MFFloat avatarSize [ 0.25 1.6 0.75 ]
    exposedField SFBool headlight TRUE
    exposedField SFFloat speed 1
    exposedField MFString type [ "WALK" "ANY" ]
    exposedField SFFloat visibilityLimit 0`,
  Normal: 'exposedField MFVec3f vector [ ]',
  OrientationInterpolator: `${INTERPOLATOR}
    exposedField MFRotation keyValue [ ]
    eventOut SFRotation value_changed`,
  PixelTexture: `${TEXTURE}
    exposedField SFImage image 0 0 0`,
  PlaneSensor: `${DRAG}
    exposedField SFVec2f maxPosition -1 -1
    exposedField SFVec2f minPosition 0 0
    exposedField SFVec3f offset 0 0 0
    eventOut SFVec3f translation_changed`,
  PointLight: `${LIGHT}
    exposedField SFVec3f attenuation 1 0 0
    exposedField SFVec3f location 0 0 0
    exposedField SFFloat radius 100`,
  PointSet: `
    exposedField SFNode color NULL
    exposedField SFNode coord NULL`,
  PositionInterpolator: `${INTERPOLATOR}
    exposedField MFVec3f keyValue [ ]
    eventOut SFVec3f value_changed`,
  ProximitySensor: `
    exposedField SFVec3f center 0 0 0
    exposedField SFVec3f size 0 0 0
    exposedField SFBool enabled TRUE
    eventOut SFBool isActive
    eventOut SFVec3f position_changed
    eventOut SFRotation orientation_changed
    eventOut SFTime enterTime
    eventOut SFTime exitTime`,
  ScalarInterpolator: `${INTERPOLATOR}
    exposedField MFFloat keyValue [ ]
    eventOut SFFloat value_changed`,
  Script: `
    exposedField MFString url [ ]
    field SFBool directOutput FALSE
    field SFBool mustEvaluate FALSE`,
  Shape: `
    exposedField SFNode appearance NULL
    exposedField SFNode geometry NULL`,
  Sphere: 'field SFFloat radius 1',
  Spheres: `
    exposedField MFVec3f center [ ]
    exposedField MFColor color [ ]
    exposedField MFFloat transparency [ ]
    exposedField MFFloat radius [ ]`,
  SphereSensor: `${DRAG}
    exposedField SFRotation offset 0 1 0 0
    eventOut SFRotation rotation_changed`,
  Switch: `
    exposedField MFNode choice [ ]
    exposedField SFInt32 whichChoice -1`,
  Text: `
    exposedField MFString string [ ]
    exposedField SFNode fontStyle NULL
    exposedField MFFloat length [ ]
    exposedField SFFloat maxExtent 0`,
  TextureCoordinate: 'exposedField MFVec2f point [ ]',
  TextureTransform: `
    exposedField SFVec2f center 0 0
    exposedField SFFloat rotation 0
    exposedField SFVec2f scale 1 1
    exposedField SFVec2f translation 0 0`,
  TimeSensor: `
    exposedField SFTime cycleInterval 1
    exposedField SFBool enabled TRUE
    exposedField SFBool loop FALSE
    exposedField SFTime startTime 0
    exposedField SFTime stopTime 0
    eventOut SFTime cycleTime
    eventOut SFFloat fraction_changed
    eventOut SFBool isActive
    eventOut SFTime time`,
  TouchSensor: `${POINTING}
    eventOut SFVec3f hitNormal_changed
    eventOut SFVec3f hitPoint_changed
    eventOut SFVec2f hitTexCoord_changed
    eventOut SFBool isOver
    eventOut SFTime touchTime`,
  Transform: `${GROUP}
    exposedField SFVec3f center 0 0 0
    exposedField SFRotation rotation 0 0 1 0
    exposedField SFVec3f scale 1 1 1
    exposedField SFRotation scaleOrientation 0 0 1 0
    exposedField SFVec3f translation 0 0 0`,
  Viewpoint: `${BINDABLE}
    exposedField SFFloat fieldOfView 0.785398
    exposedField SFBool jump TRUE
    exposedField SFRotation orientation 0 0 1 0
    exposedField SFVec3f position 0 0 10
    field SFString description ""
    eventOut SFTime bindTime`,
  WorldInfo: `
    field MFString info [ ]
    field SFString title ""`,
};

/** name -> {name, fields}, fields: name -> {name, access, type, value}. */
export const nodeTypes = new Map(Object.entries(TYPES).map(([name, fields]) => (
  [name, { name, fields: new Parser(`[${fields}]`, new Map()).interface(true) }])));

// "set_coordIndex" and its like set the field without "set_": both names mean one Field.
for (const { fields } of nodeTypes.values()) {
  for (const [name, { access }] of fields) {
    const set = `set_${name}`;
    if (access === 'field' && fields.has(set)) fields.set(set, { ...fields.get(name), access: 'eventIn' });
  }
}
