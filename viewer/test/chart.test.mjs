// Charts made by the command-line program, in a real browser and by real pointer input.
//
// The environment variable ORVANE names the program.

import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { copyFile, mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { after, afterEach, before, describe, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';
import { launch, openPage } from '../browser.mjs';
import { startViewer } from '../server.mjs';

// The first series stands at the back, so it is the higher one here.
const TABLE = `Quarter,North,South
Spring,40,12
Summer,55,9
Autumn,70,14
Winter,61,8
`;
const NORTH = ['40', '55', '70', '61'];

const MODEL = {
  chart: 'AreaGraph',
  GridProps: { XAxisCellCount: 2, ZAxisCellCount: 1 },
  XAxisProps: { Labels: ['Spring', 'Autumn'] },
  series: [{ Height: [2, 4], LegendText: 'Rain' }],
  InteractivityProps: {
    UseXAxisDrillDown: true,
    XAxisDrillDownProps: { DrillDownURL: ['one.wrl', 'two.wrl'] },
    UseDrillUp: true,
    DrillUpProps: { URL: 'up.wrl' },
  },
  Viewpoints: {
    AddViewpoint: [
      { description: 'Front', position: [4, 6, 26], orientation: [1, 0, 0, -0.12] },
    ],
  },
};

// Columns of width 1, seen from 20 and from 200 away.
const ROW = `#VRML V2.0 utf8
EXTERNPROTO qm4_OutlinedColumnSeries [
  exposedField MFFloat heights
] "VR_GRAPH.wrl#qm4_OutlinedColumnSeries"
Viewpoint { position 3 2 20 description "Near" }
Viewpoint { position 3 2 200 description "Far" }
qm4_OutlinedColumnSeries { heights [ 1, 2, 3, 4 ] }
`;

// A place of the window where the charts show nothing but background.
const ASIDE = { x: 30, y: 100 };

// The least share of the picture that a visible change of a series or viewpoint takes up, and the
// most that rounding leaves between two pictures of one scene.
const SEEN = 0.002;
const SAME = 0.0005;

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
  await writeFile(join(folder, 'table.csv'), TABLE);
  await writeFile(join(folder, 'model.json'), JSON.stringify(MODEL));
  await orvane('chart', 'area', 'table.csv', '--title', 'Rain', '-o', 'area.wrl');
  await orvane('chart', 'column', 'table.csv', '--grouped', '-o', 'columns.wrl');
  await orvane('chart', 'column', 'table.csv', '--style', 'rounded', '-o', 'rounded.wrl');
  await orvane('chart', 'ribbon', 'table.csv', '-o', 'ribbons.wrl');
  await orvane('build', 'model.json', '-o', 'drill.wrl');
  for (const name of ['one', 'two', 'up']) {
    const target = fileURLToPath(new URL('worlds/two-views.wrl', import.meta.url));
    await copyFile(target, join(folder, `${name}.wrl`));
  }
  await writeFile(join(folder, 'row.wrl'), ROW);
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

test('draws a table: its words and something of it from every viewpoint', async () => {
  await open('area.wrl');
  const texts = await view.texts();
  for (const word of ['Rain', 'North', 'South', 'Spring', 'Winter']) {
    assert.ok(texts.includes(word), `no text "${word}" among ${texts.join(', ')}`);
  }

  const viewpoints = await view.viewpoints();
  assert.ok(viewpoints.length > 1, `viewpoints: ${viewpoints.join(', ')}`);
  const pictures = [];
  for (const viewpoint of viewpoints) {
    await view.viewpoint(viewpoint);
    const picture = await view.screenshot();
    const drawn = await view.drawnShare(picture);
    assert.ok(drawn > 0.05, `only ${drawn} of "${viewpoint}" is drawn`);
    for (const [i, other] of pictures.entries()) {
      const unlike = await view.changedShare(picture, other);
      assert.ok(unlike > SEEN, `"${viewpoint}" shows the same as "${viewpoints[i]}"`);
    }
    pictures.push(picture);
  }
});

describe('a series toggle', () => {
  for (const [world, series, other, shape] of [
    ['area.wrl', '1', '2', 'qm4_OutlinedAreaSeries'],
    ['area.wrl', '2', '1', 'qm4_OutlinedAreaSeries'],
    ['columns.wrl', '2_1', '1_1', 'qm4_OutlinedColumnSeries'],
    ['rounded.wrl', '1_2', '1_1', 'qm4_RoundedColumnSeries'],
    ['ribbons.wrl', '1', '2', 'qm4_OutlinedRibbonSeries'],
  ]) {
    test(`takes series ${series} of ${world} away and brings it back`, async () => {
      await open(world);
      const box = await view.at(`CHECK_BOX_${series}`);
      await view.move(ASIDE);
      const whole = await view.screenshot();
      const area = [`SERIES_TOGGLE_${series}`, shape];
      assert.ok(await view.isDrawn(area));

      await view.click(box);
      await view.move(ASIDE);
      assert.equal(await view.isDrawn(area), false);
      assert.ok(await view.isDrawn([`SERIES_TOGGLE_${other}`, shape]));
      assert.ok((await changed(whole)) > SEEN, 'the picture is the same without the series');

      await view.click(box);
      await view.move(ASIDE);
      assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
    });
  }
});

describe('new heights', () => {
  for (const [world, path] of [
    ['area.wrl', ['SERIES_TOGGLE_1', 'qm4_OutlinedAreaSeries']],
    ['columns.wrl', ['SERIES_TOGGLE_1_1', 'qm4_OutlinedColumnSeries']],
    ['rounded.wrl', ['SERIES_TOGGLE_1_1', 'qm4_RoundedColumnSeries']],
    ['ribbons.wrl', ['SERIES_TOGGLE_1', 'qm4_OutlinedRibbonSeries']],
  ]) {
    test(`draw the series of ${world} anew`, async () => {
      await open(world);
      const whole = await view.screenshot();
      const heights = await view.read(path, 'heights');
      await view.send(path, 'heights', heights.map((height) => 0.3 * height));
      assert.ok((await changed(whole)) > SEEN, 'the picture is the same');
      await view.send(path, 'heights', heights);
      assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
    });
  }
});

test('the edges of columns show from near only', async () => {
  await open('row.wrl');
  const edges = ['qm4_OutlinedColumnSeries', 'IndexedLineSet'];
  const lines = async () => (await view.read(edges, 'coordIndex')).filter((i) => i < 0).length;
  assert.equal(await lines(), 4 * 5);
  const near = await view.screenshot();
  await view.viewpoint('Far');
  await assert.rejects(view.read(edges, 'coordIndex'), /no IndexedLineSet/);
  await view.viewpoint('Near');
  assert.equal(await lines(), 4 * 5);
  assert.ok((await changed(near)) < SAME, 'the picture is not what it was');
});

describe('popups', () => {
  const strip = ['SERIES_TOGGLE_1', 'qm4_PopupStrip'];

  // Where a strip can be pointed at for a value: on its front, a little lower.
  async function valuePlaces() {
    const heights = await view.read(strip, 'pointHeights');
    const spacing = await view.read(strip, 'pointSpacing');
    const depth = await view.read(strip, 'stripDepth');
    return Promise.all(heights.map((height, i) => (
      view.at(strip, [i * spacing, 0.9 * height, 0.97 * depth]))));
  }

  const shown = async (text) => (await view.texts()).join('\n').includes(text);

  test('show the text of each value that is pointed at, and go again', async () => {
    await open('area.wrl');
    const popups = await view.read(strip, 'popupTexts');
    assert.equal(popups.length, NORTH.length);
    await view.move(ASIDE);
    const before = await view.screenshot();
    for (const [i, place] of (await valuePlaces()).entries()) {
      assert.ok(popups[i].includes(NORTH[i]), `no ${NORTH[i]} in the popup "${popups[i]}"`);
      await view.move(place);
      assert.ok(await shown(popups[i]), `no popup "${popups[i]}"`);
      assert.ok((await changed(before)) > SEEN, `nothing to see of the popup "${popups[i]}"`);

      await view.move(ASIDE);
      assert.equal(await shown(popups[i]), false, `the popup "${popups[i]}" has stayed`);
      assert.ok((await changed(before)) < SAME, 'the picture is not what it was');
    }
  });

  for (const [world, toggle] of [['columns.wrl', 'SERIES_TOGGLE_1_1'], ['ribbons.wrl', 'SERIES_TOGGLE_1']]) {
    test(`show the text of a value of ${world}, and go again`, async () => {
      await open(world);
      const path = [toggle, 'qm4_PopupStrip'];
      const [height] = await view.read(path, 'pointHeights');
      const [popup] = await view.read(path, 'popupTexts');
      const depth = await view.read(path, 'stripDepth');
      await view.move(await view.at(path, [0, 0.95 * height, 0.97 * depth]));
      assert.ok(await shown(popup), `no popup "${popup}"`);
      await view.move(ASIDE);
      assert.equal(await shown(popup), false, `the popup "${popup}" has stayed`);
    });
  }

  test('go with their series', async () => {
    await open('area.wrl');
    const popups = await view.read(strip, 'popupTexts');
    const place = (await valuePlaces())[2];
    await view.move(place);
    assert.ok(await shown(popups[2]));

    await view.move(ASIDE);
    await view.click(await view.at('CHECK_BOX_1'));
    await view.move(ASIDE);
    const without = await view.screenshot();
    await view.move(place);
    assert.equal(await shown(popups[2]), false);
    assert.ok((await changed(without)) < SAME, 'something has popped up');
  });
});

describe('a click', () => {
  const cone = async (i) => (
    view.at('X_AXIS_DRILL_DOWN', (await view.read('X_AXIS_DRILL_DOWN', 'coneLocations'))[i]));

  for (const [name, target, place] of [
    ['the first cone', 'one.wrl', () => cone(0)],
    ['the second cone', 'two.wrl', () => cone(1)],
    ['the drill-up cone', 'up.wrl', () => view.at('Anchor')],
  ]) {
    test(`on ${name} loads its world`, async () => {
      await open('drill.wrl');
      const earlier = server.requests.length;
      await view.click(await place());
      await view.page.waitForURL(`**/index.html?world=${target}`);
      await view.ready();
      const worlds = server.requests.slice(earlier).filter(({ path }) => path.endsWith('.wrl'));
      assert.deepEqual(worlds, [{ path: `/${target}`, status: 200 }]);
      assert.deepEqual(await view.viewpoints(), ['Front', 'From the left']);
    });
  }
});
