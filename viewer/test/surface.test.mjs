// Surface and combination charts in a real browser and by real pointer input.
//
// The environment variable ORVANE names the program.

import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { after, afterEach, before, describe, test } from 'node:test';
import { promisify } from 'node:util';
import { launch, openPage } from '../browser.mjs';
import { startViewer } from '../server.mjs';

const GRID = `Height,west,middle,east,sea
north,10,14,18,11
centre,13,17,17,10
south,12,15,13,9
`;
const TABLE = `Quarter,North,Middle,South
Spring,40,20,12
Summer,55,31,9
Autumn,70,24,14
Winter,61,22,8
`;
const PLAN = TABLE.replace('Quarter', 'Plan');

// More points each way than the popups have cells.
const RANGE = [...Array(40).keys()];
const LARGE = [
  `Height,${RANGE.map((i) => `c${i}`)}`,
  ...RANGE.map((k) => `r${k},${RANGE.map((i) => 3 + Math.sin(i / 9) * Math.cos(k / 7))}`),
].join('\n');

// A surface that rises towards the viewer, who sees it from below.
const BELOW = {
  chart: 'SurfaceGraph',
  GridProps: { XAxisCellCount: 3, ZAxisCellCount: 2 },
  SurfaceCount: 1,
  GetSurface: [1, {
    Set1HeightPoint: [
      [1, 1, 2, ''], [2, 1, 2, 'low'], [3, 1, 2, ''],
      [1, 2, 6, 'left'], [2, 2, 6, 'middle'], [3, 2, 6, ''],
    ],
    PopupProps: { UsePopups: true },
  }],
  Viewpoints: { AddViewpoint: [{ description: 'Below', position: [4, 1, 24] }] },
};

// A place of the window where the charts show nothing but background.
const ASIDE = { x: 30, y: 100 };

// The least share of the picture that a visible change takes up, and the most that rounding leaves
// between two pictures of one scene.
const SEEN = 0.002;
const SAME = 0.0005;

const POPUPS = 'qm4_PopupSurface';

let folder;
let server;
let browser;
let view;

before(async () => {
  assert.ok(process.env.ORVANE, 'Set ORVANE to the path of the orvane program.');
  folder = await mkdtemp(join(tmpdir(), 'viewer-'));
  const orvane = (...args) => (
    promisify(execFile)(resolve(process.env.ORVANE), args, { cwd: folder })
  );
  for (const [name, text] of Object.entries({
    'grid.csv': GRID, 'large.csv': LARGE, 'table.csv': TABLE, 'plan.csv': PLAN,
    'below.json': JSON.stringify(BELOW),
  })) await writeFile(join(folder, name), text);
  await orvane('chart', 'surface', 'grid.csv', '-o', 'surface.wrl');
  await orvane('chart', 'surface', 'large.csv', '-o', 'large.wrl');
  for (const kind of ['column', 'ribbon']) {
    const out = `${kind}s.wrl`;
    await orvane('chart', `${kind}-surface`, 'table.csv', '--surface', 'plan.csv', '-o', out);
  }
  await orvane('build', 'below.json', '-o', 'below.wrl');
  server = await startViewer(folder);
  browser = await launch();
});

after(async () => {
  await browser?.close();
  await server?.close();
  if (folder) await rm(folder, { recursive: true });
});

async function open(world) {
  view = await openPage(browser, server.url, world);
  await view.ready();
  assert.equal(await view.trouble(), '');
}

afterEach(async () => {
  const complaints = view?.complaints;
  await view?.close();
  view = undefined;
  assert.deepEqual(complaints ?? [], [], 'the browser complains');
});

const changed = async (before) => view.changedShare(before, await view.screenshot());
const shown = async (text) => (await view.texts()).join('\n').includes(text);

// Where in the window a lattice point is, counted from 0, or a place between points; `side` is 1
// for the sheet above it and -1 for the one below.
async function pointAt(x, z, side = 1) {
  const [columns, dx, dz, depth, heights] = await Promise.all(
    ['xDimension', 'xSpacing', 'zSpacing', 'popupDepth', 'height'].map((field) => (
      view.read(POPUPS, field))));
  const [i, k] = [Math.min(columns - 2, Math.floor(x)), Math.floor(z - 0.001 * (z > 0))];
  const along = (n) => heights[n] + (x - i) * (heights[n + 1] - heights[n]);
  const height = along(k * columns + i) + (z - k) * (along((k + 1) * columns + i) - along(k * columns + i));
  return view.at(POPUPS, [x * dx, height + side * depth, z * dz]);
}

test('a popup shows the text of the point under the pointer, follows it and goes', async () => {
  await open('surface.wrl');
  await view.move(ASIDE);
  const before = await view.screenshot();
  for (const [x, z, text] of [
    [0.1, 1.9, 'south, west\nHeight: 12'],
    [1, 1.9, 'south, middle\nHeight: 15'],
    [1, 1.1, 'centre, middle\nHeight: 17'],
    [2.2, 1.1, 'centre, east\nHeight: 17'],
    [2.9, 0.9, 'centre, sea\nHeight: 10'],
  ]) {
    await view.move(await pointAt(x, z));
    assert.ok(await shown(text), `no popup "${text}" among ${await view.texts()}`);
    assert.ok((await changed(before)) > SEEN, `nothing to see of the popup "${text}"`);
  }
  await view.move(ASIDE);
  assert.equal(await shown('Height: '), false, 'a popup has stayed');
  assert.ok((await changed(before)) < SAME, 'the picture is not what it was');
});

test('a popup tells the points of a large surface apart', async () => {
  await open('large.wrl');
  for (const [x, z] of [[30, 30], [31, 30], [31, 29], [10, 10]]) {
    await view.move(await pointAt(x, z));
    assert.ok(await shown(`r${z}, c${x}\n`), `no r${z}, c${x} among ${await view.texts()}`);
  }
});

test('a popup follows a pointer that is quick enough to come upon it', async () => {
  await open('surface.wrl');
  await view.move(await pointAt(1.55, 1.8));
  assert.ok(await shown('south, east'));
  const panel = await view.at([POPUPS, 'Billboard', 'Text']);
  await view.page.mouse.move(panel.x, panel.y);
  await view.still();
  const behind = (await view.texts()).slice(-2);
  assert.match(behind.join(), /^centre, middle,Height: 17$/);

  // The panel has given way: here the surface itself answers.
  await view.move({ x: panel.x, y: panel.y + 1 });
  assert.deepEqual((await view.texts()).slice(-2), behind);
});

test('a popup answers from below too', async () => {
  await open('below.wrl');
  for (const [x, z, text] of [[0.1, 0.9, 'left'], [1, 0.9, 'middle'], [1.1, 0.1, 'low']]) {
    await view.move(await pointAt(x, z, -1));
    assert.ok(await shown(text), `no popup "${text}" among ${await view.texts()}`);
  }
  await view.move(await pointAt(2, 0.9, -1));
  assert.equal((await view.texts()).includes('middle'), false, 'a point without a text has one');
});

test('new heights draw the surface and its wires anew', async () => {
  await open('surface.wrl');
  await view.move(ASIDE);
  const whole = await view.screenshot();
  for (const shape of ['qm4_Surface', 'qm4_ElevationWireframe']) {
    const path = ['SURFACE_1', shape];
    const heights = await view.read(path, 'height');
    await view.send(path, 'height', heights.map((height) => 0.3 * height));
    assert.ok((await changed(whole)) > SEEN, `the picture is the same with another ${shape}`);
    await view.send(path, 'height', heights);
    assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
  }
});

describe('a toggle', () => {
  const surface = ['SURFACE_1', 'qm4_Surface'];
  for (const [world, box, path, others] of [
    ['surface.wrl', 'CHECK_BOX_1', surface, []],
    ['columns.wrl', 'CHECK_BOX_4', surface, [['SERIES_TOGGLE_1_3', 'qm4_OutlinedColumnSeries']]],
    ['columns.wrl', 'CHECK_BOX_1_3', ['SERIES_TOGGLE_1_3', 'qm4_OutlinedColumnSeries'], [surface]],
    ['ribbons.wrl', 'CHECK_BOX_4', surface, [['SERIES_TOGGLE_3', 'qm4_OutlinedRibbonSeries']]],
    ['ribbons.wrl', 'CHECK_BOX_3', ['SERIES_TOGGLE_3', 'qm4_OutlinedRibbonSeries'], [surface]],
  ]) {
    test(`${box} of ${world} takes ${path[0]} away, alone, and brings it back`, async () => {
      await open(world);
      const place = await view.at(box);
      await view.move(ASIDE);
      const whole = await view.screenshot();
      assert.ok(await view.isDrawn(path));

      await view.click(place);
      await view.move(ASIDE);
      assert.equal(await view.isDrawn(path), false);
      for (const other of others) assert.ok(await view.isDrawn(other), `${other[0]} is gone too`);
      assert.ok((await changed(whole)) > SEEN, 'the picture is the same');

      await view.click(place);
      await view.move(ASIDE);
      assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
    });
  }
});
