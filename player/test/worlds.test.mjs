// Whole worlds, made by the program that ORVANE names: they load without a warning, and what a visitor does
// with the pointer does in them what it should.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { after, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { pointAt, popupsOf } from '../src/popups.js';
import { library } from '../src/scene/protos.js';
import { Scene } from '../src/scene/Scene.js';

const ROOT = fileURLToPath(new URL('../../', import.meta.url));
const ORVANE = process.env.ORVANE ?? `${ROOT}build/orvane`;
const UNIT = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

const folder = mkdtempSync(`${tmpdir()}/orvane-player-`);
after(() => rmSync(folder, { recursive: true }));

function load(text) {
  const scene = new Scene(library, { clock: () => scene.now });
  scene.now = 100;
  scene.load(text);
  assert.deepEqual(scene.warnings, []);
  scene.advance();
  return scene;
}

function chart(...words) {
  const data = words.map((word) => (word.endsWith('.csv') ? `${ROOT}examples/data/${word}` : word));
  const file = `${folder}/world.wrl`;
  execFileSync(ORVANE, ['chart', ...data, '-o', file], { stdio: ['ignore', 'ignore', 'inherit'] });
  return load(readFileSync(file, 'utf8'));
}

/** The pointer at a point of the frame of a group's children, along a ray that comes from +z. */
function point(scene, type, group, [x, y, z]) {
  const hit = { point: { x, y, z }, normal: { x: 0, y: 0, z: 1 }, path: [{ node: group, matrix: UNIT }] };
  return scene.pointer({ type, ray: { origin: { x, y, z: z + 10 }, direction: { x: 0, y: 0, z: -1 } }, hit });
}

const click = (scene, group) => ['down', 'up'].forEach((type) => point(scene, type, group, [0, 0, 0]));

/** The first node of a type that has the sensor among its children. */
function groupOf(scene, sensor) {
  const find = (nodes) => {
    for (const node of nodes) {
      const children = node.get('children') ?? [];
      const found = children.includes(sensor) ? node : find([...children, ...node.get('contents') ?? []]);
      if (found !== null) return found;
    }
    return null;
  };
  return find(scene.roots);
}

const CHARTS = {
  area: ['area', 'seattle-rain.csv'],
  column: ['column', 'seattle-rain.csv'],
  'rounded column': ['column', 'penguins.csv', '--grouped', '--style', 'rounded'],
  ribbon: ['ribbon', 'seattle-rain.csv'],
  'rounded ribbon': ['ribbon', 'us-jobs.csv', '--style', 'rounded'],
  density: ['density', 'penguin-bills.csv'],
  'column surface': ['column-surface', 'seattle-rain.csv', '--surface', 'seattle-rain-mean.csv'],
};
for (const [name, words] of Object.entries(CHARTS)) {
  test(`${name}: a click on a check box hides its part, another shows it`, () => {
    const scene = chart(...words);
    const isPart = (node) => node.typeName === 'qm4_ContentToggle';
    const box = [...scene.names.values()].find((node) => node.typeName === 'qm4_CheckBox');
    const parts = [...scene.names.values()].filter(isPart), shown = () => parts.map((part) => part.body[0].get('whichChoice'));
    assert.ok(parts.length > 0 && shown().every((choice) => choice === 0));
    click(scene, box.names.get('Box'));
    assert.equal(shown().filter((choice) => choice === -1).length, 1);
    assert.equal(box.names.get('Tick').get('whichChoice'), -1);
    click(scene, box.names.get('Box'));
    assert.ok(shown().every((choice) => choice === 0));
  });
}

test('popups: each value has its text, told once, and gone with the pointer', () => {
  const scene = chart('column', 'seattle-rain.csv'), told = [];
  const popups = popupsOf(scene, (value) => told.push(value));
  assert.deepEqual(popups.map(({ texts }) => texts.length), [12, 12, 12, 12]);
  for (const [at, index] of [[0, 0], [2.4, 2], [11, 11]]) {
    const group = popups[1].node.names.get('StripPointer');
    const strip = popups[1].node.body[0].get('children').find((node) => node.get('children')?.includes(group));
    point(scene, 'move', strip, [at, 0, 0]);
    assert.equal(told.at(-1).index, index);
    assert.equal(told.at(-1).text, popups[1].texts[index]);
    const panel = popups[1].node.names.get('Home').get('children').at(-1);
    const [place] = panel.get('choice'), [billboard] = place.get('children'), [frame] = billboard.get('children');
    const text = frame.get('children').at(-1).get('children')[0].get('geometry');
    assert.deepEqual(text.get('string'), popups[1].texts[index].split('\n'));
  }
  scene.pointer({ type: 'leave', ray: null, hit: null });
  assert.equal(told.at(-1), null);
});

test('popups of a surface: any value can be pointed at', () => {
  const scene = chart('surface', 'seattle-temperature.csv');
  let told;
  const [popup] = popupsOf(scene, (value) => { told = value; });
  scene.proximity(popup.node.names.get('Viewer'), {
    position: { x: 0, y: 50, z: 50 }, orientation: { x: 0, y: 0, z: 1, angle: 0 } });
  for (const index of [0, 77, popup.texts.length - 1]) {
    pointAt(popup, index);
    assert.equal(told.text, popup.texts[index]);
  }
  pointAt(popup, -1);
  assert.equal(told, null);
});

test('a slider takes the points along', () => {
  const scene = chart('scatter', 'world-health.csv', '--animate', 'slider');
  const slider = [...scene.names.values()].find(({ typeName }) => typeName === 'qm4_Slider');
  const drag = slider.names.get('Drag'), group = slider.body[0].get('children')[1];
  const moved = [];
  slider.field('value_changed').listen((value) => moved.push(value));
  assert.ok(group.get('children').includes(drag));
  const steps = slider.get('maxValue') - slider.get('minValue');
  point(scene, 'down', group, [0, 0, 0]);
  point(scene, 'move', group, [0.3, slider.get('length') / steps * 1.2, 0]);
  point(scene, 'up', group, [0.3, slider.get('length') / steps * 1.2, 0]);
  assert.deepEqual(moved, [slider.get('minValue') + 1]);
});

test('an animation moves the points with time', () => {
  const scene = chart('scatter', 'world-health.csv', '--loop', 'back-and-forth');
  const clock = scene.timeSensors[0], [points] = [...scene.names.values()]
    .filter(({ typeName }) => typeName === 'qm4_SphereCollection');
  assert.ok(scene.isAnimated);
  const start = scene.now;
  const at = (part) => {
    scene.advance(start + part * clock.get('cycleInterval'));
    return points.get('locations');
  };
  const first = at(0.25), second = at(0.3);
  assert.ok(first.length > 0 && first.length === second.length && first.some((value, n) => value !== second[n]));
});

test('slices pull out and a pie turns', () => {
  const scene = chart('pie', 'us-workforce.csv', '--style', 'ring', '--spin');
  const slice = scene.named('SLICE_DRAG_1'), place = scene.named('INNER_TRANS_1');
  const before = place.get('translation'), sliceGroup = groupOf(scene, slice);
  point(scene, 'down', sliceGroup, [1, 1, 0]);
  point(scene, 'move', sliceGroup, [1.5, 1.25, 0]);
  point(scene, 'up', sliceGroup, [1.5, 1.25, 0]);
  const after = place.get('translation');
  assert.ok(Math.hypot(after.x - before.x, after.y - before.y, after.z - before.z) > 0);
  const spin = scene.named('SPIN_AXIS'), turned = [];
  spin.field('rotation_changed').listen((turn) => turned.push(turn.angle));
  const spinGroup = groupOf(scene, spin);
  point(scene, 'down', spinGroup, [0, 0, 2]);
  point(scene, 'move', spinGroup, [1, 0, Math.sqrt(3)]);
  assert.ok(Math.abs(turned.at(-1) - Math.PI / 6) < 1e-6);
});

test('a clicked cone opens its link', () => {
  const scene = load(`#VRML V2.0 utf8
    DEF C qm4_ConeCollection { coneLocations [ 0 0 0, 5 0 0 ] description "More" }
    DEF R qm4_Router { urls [ "a.wrl" "b.wrl" ] baseUrl "deep/" parameter "target=x" }
    ROUTE C.mouseClickedIndex TO R.set_linkIndex`);
  const links = [], words = [];
  scene.listen('link', (link) => links.push(link));
  scene.listen('description', (text) => words.push(text));
  const [cones] = scene.named('C').body;
  for (const type of ['move', 'down', 'up']) point(scene, type, cones, [4, 0.1, 0]);
  scene.pointer({ type: 'leave', ray: null, hit: null });
  assert.deepEqual(links, [{ urls: ['deep/b.wrl'], parameters: ['target=x'] }]);
  assert.deepEqual(words, ['More', '']);
});
