// Where the viewer is: bound to a Viewpoint, on his way to one, or wherever he has walked from there.

import { Matrix4, OrthographicCamera, PerspectiveCamera, Quaternion, Vector3 } from 'three';
import { quaternionOf } from './Groups.js';

const JUMP = 0.7; // seconds from one viewpoint to the next
const STEEPEST = 0.998; // sine of the steepest view down or up that turning leads to

const offset = new Vector3(), right = new Vector3(), up = new Vector3(), ahead = new Vector3();
const turn = new Quaternion(), matrix = new Matrix4();

export class Camera {
  constructor() {
    this.position = new Vector3(0, 0, 10);
    this.orientation = new Quaternion();
    this.fieldOfView = Math.PI / 4;
    this.isParallel = false;
    this.perspective = new PerspectiveCamera();
    this.orthographic = new OrthographicCamera();
    for (const camera of [this.perspective, this.orthographic]) camera.matrixWorldAutoUpdate = false;
    this.jump = null;
    this.aspect = 1;
    this.center = new Vector3(); // of what there is to see
    this.radius = 1;
  }

  get camera() { return this.isParallel ? this.orthographic : this.perspective; }

  get isMoving() { return this.jump !== null; }

  /** Goes to a Viewpoint that stands in a frame, in a straight line or at once. */
  goTo(node, frame, isAnimated) {
    const to = { position: new Vector3(0, 0, 10), orientation: new Quaternion(), fieldOfView: Math.PI / 4 };
    if (node) {
      to.position.copy(node.get('position'));
      quaternionOf(node.get('orientation'), to.orientation);
      to.fieldOfView = node.get('fieldOfView');
    }
    if (frame) {
      to.position.applyMatrix4(frame.matrixWorld);
      frame.matrixWorld.decompose(offset, turn, up);
      to.orientation.premultiply(turn);
    }
    if (isAnimated) {
      const from = {
        position: this.position.clone(), orientation: this.orientation.clone(), fieldOfView: this.fieldOfView,
      };
      this.jump = { from, to, begin: null };
    } else {
      this.jump = null;
      this.position.copy(to.position);
      this.orientation.copy(to.orientation);
      this.fieldOfView = to.fieldOfView;
    }
   
  }

  /** Goes on with a jump; time in seconds. */
  advance(time) {
    if (this.jump === null) return;
    this.jump.begin ??= time;
    const { from, to, begin } = this.jump;
    const part = Math.min(1, (time - begin) / JUMP), at = part * part * (3 - 2 * part);
    this.position.lerpVectors(from.position, to.position, at);
    this.orientation.slerpQuaternions(from.orientation, to.orientation, at);
    this.fieldOfView = from.fieldOfView + at * (to.fieldOfView - from.fieldOfView);
    if (part === 1) this.jump = null;
   
  }

  /** The distance of what there is to see, along the line of sight. */
  get distance() {
    ahead.set(0, 0, -1).applyQuaternion(this.orientation);
    const distance = offset.copy(this.center).sub(this.position).dot(ahead);
    return Math.max(distance, this.radius / 100, 1e-6);
  }

  /** Half of what is seen at that distance, up and down. */
  get halfHeight() {
    const slope = Math.tan(Math.min(this.fieldOfView, 3.1) / 2);
    return this.distance * (this.aspect >= 1 ? slope : slope / this.aspect);
  }

  /** Turns about the middle of the scene: to the side about the world's y, and up or down. Radians. */
  turn(aside, upwards) {
    this.jump = null;
    offset.copy(this.position).sub(this.center);
    right.set(1, 0, 0).applyQuaternion(this.orientation);
    ahead.set(0, 0, -1).applyQuaternion(this.orientation);
    const steepness = Math.asin(Math.max(-1, Math.min(1, ahead.y))), most = Math.asin(STEEPEST);
    const tilt = Math.max(-most - steepness, Math.min(most - steepness, upwards));
    turn.setFromAxisAngle(right, tilt);
    this.applyTurn();
    turn.setFromAxisAngle(up.set(0, 1, 0), aside);
    this.applyTurn();
   
  }

  applyTurn() {
    offset.applyQuaternion(turn);
    this.position.copy(this.center).add(offset);
    this.orientation.premultiply(turn).normalize();
  }

  /** Moves sideways and up; 2 is the height of the picture. */
  pan(x, y) {
    this.jump = null;
    const size = this.halfHeight;
    right.set(1, 0, 0).applyQuaternion(this.orientation);
    up.set(0, 1, 0).applyQuaternion(this.orientation);
    this.position.addScaledVector(right, x * size).addScaledVector(up, y * size);
   
  }

  /** Comes nearer, factor < 1, or goes away. */
  zoom(factor) {
    this.jump = null;
    const { distance } = this;
    const wanted = Math.max(this.radius / 50, Math.min(20 * this.radius, distance * factor));
    ahead.set(0, 0, -1).applyQuaternion(this.orientation);
    this.position.addScaledVector(ahead, distance - wanted);
   
  }

  /** Sets three's camera, for a picture of this shape. */
  update(aspect) {
    this.aspect = aspect;
    const { camera } = this;
    const depth = offset.copy(this.center).sub(this.position)
      .dot(ahead.set(0, 0, -1).applyQuaternion(this.orientation));
    const reach = 1.01 * this.radius + 1e-6;
    camera.far = Math.max(depth + reach, reach / 100);
    if (this.isParallel) {
      camera.near = depth - reach;
      const { halfHeight } = this;
      Object.assign(camera, {
        top: halfHeight, bottom: -halfHeight, right: halfHeight * aspect, left: -halfHeight * aspect,
      });
    } else {
      camera.near = Math.max(depth - reach, camera.far / 5000);
      const slope = Math.tan(Math.min(this.fieldOfView, 3.1) / 2);
      camera.fov = 2 * Math.atan(aspect >= 1 ? slope : slope / aspect) * 180 / Math.PI;
      camera.aspect = aspect;
    }
    camera.matrixWorld.compose(this.position, this.orientation, up.set(1, 1, 1));
    camera.matrixWorldInverse.copy(camera.matrixWorld).invert();
    camera.updateProjectionMatrix();
    return camera;
  }

  /** From the corners of the screen to directions in the world. */
  screenToWorld(target) {
    matrix.extractRotation(this.camera.matrixWorld);
    return target.copy(this.camera.projectionMatrixInverse).premultiply(matrix);
  }
}
