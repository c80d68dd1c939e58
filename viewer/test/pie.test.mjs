// Pies in a real browser and by real pointer input.

import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import {
  ASIDE, assertLike, assertNear, assertToggles, assertUnlike, open, serve, view,
} from './worlds.mjs';

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

serve({
  files: { 'table.csv': TABLE, 'large.csv': 'Source,Energy\nCoal,65\nWind,35\n' },
  charts: {
    'large.wrl': 'chart pie large.csv',
    'pie.wrl': 'chart pie table.csv',
    'rounded.wrl': 'chart pie table.csv --style rounded --spin',
    'ring.wrl': 'chart pie table.csv --style ring --labels always',
  },
});

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
    middle: [middle[0], middle[2]],
    tip: () => view.at(inner, [0, 0, 0]),
    moved: () => view.read(inner, 'translation'),
  };
}

describe('a slice', () => {
  for (const [world, number, other] of [
    ['pie.wrl', 4, 2], ['rounded.wrl', 3, 4], ['ring.wrl', 1, 2],
  ]) {
    test(`of ${world} is dragged outwards on its line, and goes with its check box`, async () => {
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
      assertNear(await moved(), [1, 0, 0], 0.1, 'one unit outwards');
      assertNear(pixels(await tip()), pixels(tipThen), 8, 'the tip, one unit out along the middle');
      await assertUnlike(whole);

      await view.move(farOutAside);
      const [x, ...aside] = await moved();
      assert.ok(x > 1.2 && x < 4, `outwards: ${x}`);
      assertNear(aside, [0, 0], 1e-6, 'off its line');

      await view.move(inwards);
      assertNear(await moved(), [0, 0, 0], 1e-6, 'further in than its place');
      await view.move(out);
      await view.release();
      assertNear(await moved(), [1, 0, 0], 0.1, 'when it was let go');

      // Taken hold of again, it goes on from where it is.
      await view.press(await above());
      assertNear(await moved(), [1, 0, 0], 0.1, 'when it is taken hold of again');
      await view.release();

      await view.move(ASIDE);
      const path = (i) => [`SLICE_TOGGLE_${i}`, SHAPES[world]];
      await assertToggles(`CHECK_BOX_${number}`, path(number), [path(other)]);
    });
  }

  test('of more than half the pie goes out when it is pulled inwards', async () => {
    await open('large.wrl');
    const { above, middle, moved } = await slice(1, SHAPES['pie.wrl']);
    const [start, out, inwards] = await Promise.all(
      [0, 1, -1].map((way) => above(way * middle[0], way * middle[1])));
    await view.press(start);
    await view.move(out);
    assertNear(await moved(), [0, 0, 0], 1e-6, 'pulled outwards');
    await view.move(inwards);
    // Its first side, on which the sensor lies, is 117 degrees from its middle; the sensor's plane is
    // upright, so that the pointer's way over the upper face reads as somewhat more there.
    assertNear(await moved(), [-Math.cos(0.65 * Math.PI), 0, 0], 0.15, 'pulled inwards');
    await view.release();
  });

  test('shows its text while it is pressed', async () => {
    await open('pie.wrl');
    const shown = async () => (await view.texts()).filter((text) => VALUES.includes(text));
    const whole = await view.screenshot();
    for (const [i, value] of VALUES.entries()) {
      const { above } = await slice(i + 1, SHAPES['pie.wrl']);
      const place = await above();
      await view.move(place);
      assert.deepEqual(await shown(), [], 'a text although nothing is pressed');
      await view.press(place);
      assert.deepEqual(await shown(), [value]);
      await assertUnlike(whole, `nothing to see of "${value}"`, 0.0005);
      await view.release();
      assert.deepEqual(await shown(), [], `the text "${value}" has stayed`);
    }
    await view.move(ASIDE);
    await assertLike(whole);
  });

  test('shows its text all the time on demand', async () => {
    await open('ring.wrl');
    const texts = async () => (await view.texts()).filter((text) => PERCENTAGES.includes(text));
    assert.deepEqual(await texts(), PERCENTAGES);
    const { above } = await slice(2, SHAPES['ring.wrl']);
    await view.click(await above());
    assert.deepEqual(await texts(), PERCENTAGES);
  });
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
  assertNear([x, Math.abs(y), z], [0, 1, 0], 1e-3, 'the axis of the turn');
  assert.ok(angle > 0.3, `turned by ${angle}`);
  await assertUnlike(whole);

  // What faced the viewer went to the right with the pointer, and what was there, to the back.
  const { y: then } = await view.at('PIE_TRANS', [3, height, 0]);
  assert.ok(then < right.y - 5, `the right of the rim went from ${right.y} to ${then}`);
});
