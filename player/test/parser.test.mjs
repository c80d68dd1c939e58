// The parser: faults with their place, values of all types, what is left out by name.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { library } from '../src/scene/protos.js';
import { nodeTypes } from '../src/scene/nodeTypes.js';
import { Parser } from '../src/vrml/Parser.js';

const parse = (text, warnings = []) => (
  new Parser(`#VRML V2.0 utf8\n${text}`, nodeTypes, library, (warning) => warnings.push(warning)).world());

const FAULTS = {
  'a field of another node': ['Group {\n  radius 1 }', 3, 3, /Group has no field "radius"/],
  'a name for a number': ['Sphere { radius big }', 2, 17, /A number is expected, not "big"/],
  'a number with a letter': ['Sphere { radius 1.5x }', 2, 17, /A number is expected, not "1.5x"/],
  'a fraction for a whole number': ['Switch { whichChoice 1.5 }', 2, 22, /whole number.*not "1.5"/],
  'a number for TRUE': ['Shape { geometry Text { } }\nNavigationInfo { headlight 1 }', 3, 28, /TRUE or FALSE/],
  'two numbers of three': ['Coordinate { point [ 1 2 3 4 5 ] }', 2, 21, /3 numbers an entry, and has 5/],
  'an open list': ['Coordinate { point [ 1 2 3', 2, 21, /"\]" is missing/],
  'an open node': ['Group { children [ ]', 2, 21, /"}" is expected, not the end of the text/],
  'an open text': ['WorldInfo { title "open }', 2, 19, /no closing quote/],
  'USE before DEF': ['USE A DEF A Group { }', 2, 1, /called "A"/],
  'USE across a PROTO': ['DEF A Group { } PROTO P [ ] { USE A }', 2, 31, /called "A"/],
  'a ROUTE from nowhere': ['DEF A Group { } ROUTE B.children TO A.children', 2, 23, /called "B"/],
  'a ROUTE between types': ['DEF A Group { } DEF B Switch { }\nROUTE B.whichChoice TO A.children', 3, 6, /SFInt32 to an MFNode/],
  'a ROUTE from an event in': ['DEF A Group { }\nROUTE A.addChildren TO A.children', 3, 7, /cannot start at/],
  'a value for an event': ['TouchSensor { isOver TRUE }', 2, 15, /is an event and has no value/],
  'IS of another type': ['PROTO P [ field SFFloat x 1 ] { Box { size IS x } }', 2, 46, /x is of type SFFloat/],
};
for (const [name, [text, line, column, message]] of Object.entries(FAULTS)) {
  test(`fault: ${name}`, () => {
    assert.throws(() => parse(text), (error) => {
      assert.match(error.message, message);
      assert.deepEqual([error.line, error.column], [line, column]);
      return true;
    });
  });
}

test('a text without the header is no world', () => {
  assert.throws(() => new Parser('#X3D V4.0 utf8\n', nodeTypes).world(), /not VRML97/);
});

const VALUES = {
  'commas and comments': ['Coordinate { point [ 1,2 3, # four\n -4 +.5e1 6. ] }', 'point', Float32Array.of(1, 2, 3, -4, 5, 6)],
  'one entry without brackets': ['IndexedLineSet { coordIndex 0x10 }', 'coordIndex', Int32Array.of(16)],
  'more digits than a double holds': ['Sphere { radius 0.1234567890123456789 }', 'radius', 0.12345678901234568],
  'quotes and backslashes': ['WorldInfo { title "a \\"b\\" \\\\" }', 'title', 'a "b" \\'],
  'an image': ['PixelTexture { image 1 2 3 0xFF0080 255 }', 'image',
    { width: 1, height: 2, components: 3, pixels: Uint8Array.of(255, 0, 128, 0, 0, 255) }],
};
for (const [name, [text, field, value]] of Object.entries(VALUES)) {
  test(`value: ${name}`, () => assert.deepEqual(parse(text).nodes[0].fields[field], value));
}

test('what is not played is named, once a type, and left out with all that refers to it', () => {
  const warnings = [];
  const { nodes, routes } = parse(`
    EXTERNPROTO qm4_Legend [ ] "other/place.wrl#qm4_Legend"
    EXTERNPROTO Other [ eventIn SFBool go ] "http://example.org/o.wrl#Other"
    Group { children [ Sound { source DEF Clip AudioClip { url "}" } } DEF O Other { } Sound { } qm4_Legend { } ] }
    DEF T TouchSensor { } ROUTE T.isOver TO O.go Group { children USE Clip }`, warnings);
  assert.deepEqual(nodes[0].fields.children.map(({ type }) => type.name), ['qm4_Legend']);
  assert.deepEqual([nodes[2].fields.children, routes], [[], []]);
  assert.deepEqual(warnings.map((warning) => warning.match(/^Line (\d+).*(Sound|Other)/).slice(1)),
    [['4', 'Other'], ['5', 'Sound'], ['5', 'Other']]);
});

test('a PROTO of a compiled-in name has the compiled-in body; another has its own', () => {
  const { nodes } = parse(`PROTO qm4_CheckBox [ field SFBool isOn TRUE ] { Group { none [ of this ] } }
    PROTO Mine [ field SFFloat r 2 ] { Sphere { radius IS r } } qm4_CheckBox { isOn FALSE } Mine { r 3 }`);
  assert.equal(nodes[0].type, library.get('qm4_CheckBox'));
  assert.deepEqual(nodes[1].type.body.nodes[0].is, { radius: 'r' });
});
