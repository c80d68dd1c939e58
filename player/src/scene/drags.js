// How PlaneSensor, CylinderSensor and SphereSensor follow a drag (ISO/IEC 14772-1, 6.33, 6.15 and 6.44). A
// drag is made of the point that was grabbed and the ray through it, in the sensor's frame; move(ray) sends
// what the sensor says, drop() ends it.

import { SFRotation, SFVec3f } from './singles.js';

function pointOn(ray, t) { return ray.origin.add(ray.direction.multiply(t)); }

/** Where a ray meets a plane, or null. */
function onPlane(ray, point, normal) {
  const slope = ray.direction.dot(normal);
  if (Math.abs(slope) < 1e-9) return null;
  return pointOn(ray, point.subtract(ray.origin).dot(normal) / slope);
}

function within(value, low, high) { return low <= high ? Math.max(low, Math.min(high, value)) : value; }

class Drag {
  constructor(node) {
    this.node = node;
    this.events = node.scene.events;
    this.last = node.get('offset');
  }

  say(output, value, track) {
    this.last = value;
    this.events.send(this.node.field('trackPoint_changed'), track);
    this.events.send(this.node.field(output), value);
  }

  drop() {
    if (this.node.get('autoOffset')) this.events.accept(this.node.field('offset'), this.last);
  }
}

class PlaneDrag extends Drag {
  constructor(node, start) {
    super(node);
    this.start = start;
    this.offset = this.last;
  }

  move(ray) {
    const track = onPlane(ray, this.start, new SFVec3f(0, 0, 1));
    if (track === null) return;
    const moved = track.subtract(this.start).add(new SFVec3f(this.offset.x, this.offset.y, this.offset.z));
    const low = this.node.get('minPosition'), high = this.node.get('maxPosition');
    const place = new SFVec3f(within(moved.x, low.x, high.x), within(moved.y, low.y, high.y), this.offset.z);
    this.say('translation_changed', place, track);
  }
}

/** Grabbed near the axis' direction it turns like a disk, else like a cylinder through the point. */
class CylinderDrag extends Drag {
  constructor(node, start, ray) {
    super(node);
    this.start = start;
    this.angle = this.last;
    this.radius = Math.hypot(start.x, start.z);
    const tilt = Math.acos(Math.min(1, Math.abs(ray.direction.normalize().y)));
    this.isDisk = tilt < node.get('diskAngle');
    this.before = this.around(this.track(ray) ?? start);
  }

  around(point) { return Math.atan2(point.x, point.z); }

  track(ray) {
    return this.isDisk ? onPlane(ray, this.start, new SFVec3f(0, 1, 0)) : this.onCylinder(ray);
  }

  /** The nearer point where the ray meets the cylinder; of a ray that passes by, the point nearest to it. */
  onCylinder({ origin, direction }) {
    const a = direction.x ** 2 + direction.z ** 2;
    if (a < 1e-12) return null;
    const b = (origin.x * direction.x + origin.z * direction.z) / a;
    const c = (origin.x ** 2 + origin.z ** 2 - this.radius ** 2) / a;
    const root = Math.sqrt(Math.max(0, b * b - c));
    return pointOn({ origin, direction }, -b - root);
  }

  move(ray) {
    const track = this.track(ray);
    if (track === null) return;
    const at = this.around(track), turn = at - this.before;
    this.before = at;
    this.angle += turn > Math.PI ? turn - 2 * Math.PI : turn < -Math.PI ? turn + 2 * Math.PI : turn;
    const angle = within(this.angle, this.node.get('minAngle'), this.node.get('maxAngle'));
    this.say('rotation_changed', new SFRotation(0, 1, 0, angle), track);
    this.last = angle;
  }
}

class SphereDrag extends Drag {
  constructor(node, start) {
    super(node);
    this.start = start;
    const { x, y, z, angle } = this.last;
    this.offset = new SFRotation(x, y, z, angle);
  }

  move(ray) {
    const direction = ray.direction.normalize(), middle = -ray.origin.dot(direction);
    const nearest = pointOn({ origin: ray.origin, direction }, middle), radius = this.start.length();
    const depth = Math.sqrt(Math.max(0, radius ** 2 - nearest.dot(nearest)));
    const track = nearest.subtract(direction.multiply(depth)).normalize().multiply(radius);
    const turn = new SFRotation(this.start.normalize(), track.normalize());
    this.say('rotation_changed', turn.multiply(this.offset), track);
  }
}

export const DRAGS = { PlaneSensor: PlaneDrag, CylinderSensor: CylinderDrag, SphereSensor: SphereDrag };
