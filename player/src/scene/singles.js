// The values of single-valued fields that are objects, with what scripts can do with them
// (ISO/IEC 14772-1, annex C.6). Every operation gives a new value.

export class SFVec2f {
  constructor(x = 0, y = 0) {
    this.x = x;
    this.y = y;
  }

  add(other) { return new SFVec2f(this.x + other.x, this.y + other.y); }
  subtract(other) { return new SFVec2f(this.x - other.x, this.y - other.y); }
  multiply(factor) { return new SFVec2f(this.x * factor, this.y * factor); }
  divide(divisor) { return new SFVec2f(this.x / divisor, this.y / divisor); }
  negate() { return new SFVec2f(-this.x, -this.y); }
  dot(other) { return this.x * other.x + this.y * other.y; }
  length() { return Math.hypot(this.x, this.y); }
  normalize() { return this.divide(this.length() || 1); }
  toString() { return `${this.x} ${this.y}`; }
}

export class SFVec3f {
  constructor(x = 0, y = 0, z = 0) {
    this.x = x;
    this.y = y;
    this.z = z;
  }

  add(other) { return new SFVec3f(this.x + other.x, this.y + other.y, this.z + other.z); }
  subtract(other) { return new SFVec3f(this.x - other.x, this.y - other.y, this.z - other.z); }
  multiply(factor) { return new SFVec3f(this.x * factor, this.y * factor, this.z * factor); }
  divide(divisor) { return new SFVec3f(this.x / divisor, this.y / divisor, this.z / divisor); }
  negate() { return new SFVec3f(-this.x, -this.y, -this.z); }
  dot(other) { return this.x * other.x + this.y * other.y + this.z * other.z; }
  length() { return Math.sqrt(this.dot(this)); }
  normalize() { return this.divide(this.length() || 1); }

  cross(other) {
    return new SFVec3f(
      this.y * other.z - this.z * other.y,
      this.z * other.x - this.x * other.z,
      this.x * other.y - this.y * other.x);
  }

  toString() { return `${this.x} ${this.y} ${this.z}`; }
}

export class SFColor {
  constructor(r = 0, g = 0, b = 0) {
    this.r = r;
    this.g = g;
    this.b = b;
  }

  toString() { return `${this.r} ${this.g} ${this.b}`; }
}

/** A turn about an axis, right-handed, in radians. Also made of an axis and an angle, or as the shortest
 *  turn from one direction to another. */
export class SFRotation {
  constructor(x = 0, y = 0, z = 1, angle = 0) {
    if (x instanceof SFVec3f) {
      const axis = typeof y === 'number' ? x : axisBetween(x, y);
      this.angle = typeof y === 'number' ? y : Math.acos(clamp(x.normalize().dot(y.normalize())));
      this.x = axis.x;
      this.y = axis.y;
      this.z = axis.z;
      return;
    }
    this.x = x;
    this.y = y;
    this.z = z;
    this.angle = angle;
  }

  getAxis() { return new SFVec3f(this.x, this.y, this.z); }
  setAxis(axis) { return new SFRotation(axis, this.angle); }
  inverse() { return new SFRotation(this.x, this.y, this.z, -this.angle); }

  /** This turn after the other one. */
  multiply(other) { return fromQuaternion(product(toQuaternion(this), toQuaternion(other))); }

  multVec(vector) {
    const axis = this.getAxis().normalize(), cos = Math.cos(this.angle);
    return vector.multiply(cos)
      .add(axis.cross(vector).multiply(Math.sin(this.angle)))
      .add(axis.multiply(axis.dot(vector) * (1 - cos)));
  }

  slerp(to, part) {
    const a = toQuaternion(this);
    let b = toQuaternion(to), cos = a[0] * b[0] + a[1] * b[1] + a[2] * b[2] + a[3] * b[3];
    if (cos < 0) {
      b = b.map((value) => -value);
      cos = -cos;
    }
    const angle = Math.acos(clamp(cos)), sin = Math.sin(angle);
    const first = sin < 1e-6 ? 1 - part : Math.sin((1 - part) * angle) / sin;
    const second = sin < 1e-6 ? part : Math.sin(part * angle) / sin;
    return fromQuaternion(a.map((value, k) => first * value + second * b[k]));
  }

  toString() { return `${this.x} ${this.y} ${this.z} ${this.angle}`; }
}

function clamp(cosine) { return Math.max(-1, Math.min(1, cosine)); }

/** An axis that takes one direction to another; of opposite ones, any that stands square on them. */
function axisBetween(from, to) {
  const axis = from.cross(to);
  if (axis.length() > 1e-9) return axis.normalize();
  const other = Math.abs(from.x) < Math.abs(from.y) ? new SFVec3f(1, 0, 0) : new SFVec3f(0, 1, 0);
  return from.cross(other).normalize();
}

function toQuaternion(turn) {
  const length = Math.hypot(turn.x, turn.y, turn.z) || 1, sin = Math.sin(turn.angle / 2) / length;
  return [turn.x * sin, turn.y * sin, turn.z * sin, Math.cos(turn.angle / 2)];
}

function fromQuaternion([x, y, z, w]) {
  const sin = Math.hypot(x, y, z);
  if (sin < 1e-9) return new SFRotation(0, 0, 1, 0);
  return new SFRotation(x / sin, y / sin, z / sin, 2 * Math.atan2(sin, w));
}

function product([ax, ay, az, aw], [bx, by, bz, bw]) {
  return [
    aw * bx + ax * bw + ay * bz - az * by,
    aw * by - ax * bz + ay * bw + az * bx,
    aw * bz + ax * by - ay * bx + az * bw,
    aw * bw - ax * bx - ay * by - az * bz,
  ];
}
