// The scene: events and their order, scripts, clocks, interpolators, sensors and binding.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Library } from '../src/scene/Library.js';
import { library } from '../src/scene/protos.js';
import { Scene } from '../src/scene/Scene.js';

const UNIT = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];
const V = (x, y, z) => ({ x, y, z });

function load(text, { from = library, time = 0 } = {}) {
  const scene = new Scene(from, { clock: () => scene.now });
  scene.now = time;
  scene.load(`#VRML V2.0 utf8\n${text}`);
  assert.deepEqual(scene.warnings, []);
  return scene;
}

/** A log of what fields send: load's scene, then "name.field" each. */
function follow(scene, ...fields) {
  const log = [];
  for (const path of fields) {
    const [name, field] = path.split('.');
    scene.named(name).field(field).listen((value) => log.push([path, value]));
  }
  return log;
}

const near = (value, ...numbers) => {
  const given = typeof value === 'number' ? [value] : Object.values(value);
  assert.equal(given.length, numbers.length);
  given.forEach((part, n) => assert.ok(Math.abs(part - numbers[n]) < 1e-6, `${given} is not ${numbers}`));
};

test('every PROTO starts without a fault, with its default fields', () => {
  const names = Object.keys(library.texts);
  assert.ok(names.length >= 20);
  for (const name of names) {
    const scene = load(`DEF P ${name} { }`);
    assert.equal(scene.scripts.length, 0);
    for (const field of scene.named('P').type.fields.values()) {
      if (field.access === 'exposedField') scene.set(scene.named('P'), field.name, scene.named('P').get(field.name));
    }
    assert.deepEqual(scene.warnings, [], name);
  }
});

test('a loop of ROUTEs sends one event each, and the next event goes round again', () => {
  const scene = load(`DEF A Switch { } DEF B Switch { } DEF C Switch { }
    ROUTE A.whichChoice TO B.whichChoice ROUTE B.whichChoice TO C.whichChoice ROUTE C.whichChoice TO A.whichChoice`);
  const log = follow(scene, 'C.whichChoice');
  scene.set(scene.named('A'), 'whichChoice', 3);
  scene.set(scene.named('B'), 'whichChoice', 4);
  assert.deepEqual(log, [['C.whichChoice', 3], ['C.whichChoice', 4]]);
  assert.equal(scene.named('A').get('whichChoice'), 4);
});

const COUNTER = new Library({
  Counter: `[ eventIn SFInt32 a eventIn SFInt32 b eventOut SFInt32 sum eventOut SFInt32 calls
      field MFVec3f points [ 1 2 3, 4 5 6 ] field SFNode keep NULL ] {
    DEF S Script { directOutput TRUE eventIn SFInt32 a IS a eventIn SFInt32 b IS b eventOut SFInt32 sum IS sum
      eventOut SFInt32 calls IS calls field MFVec3f points IS points field SFNode keep IS keep url "S" } }`,
}, {
  S: (host, browser) => {
    let sum = 0, calls = 0;
    const put = (value) => {
      sum += value;
      host.send('sum', -1);
      host.send('sum', sum);
      if (value === 9) throw new Error('nine');
      if (value === 8) {
        const points = host.get('points'), [made] = browser.createVrmlFromString('Coordinate { }');
        made.point = points;
        const { keep } = { keep: host.get('keep') };
        keep.translation = points[1].add(points[0]);
        keep.addChildren = browser.createVrmlFromString(`Transform { scale ${points[0]} }`);
      }
    };
    return { a: put, b: put, eventsProcessed: () => host.send('calls', ++calls) };
  },
});

test('a script sends the last value of each function, and ends with eventsProcessed', () => {
  const scene = load(`DEF C Counter { } DEF A Switch { } ROUTE A.whichChoice TO C.a ROUTE A.whichChoice TO C.b`,
    { from: COUNTER });
  const log = follow(scene, 'C.sum', 'C.calls');
  scene.set(scene.named('A'), 'whichChoice', 5);
  assert.deepEqual(log, [['C.sum', 10], ['C.calls', 1]]);
});

test('a script reaches into nodes and makes new ones; its fault is a warning and stops nothing else', () => {
  const scene = load('DEF C Counter { keep DEF T Transform { } }', { from: COUNTER });
  scene.set(scene.named('C'), 'a', 8);
  near(scene.named('T').get('translation'), 5, 7, 9);
  near(scene.named('T').get('children')[0].get('scale'), 1, 2, 3);
  scene.set(scene.named('C'), 'a', 9);
  assert.match(scene.warnings[0], /nine/);
  scene.set(scene.named('C'), 'a', 1);
  assert.equal(scene.named('C').get('sum'), 18);
});

test('arrays go along ROUTEs and into PROTO bodies by reference', () => {
  const scene = load(`DEF I CoordinateInterpolator { } DEF P qm4_SphereCollection { }
    ROUTE I.value_changed TO P.set_locations`);
  const points = new Float32Array(3000), spheres = scene.named('P').body[0].get('children')[0].get('geometry');
  scene.act(() => scene.events.send(scene.named('I').field('value_changed'), points));
  assert.equal(spheres.get('center'), points);
});

const CLOCK = 'DEF T TimeSensor { cycleInterval 4 startTime 10 ';
const CLOCKS = {
  'one cycle': [`${CLOCK} }`, [9, 10, 11, 14, 15], [0, 0.25, 1], [true, false]],
  'a loop': [`${CLOCK} loop TRUE }`, [11, 14, 15], [0.25, 1, 0.25], [true]],
  'a stop': [`${CLOCK} loop TRUE stopTime 13 }`, [11, 12, 16, 17], [0.25, 0.5, 0.75], [true, false]],
  'disabled': [`${CLOCK} enabled FALSE }`, [11], [], []],
};
for (const [name, [text, times, fractions, activity]] of Object.entries(CLOCKS)) {
  test(`clock: ${name}`, () => {
    const scene = load(text), said = follow(scene, 'T.fraction_changed'), active = follow(scene, 'T.isActive');
    for (const time of times) scene.advance(time);
    assert.deepEqual(said.map(([, value]) => value), fractions);
    assert.deepEqual(active.map(([, value]) => value), activity);
  });
}

const INTERPOLATORS = {
  ScalarInterpolator: ['keyValue [ 1 3 7 ]', [5]],
  PositionInterpolator: ['keyValue [ 0 0 0, 2 0 0, 4 8 0 ]', [3, 4, 0]],
  CoordinateInterpolator: ['keyValue [ 0 0 0, 1 1 1, 2 0 0, 1 1 1, 4 8 0, 3 3 3 ]', [3, 4, 0, 2, 2, 2]],
  ColorInterpolator: ['keyValue [ 0 0 0, 1 0 0, 0 0 1 ]', [1, 0, 1]],
  OrientationInterpolator: ['keyValue [ 0 1 0 0, 0 1 0 1, 0 1 0 2 ]', [0, 1, 0, 1.5]],
};
for (const [type, [values, result]] of Object.entries(INTERPOLATORS)) {
  test(`${type} half way in its second part`, () => {
    const scene = load(`DEF I ${type} { key [ 0 0.5 1 ] ${values} }`);
    scene.set(scene.named('I'), 'set_fraction', 0.75);
    near(scene.named('I').get('value_changed'), ...result);
  });
}

/** The pointer over a shape in the group called G, at a point that is seen along -z unless stated. */
function pointer(scene, type, at, along = V(0, 0, -1), isHit = true) {
  const origin = V(at.x - 10 * along.x, at.y - 10 * along.y, at.z - 10 * along.z);
  const hit = { point: at, normal: V(0, 0, 1), path: [{ node: scene.named('G'), matrix: scene.matrix ?? UNIT }] };
  return scene.pointer({ type, ray: { origin, direction: along }, hit: isHit ? hit : null });
}

test('a TouchSensor tells over, hits in its own frame and clicks that end where they began', () => {
  const scene = load('DEF G Group { children DEF T TouchSensor { } }', { time: 5 });
  scene.matrix = [0, 2, 0, 0, -2, 0, 0, 0, 0, 0, 2, 0, 1, 0, 0, 1];
  const log = follow(scene, 'T.isOver', 'T.isActive', 'T.touchTime');
  pointer(scene, 'move', V(1, 4, 6));
  near(scene.named('T').get('hitPoint_changed'), 2, 0, 3);
  pointer(scene, 'down', V(1, 4, 6));
  pointer(scene, 'up', V(1, 4, 6));
  pointer(scene, 'down', V(1, 4, 6));
  pointer(scene, 'move', V(1, 4, 6), undefined, false);
  pointer(scene, 'up', V(1, 4, 6), undefined, false);
  assert.deepEqual(log.map(([path, value]) => `${path.slice(2)} ${value}`), [
    'isOver true', 'isActive true', 'isActive false', 'touchTime 5',
    'isActive true', 'isOver false', 'isActive false']);
});

const DRAGS = {
  'PlaneSensor keeps to its range': ['PlaneSensor { maxPosition 2 0 minPosition 0 0 offset 1 5 0 }',
    [V(0, 0, 0), V(3, 4, 0)], 'translation_changed', [2, 0, 0]],
  'PlaneSensor without one': ['PlaneSensor { offset 1 5 0 }',
    [V(1, 1, 2), V(3, 4, 2)], 'translation_changed', [3, 8, 0]],
  'CylinderSensor turns with its side': ['CylinderSensor { offset 1 }',
    [V(0, 0, 2), V(2 * Math.sin(0.5), 1, 2 * Math.cos(0.5))], 'rotation_changed', [0, 1, 0, 1.5]],
  'CylinderSensor keeps to its range': ['CylinderSensor { minAngle -1 maxAngle 0.2 }',
    [V(0, 0, 2), V(2 * Math.sin(0.5), 0, 2 * Math.cos(0.5))], 'rotation_changed', [0, 1, 0, 0.2]],
  'CylinderSensor turns like a disk': ['CylinderSensor { }',
    [V(0, 1, 2), V(2, 1, 0)], 'rotation_changed', [0, 1, 0, Math.PI / 2], V(0, -1, 0)],
  'SphereSensor': ['SphereSensor { }',
    [V(0, 0, 2), V(0, 2 * Math.sin(0.5), 2 * Math.cos(0.5))], 'rotation_changed', [-1, 0, 0, 0.5]],
};
for (const [name, [sensor, [from, to], output, result, along]] of Object.entries(DRAGS)) {
  test(`drag: ${name}`, () => {
    const scene = load(`DEF G Group { children DEF S ${sensor} }`);
    assert.equal(pointer(scene, 'move', from, along), false);
    assert.equal(pointer(scene, 'down', from, along), true);
    pointer(scene, 'move', to, along, false);
    near(scene.named('S').get(output), ...result);
    assert.equal(pointer(scene, 'up', to, along), false);
    near(scene.named('S').get('offset'), ...(sensor.startsWith('C') ? result.slice(3) : result));
  });
}

test('a ProximitySensor tells when the viewer comes, moves and goes', () => {
  const scene = load('DEF P ProximitySensor { size 2 2 2 center 5 0 0 }');
  const log = follow(scene, 'P.isActive', 'P.position_changed');
  const turn = { x: 0, y: 0, z: 1, angle: 0 };
  for (const x of [0, 4.5, 4.5, 5, 7]) scene.proximity(scene.named('P'), { position: V(x, 0, 0), orientation: turn });
  assert.deepEqual(log.map(([, value]) => value.x ?? value), [true, 4.5, 5, false]);
});

test('the first Viewpoint is bound, another takes its place and gives it back', () => {
  const scene = load('DEF A Viewpoint { } DEF B Viewpoint { }'), log = follow(scene, 'A.isBound', 'B.isBound');
  scene.bind(scene.named('B'));
  assert.equal(scene.bound('Viewpoint').name, 'B');
  scene.set(scene.named('B'), 'set_bind', false);
  assert.equal(scene.bound('Viewpoint').name, 'A');
  assert.deepEqual(log, [['A.isBound', false], ['B.isBound', true], ['B.isBound', false], ['A.isBound', true]]);
});

test('an Anchor links when a click ends on it', () => {
  const scene = load('DEF G Anchor { url "#next" parameter "target=x" children Group { } }'), links = [];
  scene.listen('link', (link) => links.push(link));
  for (const type of ['down', 'up']) pointer(scene, type, V(0, 0, 0));
  assert.deepEqual(links, [{ urls: ['#next'], parameters: ['target=x'] }]);
});
