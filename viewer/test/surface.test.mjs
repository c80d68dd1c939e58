// Surface, combination and density charts in a real browser and by real pointer input.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import {
  ASIDE, assertDrawn, assertLike, assertNear, assertPopsUp, assertRedraws, assertToggles,
  assertUnlike, open, serve, shows, view,
} from './worlds.mjs';

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

const PENGUINS = readFileSync(new URL('../../examples/data/penguin-bills.csv', import.meta.url));

serve({
  files: {
    'grid.csv': GRID, 'large.csv': LARGE, 'table.csv': TABLE, 'plan.csv': PLAN,
    'bills.csv': PENGUINS, 'below.json': JSON.stringify(BELOW),
  },
  charts: {
    'surface.wrl': 'chart surface grid.csv',
    'large.wrl': 'chart surface large.csv',
    'columns.wrl': 'chart column-surface table.csv --surface plan.csv',
    'ribbons.wrl': 'chart ribbon-surface table.csv --surface plan.csv',
    'density.wrl': 'chart density bills.csv',
    'below.wrl': 'build below.json',
  },
});

const POPUPS = 'qm4_PopupSurface';

// Where in the window a lattice point is, counted from 0, or a place between points; `side` is 1
// for the sheet above it and -1 for the one below.
async function pointAt(x, z, side = 1) {
  const [columns, dx, dz, depth, heights] = await Promise.all(
    ['xDimension', 'xSpacing', 'zSpacing', 'popupDepth', 'height'].map((field) => (
      view.read(POPUPS, field))));
  const [i, k] = [Math.min(columns - 2, Math.floor(x)), Math.floor(z - 0.001 * (z > 0))];
  const along = (n) => heights[n] + (x - i) * (heights[n + 1] - heights[n]);
  const [back, front] = [k, k + 1].map((row) => along(row * columns + i));
  return view.at(POPUPS, [x * dx, back + (z - k) * (front - back) + side * depth, z * dz]);
}

for (const [world, side, points, elsewhere = () => ASIDE] of [
  ['surface.wrl', 1, [
    [0.1, 1.9, 'south, west\nHeight: 12'],
    [1, 1.9, 'south, middle\nHeight: 15'],
    [1, 1.1, 'centre, middle\nHeight: 17'],
    [2.2, 1.1, 'centre, east\nHeight: 17'],
    [2.9, 0.9, 'centre, sea\nHeight: 10'],
  ]],
  ['large.wrl', 1, [[30, 30], [31, 30], [31, 29], [10, 10]].map(([x, z]) => (
    [x, z, `r${z}, c${x}\n`]))],
  // Elsewhere is a point without a text.
  ['below.wrl', -1, [[0.1, 0.9, 'left'], [1, 0.9, 'middle'], [1.1, 0.1, 'low']],
    () => pointAt(2, 0.9, -1)],
]) {
  test(`a popup over ${world} shows the text under the pointer, follows it and goes`, async () => {
    await open(world);
    const before = await view.screenshot();
    for (const [x, z, text] of points) {
      await assertPopsUp(await pointAt(x, z, side), text);
      await assertUnlike(before, `nothing to see of the popup "${text}"`);
    }
    await view.move(await elsewhere());
    for (const [, , text] of points) assert.equal(await shows(text), false, `"${text}" has stayed`);
    await assertLike(before);
  });
}

test('a popup follows a pointer that is quick enough to come upon it', async () => {
  await open('surface.wrl');
  await assertPopsUp(await pointAt(1.55, 1.8), 'south, east');
  const panel = await view.at([POPUPS, 'Billboard', 'Text']);
  await view.page.mouse.move(panel.x, panel.y);
  await view.still();
  const behind = (await view.texts()).slice(-2);
  assert.match(behind.join(), /^centre, middle,Height: 17$/);

  // The panel has given way: here the surface itself answers.
  await view.move({ x: panel.x, y: panel.y + 1 });
  assert.deepEqual((await view.texts()).slice(-2), behind);
});

const SURFACE = ['SURFACE_1', 'qm4_Surface'];

test('new heights draw the surface and its wires anew, a check box takes both away', async () => {
  await open('surface.wrl');
  for (const path of [SURFACE, ['SURFACE_1', 'qm4_ElevationWireframe']]) {
    await assertRedraws(path, 'height');
    await assertToggles('CHECK_BOX_1', path);
  }
});

test('of hundreds of columns some have a wire, the first and the last among them', async () => {
  await open('surface.wrl');
  const wires = ['SURFACE_1', 'qm4_ElevationWireframe'];
  await view.send(wires, 'xDimension', 300);
  const index = await view.read([...wires, 'IndexedLineSet'], 'coordIndex');
  const lines = index.join().split(',-1').map((line) => line.match(/\d+/g)?.map(Number) ?? []);
  const columns = lines.slice(3).filter((line) => line.length).map(([start]) => start);
  assert.deepEqual(columns, [...Array(100).keys()].map((i) => 3 * i).concat(299));
});

for (const [world, box, series] of [
  ['columns.wrl', 'CHECK_BOX_1_3', ['SERIES_TOGGLE_1_3', 'qm4_OutlinedColumnSeries']],
  ['ribbons.wrl', 'CHECK_BOX_3', ['SERIES_TOGGLE_3', 'qm4_OutlinedRibbonSeries']],
]) {
  test(`surface and series of ${world} go with boxes of their own`, async () => {
    await open(world);
    await assertToggles('CHECK_BOX_4', SURFACE, [series]);
    await assertToggles(box, series, [SURFACE]);
  });
}

test('a density chart has a hill for each group, and a check box takes one away', async () => {
  await open('density.wrl');
  await assertDrawn();
  const hills = [1, 2, 3].map((i) => [`SURFACE_${i}`, 'ElevationGrid']);
  const tops = await Promise.all(hills.map(async (hill) => (
    Math.max(...await view.read(hill, 'height')))));
  assertNear(tops, [4.5, 4.5, 4.5], 1e-3, 'tops of the hills, at 100 %');
  await assertToggles('CHECK_BOX_2', hills[1], [hills[0], hills[2]]);
});
