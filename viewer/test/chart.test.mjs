// Area, column and ribbon charts in a real browser and by real pointer input.

import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import {
  ASIDE, assertDrawn, assertLike, assertPopsUp, assertRedraws, assertToggles, assertUnlike, byHand,
  open, serve, server, shows, view,
} from './worlds.mjs';

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
    UseXAxisDrillDown: true, XAxisDrillDownProps: { DrillDownURL: ['one.wrl', 'two.wrl'] },
    UseDrillUp: true, DrillUpProps: { URL: 'up.wrl' },
  },
  Viewpoints: { AddViewpoint: [{ position: [4, 6, 26], orientation: [1, 0, 0, -0.12] }] },
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

serve({
  files: {
    'table.csv': TABLE, 'model.json': JSON.stringify(MODEL), 'row.wrl': ROW,
    'one.wrl': byHand('two-views.wrl'), 'two.wrl': byHand('links.wrl'),
    'up.wrl': byHand('no-viewpoint.wrl'),
  },
  charts: {
    'area.wrl': 'chart area table.csv --title Rain',
    'columns.wrl': 'chart column table.csv --grouped',
    'rounded.wrl': 'chart column table.csv --style rounded',
    'ribbons.wrl': 'chart ribbon table.csv',
    'drill.wrl': 'build model.json',
  },
});

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
    await assertDrawn(view, `nothing of "${viewpoint}" is drawn`);
    for (const [i, other] of pictures.entries()) {
      await assertUnlike(other, `"${viewpoint}" shows the same as "${viewpoints[i]}"`);
    }
    pictures.push(picture);
  }
});

for (const [world, series, other, shape] of [
  ['area.wrl', '1', '2', 'qm4_OutlinedAreaSeries'],
  ['area.wrl', '2', '1', 'qm4_OutlinedAreaSeries'],
  ['columns.wrl', '2_1', '1_1', 'qm4_OutlinedColumnSeries'],
  ['rounded.wrl', '1_2', '1_1', 'qm4_RoundedColumnSeries'],
  ['ribbons.wrl', '1', '2', 'qm4_OutlinedRibbonSeries'],
]) {
  test(`series ${series} of ${world} goes with its box and takes new heights`, async () => {
    await open(world);
    const path = [`SERIES_TOGGLE_${series}`, shape];
    await assertToggles(`CHECK_BOX_${series}`, path, [[`SERIES_TOGGLE_${other}`, shape]]);
    await assertRedraws(path, 'heights');
  });
}

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
  await assertLike(near);
});

describe('popups', () => {
  // The texts of a series' values, and for each where its strip can be pointed at: on its front, a
  // little lower.
  async function popupsOf(toggle) {
    const [texts, heights, spacing, depth] = await Promise.all(
      ['popupTexts', 'pointHeights', 'pointSpacing', 'stripDepth'].map((field) => (
        view.read([toggle, 'qm4_PopupStrip'], field))));
    const point = (i) => [i * spacing, 0.93 * heights[i], 0.97 * depth];
    return Promise.all(texts.map(async (text, i) => (
      { text, place: await view.at([toggle, 'qm4_PopupStrip'], point(i)) })));
  }

  for (const [world, series] of [['area.wrl', '1'], ['columns.wrl', '1_1'], ['ribbons.wrl', '1']]) {
    test(`of ${world} show each value that is pointed at, and go again`, async () => {
      await open(world);
      const whole = await view.screenshot();
      const popups = await popupsOf(`SERIES_TOGGLE_${series}`);
      assert.equal(popups.length, NORTH.length);
      for (const [i, { text, place }] of popups.entries()) {
        assert.ok(text.includes(NORTH[i]), `no ${NORTH[i]} in the popup "${text}"`);
        await assertPopsUp(place, text);
        await assertUnlike(whole, `nothing to see of the popup "${text}"`);

        await view.move(ASIDE);
        assert.equal(await shows(text), false, `the popup "${text}" has stayed`);
        await assertLike(whole);
      }

      // Where the series is switched off, nothing pops up.
      await view.click(await view.at(`CHECK_BOX_${series}`));
      await view.move(ASIDE);
      const without = await view.screenshot();
      await view.move(popups[2].place);
      assert.equal(await shows(popups[2].text), false);
      await assertLike(without, 'something has popped up');
    });
  }
});

describe('a click', () => {
  const cone = async (i) => (
    view.at('X_AXIS_DRILL_DOWN', (await view.read('X_AXIS_DRILL_DOWN', 'coneLocations'))[i]));

  for (const [name, target, place, viewpoints] of [
    ['the first cone', 'one.wrl', () => cone(0), ['Front', 'From the left']],
    ['the second cone', 'two.wrl', () => cone(1), ['Front']],
    ['the drill-up cone', 'up.wrl', () => view.at('Anchor'), []],
  ]) {
    test(`on ${name} loads its world`, async () => {
      await open('drill.wrl');
      const earlier = server.requests.length;
      await view.click(await place());
      await view.page.waitForURL(`**/index.html?world=${target}`);
      await view.ready();
      const worlds = server.requests.slice(earlier).filter(({ path }) => path.endsWith('.wrl'));
      assert.deepEqual(worlds, [{ path: `/${target}`, status: 200 }]);
      assert.deepEqual(await view.viewpoints(), viewpoints);
    });
  }
});
