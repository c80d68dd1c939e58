// The types of fields: how a value is read from a text, and what a field holds that is given none.

import { SFColor, SFRotation, SFVec2f, SFVec3f } from '../scene/singles.js';

function image(lexer) {
  const width = lexer.integer(), height = lexer.integer(), components = lexer.integer();
  if (width < 0 || height < 0 || components < 0 || components > 4) {
    lexer.fail('An image needs a width, a height and 0 to 4 components');
  }
  const pixels = new Uint8Array(width * height * components);
  for (let n = 0; n < pixels.length; n += components) {
    const pixel = lexer.integer();
    for (let k = 0; k < components; ++k) pixels[n + k] = pixel >>> (8 * (components - 1 - k));
  }
  return { width, height, components, pixels };
}

function bool(lexer) {
  const start = lexer.at, word = lexer.word();
  if (word === 'TRUE' || word === 'FALSE') return word === 'TRUE';
  lexer.at = start;
  return lexer.fail(`TRUE or FALSE is expected, not ${lexer.next()}`);
}

const NO_IMAGE = { width: 0, height: 0, components: 0, pixels: new Uint8Array() };

// Single types: how one is read, and the default. Lists of numbers: their array, and numbers an entry.
export const SINGLES = {
  SFBool: { read: bool, none: false },
  SFFloat: { read: (lexer) => lexer.number(), none: 0 },
  SFInt32: { read: (lexer) => lexer.integer(), none: 0 },
  SFTime: { read: (lexer) => lexer.number(), none: 0 },
  SFString: { read: (lexer) => lexer.string(), none: '' },
  SFVec2f: { read: (lexer) => new SFVec2f(lexer.number(), lexer.number()), none: new SFVec2f() },
  SFVec3f: {
    read: (lexer) => new SFVec3f(lexer.number(), lexer.number(), lexer.number()), none: new SFVec3f(),
  },
  SFColor: {
    read: (lexer) => new SFColor(lexer.number(), lexer.number(), lexer.number()), none: new SFColor(),
  },
  SFRotation: {
    read: (lexer) => new SFRotation(lexer.number(), lexer.number(), lexer.number(), lexer.number()),
    none: new SFRotation(),
  },
  SFImage: { read: image, none: NO_IMAGE },
  SFNode: { none: null },
};

export const LISTS = {
  MFFloat: { Type: Float32Array, size: 1 },
  MFInt32: { Type: Int32Array, size: 1, isInteger: true },
  MFTime: { Type: Float64Array, size: 1 },
  MFVec2f: { Type: Float32Array, size: 2, Single: SFVec2f },
  MFVec3f: { Type: Float32Array, size: 3, Single: SFVec3f },
  MFColor: { Type: Float32Array, size: 3, Single: SFColor },
  MFRotation: { Type: Float32Array, size: 4, Single: SFRotation },
};

export function isType(name) {
  return name in SINGLES || name in LISTS || name === 'MFString' || name === 'MFNode';
}

/** Reads a value of any type but SFNode and MFNode. */
export function readValue(lexer, type) {
  if (type in SINGLES) return SINGLES[type].read(lexer);
  if (type === 'MFString') {
    if (!lexer.take('[')) return [lexer.string()];
    const list = [];
    while (!lexer.take(']')) list.push(lexer.string());
    return list;
  }
  const { Type, size, isInteger } = LISTS[type];
  if (lexer.take('[')) return lexer.list(Type, size, isInteger);
  const single = new Type(size);
  for (let k = 0; k < size; ++k) single[k] = isInteger ? lexer.integer() : lexer.number();
  return single;
}

const NO_LISTS = { MFString: Object.freeze([]), MFNode: Object.freeze([]) };
for (const [name, { Type }] of Object.entries(LISTS)) NO_LISTS[name] = new Type();

/** What a field of a type holds that was given nothing: also that of an event before the first one. */
export function noValue(type) {
  return type in SINGLES ? SINGLES[type].none : NO_LISTS[type];
}
