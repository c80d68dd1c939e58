// Grouping nodes as objects of three's, with everything below them; and what a scene has besides shapes:
// lights, viewpoints and the like are told to the view with the frame they stand in.

import { Matrix4, Object3D, Quaternion, Vector3 } from 'three';
import { drawn } from '../scene/Node.js';
import { Lights } from './Lights.js';
import { Shape } from './Shape.js';

const GROUPS = {
  Group: 'children', Transform: 'children', Anchor: 'children', Billboard: 'children', Collision: 'children',
  Switch: 'choice', LOD: 'level',
};
const LIGHTS = new Set(['DirectionalLight', 'PointLight', 'SpotLight']);
const PLACED = new Set(['Viewpoint', 'ProximitySensor']);

const turn = new Quaternion(), axis = new Vector3(), part = new Matrix4();

export function matrixOf(node, target) {
  const t = node.get('translation'), c = node.get('center'), s = node.get('scale');
  const r = node.get('rotation'), o = node.get('scaleOrientation');
  target.makeTranslation(t.x + c.x, t.y + c.y, t.z + c.z);
  if (r.angle !== 0) target.multiply(part.makeRotationFromQuaternion(quaternionOf(r, turn)));
  if (s.x !== 1 || s.y !== 1 || s.z !== 1) {
    const isTurned = o.angle !== 0;
    if (isTurned) target.multiply(part.makeRotationFromQuaternion(quaternionOf(o, turn)));
    target.multiply(part.makeScale(s.x, s.y, s.z));
    if (isTurned) target.multiply(part.makeRotationFromQuaternion(quaternionOf(o, turn).invert()));
  }
  if (c.x !== 0 || c.y !== 0 || c.z !== 0) target.multiply(part.makeTranslation(-c.x, -c.y, -c.z));
  return target;
}

export function quaternionOf({ x, y, z, angle }, target) {
  axis.set(x, y, z);
  if (axis.lengthSq() === 0) axis.set(0, 0, 1);
  return target.setFromAxisAngle(axis.normalize(), angle);
}

/** What stands in the scene for a node, with dispose(); null for a node that shows nothing. */
export function build(given, parent, context) {
  const node = drawn(given);
  if (node === null) return null;
  const { typeName } = node;
  if (typeName === 'Shape') return new Shape(node, parent, context);
  if (typeName in GROUPS) return new Group(node, parent, context, given);
  if (LIGHTS.has(typeName)) {
    const lights = typeName === 'DirectionalLight' ? context.lights : context.view.lights;
    const { view } = context;
    const remove = lights.add(node, parent, () => view.invalidate());
    return { dispose: remove };
  }
  if (PLACED.has(typeName)) {
    context.view.frames.set(node, parent);
    return { dispose: () => context.view.frames.delete(node) };
  }
  return null;
}

/** The parts of a list of nodes, which stay with their node when the list changes. */
export class Parts {
  constructor(parent, context) {
    this.parent = parent;
    this.context = context;
    this.parts = [];
  }

  set(nodes) {
    const old = this.parts;
    const known = new Map();
    for (const entry of old) known.set(entry.node, [...(known.get(entry.node) ?? []), entry]);
    this.parts = nodes.map((node) => known.get(node)?.shift() ?? { node, part: build(node, this.parent, this.context) });
    for (const rest of known.values()) for (const { part: gone } of rest) gone?.dispose();
  }

  dispose() {
    for (const { part: gone } of this.parts) gone?.dispose();
    this.parts = [];
  }
}

export class Group {
  /** @param {Node} given  the node, or the PROTO instance that it is the body of */
  constructor(node, parent, context, given) {
    this.node = node;
    this.context = context;
    const { view } = context;
    this.object = new Object3D();
    this.object.matrixAutoUpdate = false;
    this.object.userData.node = node;
    this.object.userData.given = given;
    parent.add(this.object);
    this.list = GROUPS[node.typeName];
    this.stops = [node.field(this.list).listen(() => this.fill())];
    const follow = (name, callback) => this.stops.push(node.field(name).listen(callback));
    if (node.typeName === 'Transform') {
      const moved = () => view.later(this);
      for (const name of ['translation', 'rotation', 'scale', 'center', 'scaleOrientation']) follow(name, moved);
      matrixOf(node, this.object.matrix);
    }
    if (node.typeName === 'Switch') follow('whichChoice', () => this.fill());
    if (node.typeName === 'Billboard') follow('axisOfRotation', () => view.invalidate());
    if (node.typeName === 'Billboard' || node.typeName === 'LOD') view.facing.add(this);
    this.object.matrixWorld.multiplyMatrices(parent.matrixWorld, this.object.matrix);
    this.level = 0;
    this.fill();
  }

  /** Builds what the children are now; of a Switch or LOD what was once shown is kept for the next time. */
  fill() {
    const nodes = this.node.get(this.list) ?? [];
    const { typeName } = this.node;
    if (typeName === 'Switch' || typeName === 'LOD') this.choose(nodes);
    else {
      this.parts ??= new Parts(this.object, this.contextFor(nodes));
      this.parts.set(nodes);
    }
    this.context.view.structureChanged();
  }

  choose(nodes) {
    const which = this.node.typeName === 'Switch' ? this.node.get('whichChoice') : this.level;
    this.kept ??= new Map();
    for (const [node, entry] of this.kept) {
      if (nodes.includes(node)) continue;
      entry.parts.dispose();
      entry.object.removeFromParent();
      this.kept.delete(node);
    }
    const chosen = nodes[which] ?? null;
    if (chosen !== null && !this.kept.has(chosen)) {
      const object = new Object3D();
      object.matrixAutoUpdate = false;
      this.object.add(object);
      object.matrixWorld.copy(this.object.matrixWorld);
      const parts = new Parts(object, this.context);
      this.kept.set(chosen, { object, parts });
      parts.set([chosen]);
    }
    for (const [node, { object }] of this.kept) object.visible = node === chosen;
  }

  /** A DirectionalLight shines on what stands beside it and below. */
  contextFor(nodes) {
    const isLit = nodes.some((node) => drawn(node)?.typeName === 'DirectionalLight');
    if (!isLit) return this.context;
    this.lights = new Lights(this.context.lights);
    return { ...this.context, lights: this.lights };
  }

  update() {
    matrixOf(this.node, this.object.matrix);
    this.context.view.moved();
  }

  dispose() {
    for (const stop of this.stops) stop();
    this.parts?.dispose();
    if (this.kept) for (const { parts } of this.kept.values()) parts.dispose();
    this.lights?.dispose();
    this.context.view.facing.delete(this);
    this.object.removeFromParent();
  }
}
