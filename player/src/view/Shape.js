// A Shape in the scene: its geometry with its look, as an object of three's.

import { LineSegments, Mesh, Points, Vector3 } from 'three';
import { drawn } from '../scene/Node.js';
import { Geometry, hasGeometry } from './Geometry.js';
import { Look, followLook, isVisible } from './Material.js';

const OBJECTS = { faces: Mesh, text: Mesh, lines: LineSegments, points: Points, balls: Points };

const corner = new Vector3();

export class Shape {
  constructor(node, parent, context) {
    this.node = node;
    this.parent = parent;
    this.context = context;
    this.view = context.view;
    this.geometry = null;
    this.object = null;
    this.looks = [];
    this.objects = [];
    this.stopLook = null;
    this.lookChanged = () => {
      this.isLookStale = true;
      this.view.later(this);
    };
    this.stopGeometry = node.field('geometry').listen(() => this.replaceGeometry());
    this.replaceGeometry();
  }

  replaceGeometry() {
    this.releaseGeometry();
    const node = drawn(this.node.get('geometry') ?? null);
    if (node && hasGeometry(node.typeName)) {
      this.geometry = this.view.geometryOf(node);
      this.geometry.users.add(this);
      this.build();
      if (this.geometry.kind === 'text') this.view.texts.add(this);
    }
    this.view.sceneChanged();
  }

  releaseGeometry() {
    this.clear();
    if (this.geometry === null) return;
    if (this.geometry.kind === 'text') this.view.texts.remove(this);
    this.geometry.users.delete(this);
    this.view.releaseGeometry(this.geometry);
    this.geometry = null;
  }

  /** The geometry has other vertices; isOther if in another buffer. */
  geometryChanged(isOther) {
    const old = this.traits;
    if (isOther || Object.keys(old).some((name) => old[name] !== this.geometry.traits[name])) this.build();
    if (this.geometry.kind === 'text') this.view.texts.changed(this);
    this.view.sceneChanged();
  }

  /** Makes the objects anew: one, of balls that are in part transparent two. */
  build() {
    this.clear();
    const { geometry } = this;
    this.traits = geometry.traits;
    const { data } = geometry;
    const passes = geometry.kind !== 'balls' ? [false]
      : [false, true].filter((isClear) => (isClear ? data.hasClear : data.hasOpaque));
    for (const isClear of passes) {
      const look = new Look(this.traits, this.context.lights, this.view.uniforms);
      const object = new OBJECTS[geometry.kind](geometry.buffer, look.material);
      if (geometry.kind === 'balls') {
        look.material.uniforms.transparent = { value: isClear };
      }
      object.matrixAutoUpdate = false;
      object.frustumCulled = false;
      object.userData.shape = this;
      this.parent.add(object);
      object.matrixWorld.copy(this.parent.matrixWorld);
      this.looks.push(look);
      this.objects.push(object);
    }
    this.object = this.objects[0] ?? null;
    this.isLookStale = true;
    this.update();
    this.view.structureChanged();
  }

  /** Takes over what has changed of the look. */
  update() {
    if (!this.isLookStale || this.object === null) return;
    this.isLookStale = false;
    this.stopLook?.();
    this.stopLook = followLook(this.node, this.lookChanged);
    for (const look of this.looks) {
      look.update(this.node, this.view.hasFog);
    }
    const { bounds } = this.geometry;
    for (const object of this.objects) object.visible = bounds !== null && isVisible(this.node);
    if (this.textMap) this.setTextMap(this.textMap, null);
    this.view.invalidate();
  }

  setTextMap(texture, uv) {
    this.textMap = texture;
    if (uv) this.geometry.buffer.setAttribute('uv', uv);
    this.looks[0].material.uniforms.map.value = texture;
  }

  /** The middle of what is drawn, in the world. */
  middle(target) {
    const { low, high } = this.geometry.bounds;
    return target.set((low[0] + high[0]) / 2, (low[1] + high[1]) / 2, (low[2] + high[2]) / 2)
      .applyMatrix4(this.object.matrixWorld);
  }

  /** Makes a box hold this shape, too. */
  expand(box) {
    const { low, high } = this.geometry.bounds;
    for (let n = 0; n < 8; ++n) {
      corner.set(n & 1 ? high[0] : low[0], n & 2 ? high[1] : low[1], n & 4 ? high[2] : low[2]);
      box.expandByPoint(corner.applyMatrix4(this.object.matrixWorld));
    }
  }

  clear() {
    for (const object of this.objects) object.removeFromParent();
    for (const look of this.looks) look.dispose();
    this.objects = [];
    this.looks = [];
    this.object = null;
    this.textMap = null;
  }

  dispose() {
    this.stopGeometry();
    this.stopLook?.();
    this.releaseGeometry();
    this.view.structureChanged();
  }
}
