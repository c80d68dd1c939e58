// A node of the scene: its type, its DEF name and its fields, which are made when they are first asked for.
//
// What the view may rely on
//
// Node
//   typeName     'Transform', ... ; of a PROTO instance the PROTO's name
//   name         its DEF name, or ''
//   get(f)       the value of field f (see Field.js for what values are); makes no Field
//   field(f)     the Field f, to listen to: node.field('translation').listen(callback). 'set_f' and
//                'f_changed' name the same Field as 'f'. null where the type has no such field
//   body         of a PROTO instance: array of the nodes of its body, of which the first is drawn in the
//                instance's place; null of any other node. Always walk through: drawn(node) below
//
//   A field of a PROTO instance that IS a field in its body is one and the same Field object, so the view
//   listens in the body alone. A Shape, Coordinate, Appearance, ... that is USEd is the same Node object.
//   Grouping nodes: 'children' changes (also by addChildren and removeChildren); Switch: 'choice' and
//   'whichChoice'. Nodes come without a notice and go without one: what hangs in 'children' is there.
//
// Scene (Scene.js)
//   roots                   array of the world's root nodes; a Field, rootsField, tells of changes
//   advance(time)           time in seconds; runs TimeSensors and all events that wait. True if anything
//                           changed since the last call, that is if a frame is worth drawing
//   isAnimated              true while a TimeSensor runs, so that advance() is wanted at each frame
//   bound(type)             the bound 'Viewpoint', 'Background', 'NavigationInfo' or 'Fog', or null
//   bindables(type)         all of that type in the order of the world; bind(node) binds one
//   listen(event, callback) events: 'bound' {type, node}, 'link' {urls, parameters}, 'description' text,
//                           'changed' (something waits for advance(), as after set() or pointer())
//   pointer(event)          tells what the pointer does; see below
//   proximity(node, place)  tells where the viewer is in the frame of a ProximitySensor: place is
//                           {position: {x, y, z}, orientation: {x, y, z, angle}} in the local frame of the
//                           sensor (that of its parent's children), or null where the sensor is not in what
//                           is drawn. To be called for each sensor whenever the camera or the sensor moved,
//                           before advance(). A sensor whose size has a 0 wants no calls
//
// pointer({type, ray, hit}), called for every pointer event and, while the pointer rests, after each frame
// that changed something; returns true while a sensor is being dragged (the camera should hold still)
//   type   'move', 'down', 'up' (main button) or 'leave' (the pointer left the canvas)
//   ray    {origin: {x, y, z}, direction: {x, y, z}} in world coordinates
//   hit    null, or of the first shape along the ray (transparent ones too; back faces of solid geometry not)
//            point   {x, y, z} in world coordinates
//            normal  {x, y, z} in world coordinates, of length 1
//            texCoord {x, y}, where known
//            path    array of {node, matrix} for every grouping node (Transform, Group, Anchor, Billboard,
//                    Switch, Collision, LOD) from the root down to the shape, those in PROTO bodies too and
//                    no instances; matrix: 16 numbers, column by column (three's Matrix4.elements), from
//                    the frame of the node's children to the world's
//   pointer() finds the sensors itself, among the children of the lowest node in path that has any, and
//   Anchors. scene.isSensitive(path) says whether there is one, for the pointer's shape.
//
// View (view/View.js), as player.js uses it
//   new View(element)       makes its canvas in the element; runs the frames itself, and only while needed
//   show(scene)             shows a scene from its bound Viewpoint, instead of the one before; null: none
//   listen(event, callback) events: 'frame' {time, changed} after a frame was drawn, 'lost', 'restored'
//   viewpoint(node, {jump}) goes to a Viewpoint (also when scene.listen('bound') tells of one)
//   parallel                true or false: the projection
//   still({width, height})  a promise of a Blob, PNG
//   idle()                  a promise: textures are there and the picture is final
//   dispose()
//
// Beyond VRML97 there is one type of geometry:
//   Spheres { exposedField MFVec3f center [], MFColor color [], MFFloat transparency [], MFFloat radius [] }
//   One ball for each center; entry i of the other lists is that of ball i. Where a list is too short:
//   white, 0 and 0.1; radius 0 or less draws nothing. Its Shape's Material gives the specular colour and
//   shininess. center alone changes in animations, at every frame: 5,000 balls must be quick. The body of
//   qm4_SphereCollection is a Shape with it.

import { declaredField } from '../vrml/Parser.js';
import { Field } from './Field.js';

export class Node {
  /** @param {{name: string, fields: Map<string, object>, inputs?: object}} type
   *    inputs: what the events of a type do, name -> function (node, value)
   *  @param {object} scene  the Scene that the node belongs to */
  constructor(type, name, scene) {
    this.type = type;
    this.name = name;
    this.scene = scene;
    this.fields = {};
    this.body = null;
    this.names = null; // of a PROTO instance: the nodes of its body that have a DEF name
  }

  get typeName() { return this.type.name; }

  field(fieldName) {
    const made = this.fields[fieldName];
    if (made !== undefined) return made;
    const declared = declaredField(this.type, fieldName);
    if (declared === undefined) return null;
    return this.fields[declared.name] ?? this.setField(declared, declared.value);
  }

  setField(declared, value) {
    const field = new Field(declared.type, declared.access, value);
    const input = this.type.inputs?.[declared.name];
    if (input !== undefined) field.listen((event) => input(this, event));
    this.fields[declared.name] = field;
    return field;
  }

  get(fieldName) {
    const made = this.fields[fieldName];
    if (made !== undefined) return made.value;
    const declared = declaredField(this.type, fieldName);
    if (declared === undefined) return undefined;
    const plain = this.fields[declared.name];
    return plain !== undefined ? plain.value : declared.value;
  }
}

/** The node that is drawn in a node's place: a PROTO instance's first node, or itself; null for nothing. */
export function drawn(node) {
  while (node !== null && node.body !== null) node = node.body[0] ?? null;
  return node;
}
