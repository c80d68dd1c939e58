// Pies made by the command-line program, in a real browser and by real pointer input.
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

const TABLE = `Source,Energy
Coal,4000
Wind,3000
Gas,2000
Sun,1000
`;
const VALUES = ['4000', '3000', '2000', '1000'];
const PERCENTAGES = ['40.0 %', '30.0 %', '20.0 %', '10.0 %'];

const SHAPES = {
  'pie.wrl': 'qm4_OutlinedPieSlice',
  'rounded.wrl': 'qm4_RoundedPieSlice',
  'ring.wrl': 'qm4_RoundedRingSlice',
};

// A place of the window where the pies show nothing but background.
const ASIDE = { x: 30, y: 100 };

// The least share of the picture that a visible change takes up, and the most that rounding leaves
// between two pictures of one scene.
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
  const pie = ['chart', 'pie', 'table.csv', '-o'];
  await orvane(...pie, 'pie.wrl');
  await orvane(...pie, 'rounded.wrl', '--style', 'rounded', '--spin');
  await orvane(...pie, 'ring.wrl', '--style', 'ring', '--labels', 'always');
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

function near(actual, expected, tolerance, message) {
  for (const [i, value] of expected.entries()) {
    assert.ok(Math.abs(actual[i] - value) <= tolerance, `${message}: ${actual}, not ${expected}`);
  }
}

const pixels = ({ x, y }) => [x, y];

// Slice `number` as it lies before it is moved: its sector begins at local +X and runs towards +Z.
async function slice(number, shape) {
  const inner = `INNER_TRANS_${number}`;
  const path = [`SLICE_TOGGLE_${number}`, shape];
  const angle = await view.read(path, 'angle');
  const height = await view.read(path, 'height');
  const middle = [Math.cos(angle / 2), 0, Math.sin(angle / 2)];
  return {
    // On the upper face, `x` further along the first side and `aside` further across it.
    above: (x = 0, aside = 0) => (
      view.at(inner, [2.2 * middle[0] + x, height, 2.2 * middle[2] + aside])),
    // On the floor, so far out from the axis along the middle of the slice.
    along: (distance) => view.at(inner, middle.map((part) => distance * part)),
    tip: () => view.at(inner, [0, 0, 0]),
    moved: () => view.read(inner, 'translation'),
  };
}

describe('a slice', () => {
  for (const [world, number] of [['pie.wrl', 4], ['rounded.wrl', 3], ['ring.wrl', 1]]) {
    test(`of ${world} is dragged outwards and stays within its line`, async () => {
      await open(world);
      const whole = await view.screenshot();
      const { above, along, tip, moved } = await slice(number, SHAPES[world]);
      const start = await above();
      const out = await above(1);
      const farOutAside = await above(2, 1);
      const inwards = await above(-2);
      const tipThen = await along(1);

      await view.press(start);
      await view.move(out);
      near(await moved(), [1, 0, 0], 0.1, 'one unit outwards');
      near(pixels(await tip()), pixels(tipThen), 8, 'the tip, one unit out along the middle');
      assert.ok((await changed(whole)) > SEEN, 'the picture is the same');

      await view.move(farOutAside);
      const [x, ...aside] = await moved();
      assert.ok(x > 1.2 && x < 4, `outwards: ${x}`);
      near(aside, [0, 0], 1e-6, 'off its line');

      await view.move(inwards);
      near(await moved(), [0, 0, 0], 1e-6, 'further in than its place');
      await view.move(out);
      await view.release();
      near(await moved(), [1, 0, 0], 0.1, 'when it was let go');

      // Taken hold of again, it goes on from where it is.
      await view.press(await above());
      near(await moved(), [1, 0, 0], 0.1, 'when it is taken hold of again');
      await view.release();
    });
  }

  test('shows its text while it is pressed', async () => {
    await open('pie.wrl');
    const shown = async () => (await view.texts()).filter((text) => VALUES.includes(text));
    await view.move(ASIDE);
    const whole = await view.screenshot();
    for (const [i, value] of VALUES.entries()) {
      const { above } = await slice(i + 1, SHAPES['pie.wrl']);
      const place = await above();
      await view.move(place);
      assert.deepEqual(await shown(), [], 'a text although nothing is pressed');
      await view.press(place);
      assert.deepEqual(await shown(), [value]);
      assert.ok((await changed(whole)) > SAME, `nothing to see of "${value}"`);
      await view.release();
      assert.deepEqual(await shown(), [], `the text "${value}" has stayed`);
    }
    await view.move(ASIDE);
    assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
  });

  test('shows its text all the time on demand', async () => {
    await open('ring.wrl');
    const texts = async () => (await view.texts()).filter((text) => PERCENTAGES.includes(text));
    assert.deepEqual(await texts(), PERCENTAGES);
    const { above } = await slice(2, SHAPES['ring.wrl']);
    await view.click(await above());
    assert.deepEqual(await texts(), PERCENTAGES);
  });

  for (const [world, number, other] of [['pie.wrl', 1, 2], ['rounded.wrl', 4, 3]]) {
    test(`of ${world} goes with its check box and comes back`, async () => {
      await open(world);
      const box = await view.at(`CHECK_BOX_${number}`);
      const path = (i) => [`SLICE_TOGGLE_${i}`, SHAPES[world]];
      await view.move(ASIDE);
      const whole = await view.screenshot();
      assert.ok(await view.isDrawn(path(number)));

      await view.click(box);
      await view.move(ASIDE);
      assert.equal(await view.isDrawn(path(number)), false);
      assert.ok(await view.isDrawn(path(other)));
      assert.ok((await changed(whole)) > SEEN, 'the picture is the same without the slice');

      await view.click(box);
      await view.move(ASIDE);
      assert.ok((await changed(whole)) < SAME, 'the picture is not what it was');
    });
  }
});

test('the spin axis turns the pie', async () => {
  await open('rounded.wrl');
  const whole = await view.screenshot();
  const height = await view.read(['SLICE_TOGGLE_1', SHAPES['rounded.wrl']], 'height');
  const right = await view.at('PIE_TRANS', [3, height, 0]);
  const top = await view.at('PIE_TRANS', [0, 1.15 * height, 0]);

  await view.press(top);
  await view.move({ x: top.x + 40, y: top.y });
  await view.release();
  const [x, y, z, angle] = await view.read('PIE_TRANS', 'rotation');
  near([x, Math.abs(y), z], [0, 1, 0], 1e-3, 'the axis of the turn');
  assert.ok(angle > 0.3, `turned by ${angle}`);
  assert.ok((await changed(whole)) > SEEN, 'the picture is the same');

  // What faced the viewer went to the right with the pointer, and what was there, to the back.
  const { y: then } = await view.at('PIE_TRANS', [3, height, 0]);
  assert.ok(then < right.y - 5, `the right of the rim went from ${right.y} to ${then}`);
});
