// One Scene as three's objects: what stands where, what is bound, and what has changed since the last frame.

import { Box3, Matrix4, Object3D, Quaternion, Scene as Root, Sphere, Vector3, Vector4 } from 'three';
import { Geometry } from './Geometry.js';
import { Parts } from './Groups.js';
import { Highlight } from './Highlight.js';
import { Lights } from './Lights.js';
import { Sky } from './Sky.js';
import { Texts } from './Texts.js';
import { chooseLevel, turnBillboard } from './facing.js';
import { forgetWidths } from './text.js';

const place = new Vector3(), turn = new Quaternion(), size = new Vector3(), inverse = new Matrix4();
const box = new Box3(), ball = new Sphere();

export class World {
  /** @param {View} view  with camera, fonts, request() */
  constructor(view, scene) {
    this.view = view;
    this.scene = scene;
    this.fonts = view.fonts;
    this.root = new Root();
    this.root.matrixAutoUpdate = false;
    this.root.matrixWorldAutoUpdate = false;
    this.content = new Object3D();
    this.content.matrixAutoUpdate = false;
    this.root.add(this.content);
    this.uniforms = {
      parallel: { value: false }, screenHeight: { value: 1 }, pointSize: { value: 1 }, fogColor: { value: new Vector4() },
    };
    this.lights = new Lights();
    this.texts = new Texts(this);
    this.sky = new Sky(this.root, () => this.invalidate());
    this.highlighting = new Highlight(this);
    this.frames = new Map(); // of Viewpoints and ProximitySensors: what they stand in
    this.facing = new Set(); // Billboards and LODs
    this.geometries = new Map();
    this.jobs = new Set();
    this.stops = [];
    this.isStale = true;
    this.areMatricesStale = true;
    this.areBoundsStale = true;
    this.shown = null;
    this.hasFog = false;
    this.mayNavigate = true;

    this.parts = new Parts(this.content, { view: this, lights: this.lights });
    this.stops.push(scene.rootsField.listen(() => this.fill()));
    this.stops.push(scene.listen('changed', () => view.request()));
    this.stops.push(scene.listen('bound', ({ type, node }) => this.bound(type, node, true)));
    this.fill();
    this.updateMatrices();
    for (const type of ['Background', 'NavigationInfo', 'Fog', 'Viewpoint']) this.bound(type, scene.bound(type), false);
  }

  fill() {
    this.parts.set(this.scene.roots);
    this.structureChanged();
  }

  // --- What is bound

  bound(type, node, isLater) {
    if (type === 'Background') this.sky.set(node);
    if (type === 'NavigationInfo') this.setNavigation(node);
    if (type === 'Fog') this.setFog(node);
    if (type === 'Viewpoint') this.setViewpoint(node, isLater && node !== null && node.get('jump'));
    this.invalidate();
  }

  setNavigation(node) {
    this.stopHeadlight?.();
    const follow = () => {
      this.lights.headlight = node === null || node.get('headlight');
      this.invalidate();
    };
    this.stopHeadlight = node?.field('headlight').listen(follow);
    const [type = 'WALK'] = node?.get('type') ?? [];
    this.mayNavigate = type !== 'NONE';
    follow();
  }

  setFog(node) {
    const hasFog = node !== null && node.get('visibilityRange') > 0;
    if (hasFog) {
      const { r, g, b } = node.get('color');
      this.uniforms.fogColor.value.set(r, g, b, node.get('visibilityRange'));
    }
    if (hasFog === this.hasFog) return;
    this.hasFog = hasFog;
    for (const shape of this.shapes()) shape.lookChanged();
  }

  setViewpoint(node, isAnimated) {
    this.stopViewpoint?.();
    const stops = node === null ? []
      : ['position', 'orientation', 'fieldOfView'].map((name) => node.field(name).listen(() => this.goTo(node, false)));
    this.stopViewpoint = () => stops.forEach((stop) => stop());
    this.goTo(node, isAnimated);
  }

  /** Takes the viewer to a Viewpoint. */
  goTo(node, isAnimated) {
    this.updateMatrices();
    this.view.camera.goTo(node, this.frames.get(node) ?? null, isAnimated && !prefersStill());
    this.invalidate();
  }

  // --- What has changed

  /** A job's update() will be called before the next frame. */
  later(job) {
    this.jobs.add(job);
    this.view.request();
  }

  runJobs() {
    for (const job of this.jobs) {
      this.jobs.delete(job);
      job.update();
    }
  }

  /** Something looks different. */
  invalidate() {
    this.isStale = true;
    this.view.request();
  }

  /** Something stands elsewhere. */
  moved() {
    this.areMatricesStale = true;
    this.sceneChanged();
  }

  /** Something has another size or place. */
  sceneChanged() {
    this.areBoundsStale = true;
    this.invalidate();
  }

  /** Something came, went, or is shown or not. */
  structureChanged() {
    this.shown = null;
    this.moved();
  }

  /** Other fonts are there: texts have other widths and other pixels. */
  fontsChanged() {
    forgetWidths();
    for (const { geometry } of this.texts.all) this.later(geometry);
  }

  geometryOf(node) {
    if (node.typeName === 'Text') return new Geometry(node, this); // each is drawn as large as it is seen
    let known = this.geometries.get(node);
    if (known === undefined) {
      known = new Geometry(node, this);
      this.geometries.set(node, known);
    }
    return known;
  }

  releaseGeometry(geometry) {
    if (geometry.users.size > 0) return;
    geometry.dispose();
    this.geometries.delete(geometry.node);
    this.jobs.delete(geometry);
  }

  // --- What there is

  /** Whether nothing above an object hides it. */
  isShown(object) {
    for (let at = object.parent; at !== null; at = at.parent) if (!at.visible) return false;
    return true;
  }

  /** All Shapes that no Switch hides, those too that can only be pointed at. */
  shapes() {
    if (this.shown !== null) return this.shown;
    const found = new Set();
    const visit = (object) => {
      const { shape } = object.userData;
      if (shape !== undefined) found.add(shape);
      else if (object.visible) object.children.forEach(visit);
    };
    visit(this.content);
    this.shown = [...found];
    return this.shown;
  }

  updateMatrices() {
    if (!this.areMatricesStale) return;
    this.areMatricesStale = false;
    this.root.updateMatrixWorld(true);
  }

  /** What the camera turns about, and how far it has to see. */
  updateBounds(camera) {
    if (!this.areBoundsStale) return;
    this.areBoundsStale = false;
    box.makeEmpty();
    for (const shape of this.shapes()) if (shape.geometry.bounds !== null && shape.object !== null) shape.expand(box);
    if (box.isEmpty()) return;
    box.getBoundingSphere(ball);
    camera.center.copy(ball.center);
    camera.radius = Math.max(ball.radius, 1e-6);
  }

  // --- Frames

  /** Brings everything in order for a picture of so many pixels; returns three's camera for it. */
  prepare(width, height, pixelRatio, isMoving) {
    const { camera } = this.view;
    this.updateMatrices();
    this.updateBounds(camera);
    const three = camera.update(width / height);
    for (const group of this.facing) {
      if (group.node.typeName === 'Billboard') turnBillboard(group, three);
      else if (chooseLevel(group, three)) this.updateMatrices();
    }
    this.tellProximity(three);
    this.uniforms.parallel.value = camera.isParallel;
    this.uniforms.screenHeight.value = height;
    this.uniforms.pointSize.value = Math.max(1, Math.round(pixelRatio));
    this.lights.update(three);
    this.texts.update(three, height, isMoving);
    this.sortByDepth(three);
    camera.screenToWorld(this.sky.toWorld.value);
    return three;
  }

  /** What is transparent is drawn from the back to the front, by the middle of each shape. */
  sortByDepth(camera) {
    for (const shape of this.shapes()) {
      for (const object of shape.objects) {
        if (!object.material.transparent || !object.visible) continue;
        object.eyeDepth = -shape.middle(place).applyMatrix4(camera.matrixWorldInverse).z;
      }
    }
  }

  /** Tells the ProximitySensors where the viewer is. */
  tellProximity(camera) {
    for (const [node, frame] of this.frames) {
      if (node.typeName !== 'ProximitySensor') continue;
      const { x, y, z } = node.get('size');
      if (!(x > 0 && y > 0 && z > 0)) continue;
      if (!this.isShown({ parent: frame })) {
        this.scene.proximity(node, null);
        continue;
      }
      inverse.copy(frame.matrixWorld).invert().multiply(camera.matrixWorld).decompose(place, turn, size);
      const sign = turn.w < 0 ? -1 : 1, length = sign * Math.hypot(turn.x, turn.y, turn.z);
      this.scene.proximity(node, {
        position: { x: place.x, y: place.y, z: place.z },
        orientation: length === 0 ? { x: 0, y: 0, z: 1, angle: 0 } : {
          x: turn.x / length, y: turn.y / length, z: turn.z / length, angle: 2 * Math.acos(Math.min(1, sign * turn.w)),
        },
      });
    }
  }

  dispose() {
    for (const stop of this.stops) stop();
    this.stopHeadlight?.();
    this.stopViewpoint?.();
    this.parts.dispose();
    this.sky.dispose();
    this.jobs.clear();
  }
}

function prefersStill() {
  return matchMedia('(prefers-reduced-motion: reduce)').matches;
}
