// Reads the Scripts out of the assembled PROTO files, and runs one as a browser would: its stores hold
// the values of an instance, and what it sends is there to be looked at. The environment variable
// ORVANE_PROTO_DIR names the folder of the files.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import vm from 'node:vm';

class SFVec3f {
  constructor(x = 0, y = 0, z = 0) { Object.assign(this, { x, y, z }); }

  add(v) { return new SFVec3f(this.x + v.x, this.y + v.y, this.z + v.z); }

  subtract(v) { return this.add(v.multiply(-1)); }

  multiply(k) { return new SFVec3f(k * this.x, k * this.y, k * this.z); }

  length() { return Math.hypot(this.x, this.y, this.z); }

  normalize() { return this.multiply(1 / this.length()); }

  dot(v) { return this.x * v.x + this.y * v.y + this.z * v.z; }

  cross(v) {
    return new SFVec3f(this.y * v.z - this.z * v.y, this.z * v.x - this.x * v.z, this.x * v.y - this.y * v.x);
  }
}

function list(...values) { return values; }
const TYPES = {
  SFVec3f, SFVec2f: SFVec3f, SFColor: SFVec3f, MFVec3f: list, MFInt32: list, MFFloat: list, MFString: list,
  MFNode: list, MFColor: list,
};

// Names that every Script knows (ISO/IEC 14772-1, annex C).
export const GLOBALS = ['Browser', 'SFRotation', ...Object.keys(TYPES)];

function parse(type, text) {
  const words = text.replace(/[[\],]/g, ' ').trim().split(/\s+/).filter(Boolean);
  const values = words.map((word) => ({ TRUE: true, FALSE: false, NULL: null })[word] ?? (Number(word) || 0));
  if (type === 'SFString') return text.trim().slice(1, -1);
  if (type === 'SFRotation') return { multVec: (v) => v }; // No test turns anything.
  return type.startsWith('MF') ? values : values.length > 1 ? new SFVec3f(...values) : values[0];
}

// The Scripts of all files: { proto, name, code, declared, defaults }. `declared` is the text between the
// Script's brace and its url, `defaults` the text of the PROTO's interface.
export function readScripts() {
  return ['VR_GRAPH', 'VR_NAV', 'VR_UI'].flatMap((file) => {
    const world = readFileSync(join(process.env.ORVANE_PROTO_DIR, `${file}.wrl`), 'utf8');
    return world.split(/^PROTO qm4_/m).slice(1).flatMap((body) => {
      const [, proto, defaults] = body.match(/^(\w+) \[\n([^]*?)\n\] \{/);
      return [...body.matchAll(/(?:DEF (\w+) )?Script \{\n([^]*?) url "javascript:((?:[^"\\]|\\.)*)"/g)]
        .map(([, name, declared, code]) => (
          { proto, name, declared, defaults, code: code.replace(/\\(.)/g, '$1') }));
    });
  });
}

// Runs the Script of a PROTO with the given values of its interface, up to the end of initialize().
// `nodes` stand for those outside the Script that it uses. Gives its scope: stores, what it sent, its
// functions.
export function run(script, given = {}, nodes = {}) {
  const values = {};
  for (const [, type, name, text] of script.defaults.matchAll(/^ +(?:exposedF|f)ield (\w+) (\w+) (.*)$/gm)) {
    values[name] = given[name] ?? parse(type, text);
  }
  const scope = vm.createContext({ ...TYPES, ...nodes });
  for (const [, name, fields] of script.declared.matchAll(/field SFNode (\w+) (?:DEF \w+ )?\w+ \{([^}]*)\}/g)) {
    scope[name] = Object.fromEntries(
      [...fields.matchAll(/(\w+) IS (\w+)/g)].map(([, field, source]) => [field, values[source]]));
  }
  for (const [, type, name] of script.declared.matchAll(/^ *eventOut (\w+) (\w+)/gm)) {
    scope[name] = type.startsWith('MF') ? [] : undefined;
  }
  vm.runInContext(script.code, scope);
  scope.initialize?.();
  return scope;
}
