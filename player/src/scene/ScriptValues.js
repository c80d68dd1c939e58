// The values of fields as scripts see them, and back: nodes with their fields as properties, lists as those of
// lists.js or, of plain numbers, as they are.

import { LISTS } from '../vrml/values.js';
import { MFNode, VECTORS } from './lists.js';

const NODE = Symbol('node');

// A short text that reads back to the same 32-bit number.
function shortest(value) {
  const rounded = Math.round(value * 1e6) / 1e6; // does for most, and quickly
  if (Math.fround(rounded) === value) return String(rounded);
  for (let digits = 6; digits < 9; ++digits) {
    const text = value.toPrecision(digits);
    if (Math.fround(text) === value) return String(Number(text));
  }
  return String(value);
}

function numbersAsText() {
  let text = '[ ';
  for (let n = 0; n < this.length; ++n) text += `${shortest(this[n])} `;
  return `${text}]`;
}

export class ScriptValues {
  constructor(scene) {
    this.scene = scene;
    this.nodes = new WeakMap();
    this.classes = new WeakMap();
  }

  toScript(type, value) {
    switch (type) {
      case 'SFNode': return value === null ? null : this.view(value);
      case 'MFNode': return MFNode.from(value, (node) => this.view(node));
      case 'MFVec2f': case 'MFVec3f': case 'MFColor': case 'MFRotation':
        return new VECTORS[type]().over(value);
      case 'MFFloat': case 'MFTime':
        if (value.toString !== numbersAsText) Object.defineProperty(value, 'toString', { value: numbersAsText });
        return value;
      default: return value;
    }
  }

  fromScript(type, value) {
    switch (type) {
      case 'SFBool': return Boolean(value);
      case 'SFInt32': return Math.trunc(value) | 0;
      case 'SFFloat': case 'SFTime': return Number(value);
      case 'SFString': return String(value);
      case 'SFNode': return value?.[NODE] ?? null;
      case 'MFNode': return listOf(value).map((node) => node?.[NODE]).filter((node) => node !== undefined);
      case 'MFString': return Array.from(listOf(value), String);
      default: return type in LISTS ? packed(LISTS[type], value) : value;
    }
  }

  view(node) {
    let view = this.nodes.get(node);
    if (view === undefined) {
      const View = this.viewClass(node.type);
      view = new View();
      Object.defineProperty(view, NODE, { value: node });
      this.nodes.set(node, view);
    }
    return view;
  }

  viewClass(type) {
    const known = this.classes.get(type);
    if (known !== undefined) return known;
    const View = class {};
    for (const [name, declared] of type.fields) {
      const names = declared.access === 'exposedField' ? [name, `set_${name}`, `${name}_changed`] : [name];
      for (const alias of names) {
        if (!(alias in View.prototype)) Object.defineProperty(View.prototype, alias, this.property(declared));
      }
    }
    this.classes.set(type, View);
    return View;
  }

  property({ name, type, access }) {
    const values = this;
    return {
      get() { return values.toScript(type, this[NODE].get(name)); },
      set(value) {
        const { events } = values.scene, node = this[NODE];
        const field = node.field(name), given = values.fromScript(type, value);
        if (access === 'eventIn' && node.type.body !== undefined) events.post(field, given);
        else events.accept(field, given);
      },
    };
  }
}

function listOf(value) { return Array.isArray(value) ? value : [value]; }

/** The numbers of a list as a typed array. */
function packed({ Type, size }, value) {
  if (value instanceof Type) return value;
  if (value?.take !== undefined) return value.take();
  const list = listOf(value), { length } = list, array = new Type(size * length);
  for (let n = 0; n < length; ++n) {
    if (size === 1) array[n] = list[n];
    else array.set(Object.values(list[n] ?? {}), n * size);
  }
  return array;
}
