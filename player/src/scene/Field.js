// A field of a node: a typed value, those who follow it, and the ROUTEs that start from it.
//
// What a value is, by type. Values are never changed in place: a change brings a new object, so that
// "=== as before" means "not changed", and arrays go from field to field by reference.
//
//   SFBool SFFloat SFInt32 SFTime SFString   boolean, number, string
//   SFVec2f {x, y}   SFVec3f {x, y, z}   SFColor {r, g, b}   SFRotation {x, y, z, angle}
//   SFImage {width, height, components, pixels: Uint8Array}, rows from the lowest up, as in the standard
//   SFNode   a Node or null           MFNode   Array of Node
//   MFString Array of string
//   MFFloat  Float32Array             MFInt32  Int32Array          MFTime Float64Array
//   MFVec2f  Float32Array, x y x y ...
//   MFVec3f  Float32Array, x y z x y z ... (ready to be a vertex buffer; length / 3 points)
//   MFColor  Float32Array, r g b ...  MFRotation Float32Array, x y z angle ...

export class Field {
  /** @param {string} type  'SFVec3f', ...
   *  @param {string} access 'field', 'exposedField', 'eventIn' or 'eventOut' */
  constructor(type, access, value) {
    this.type = type;
    this.access = access;
    this.value = value;
    this.stamp = 0; // of the last cascade in which this field sent an event
    this.isQueued = false;
    this.listeners = null;
    this.routes = null;
  }

  /** Calls callback(value, field) after each event that this field receives or sends, also with an equal
   *  value. Returns a function that ends it. */
  listen(callback) {
    this.listeners = this.listeners === null ? [callback] : [...this.listeners, callback];
    return () => {
      const rest = this.listeners.filter((listener) => listener !== callback);
      this.listeners = rest.length > 0 ? rest : null;
    };
  }

  tell() {
    if (this.listeners === null) return;
    for (const listener of this.listeners) listener(this.value, this);
  }

  addRoute(target) {
    this.routes ??= [];
    if (!this.routes.includes(target)) this.routes.push(target);
  }

  removeRoute(target) {
    if (this.routes !== null) this.routes = this.routes.filter((route) => route !== target);
  }
}
