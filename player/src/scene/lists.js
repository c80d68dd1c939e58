// The lists that scripts make (ISO/IEC 14772-1, annex C.6): arrays that grow, before they become the value of
// a field.

class List extends Array {
  static get [Symbol.species]() { return Array; }

  constructor(...values) {
    super();
    for (let n = 0; n < values.length; ++n) this[n] = values[n];
  }

  toString() { return `[ ${this.join(', ')} ]`; }
}

export class MFColor extends List {}
export class MFFloat extends List {}
export class MFInt32 extends List {}
export class MFNode extends List {}
export class MFRotation extends List {}
export class MFString extends List {}
export class MFTime extends List {}
export class MFVec2f extends List {}
export class MFVec3f extends List {}
