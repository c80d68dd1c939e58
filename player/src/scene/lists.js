// The lists that scripts make and read (ISO/IEC 14772-1, annex C.6), before they become the value of a field
// and after. Vectors, colours and turns are kept as numbers: a series has so many of them that an object each
// would take most of the time of a script.

import { LISTS } from '../vrml/values.js';

class List extends Array {
  static get [Symbol.species]() { return Array; }

  constructor(...values) {
    super();
    for (let n = 0; n < values.length; ++n) this[n] = values[n];
  }

  toString() { return `[ ${this.join(', ')} ]`; }
}

export class MFFloat extends List {}
export class MFInt32 extends List {}
export class MFNode extends List {}
export class MFString extends List {}
export class MFTime extends List {}

// list[n] ends here, since a list of vectors has no properties of such names: entries are made when they are
// read. What else arrays can do, they do with a copy.
const entries = new Proxy({}, {
  get(target, key, list) {
    const n = typeof key === 'string' ? Number(key) : NaN;
    if (n >= 0) return list.at(n);
    if (typeof Array.prototype[key] !== 'function') return undefined;
    const copy = [...list];
    return copy[key].bind(copy);
  },
  set(target, key, value, list) {
    const n = typeof key === 'string' ? Number(key) : NaN;
    if (n >= 0) list.put(n, ...Object.values(value));
    else Object.defineProperty(list, key, { value, writable: true, configurable: true });
    return true;
  },
});

const NONE = new Float32Array();

class Vectors {
  constructor(type, values) {
    const { size, Single } = LISTS[type];
    this.array = NONE;
    this.used = 0; // numbers of array
    this.size = size;
    this.Single = Single;
    this.isShared = true; // array is the value of a field and must not be written to
    for (let n = 0; n < values.length; ++n) this[n] = values[n];
  }

  get length() { return this.used / this.size; }

  set length(length) {
    this.reserve(length * this.size);
    this.used = length * this.size;
  }

  at(n) {
    const first = n * this.size;
    return first < this.used ? new this.Single(...this.array.subarray(first, first + this.size)) : undefined;
  }

  put(n, x, y, z, angle) {
    const { size } = this, first = n * size, end = first + size;
    if (this.isShared || end > this.array.length) this.reserve(end > this.used ? Math.max(end, 2 * this.used) : this.used);
    const { array } = this;
    array[first] = x;
    array[first + 1] = y;
    if (size > 2) array[first + 2] = z;
    if (size > 3) array[first + 3] = angle;
    if (end > this.used) this.used = end;
  }

  /** Makes room for so many numbers, in an array of its own. */
  reserve(count) {
    const before = this.array;
    this.array = new Float32Array(count);
    this.array.set(before.length > count ? before.subarray(0, count) : before);
    this.isShared = false;
  }

  /** The numbers, as the value of a field. */
  take() {
    if (this.array.length !== this.used) this.array = this.array.slice(0, this.used);
    this.isShared = true;
    return this.array;
  }

  /** Makes this the list of the numbers of a field. */
  over(array) {
    this.array = array;
    this.used = array.length;
    return this;
  }

  * [Symbol.iterator]() { for (let n = 0; n < this.length; ++n) yield this.at(n); }

  toString() { return `[ ${[...this].join(', ')} ]`; }
}
Object.setPrototypeOf(Vectors.prototype, entries);

export class MFColor extends Vectors { constructor(...values) { super('MFColor', values); } }
export class MFRotation extends Vectors { constructor(...values) { super('MFRotation', values); } }
export class MFVec2f extends Vectors { constructor(...values) { super('MFVec2f', values); } }
export class MFVec3f extends Vectors { constructor(...values) { super('MFVec3f', values); } }

export const VECTORS = { MFColor, MFRotation, MFVec2f, MFVec3f };

/** list[n] = new SFVec3f(x, y, z) without the vector, where list has no vectors but numbers. */
export function putPoint(list, n, x, y, z) {
  if (list instanceof MFVec3f) list.put(n, x, y, z);
  else list[n] = new LISTS.MFVec3f.Single(x, y, z);
}
