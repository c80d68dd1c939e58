// Scatter charts in a real browser: points that move as their loop style says, and a slider that
// picks a frame.

import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { ASIDE, assertLike, assertNear, assertUnlike, open, serve, view } from './worlds.mjs';

// Each axis runs from 0 to 10 in a grid of 10, so that a point stands at its numbers.
const FRAMES = [
  [[0, 10, 0], [10, 2, 5], [4, 0, 10]],
  [[8, 5, 2], [1, 6, 7], [5, 10, 0]],
  [[3, 1, 9], [6, 8, 1], [9, 3, 6]],
];
const TABLE = `x,y,z,size,frame\n${FRAMES.map((frame, i) => (
  frame.map((point) => `${point.join(',')},1,Frame ${i + 1}\n`).join(''))).join('')}`;

// Long enough that a slow machine draws some pictures between two frames.
const FRAME_SECONDS = 1.5;

const chart = 'chart scatter points.csv --size 10,10,10';
const LOOPS = ['continuous', 'break', 'back-and-forth', 'none'];
serve({
  files: { 'points.csv': TABLE },
  charts: {
    ...Object.fromEntries(LOOPS.map((loop) => (
      [`${loop}.wrl`, `${chart} --loop ${loop} --frame-seconds ${FRAME_SECONDS}`]))),
    'slider.wrl': `${chart} --animate slider`,
  },
});

// Where the points are when `fraction` of a cycle is over that passes the frames of `sequence`.
function placesAt(fraction, sequence) {
  const steps = sequence.length - 1;
  const at = Math.min(fraction / 0.99, 1) * steps;
  const i = Math.min(Math.floor(at), steps - 1);
  return FRAMES[sequence[i]].map((from, k) => from.map((start, axis) => (
    start + (at - i) * (FRAMES[sequence[i + 1]][k][axis] - start))));
}

const MOVING = [
  ['TIME_KEEPER', 'fraction_changed'],
  ['POINT_COLLECTION', 'locations'],
  ['TIME_KEEPER', 'isActive'],
];

// What the fields of MOVING hold in every frame, until that is enough or a minute is over.
async function watchUntil(isEnough) {
  const frames = [];
  const end = Date.now() + 60000;
  while (Date.now() < end && !isEnough(frames)) frames.push(...await view.watch(MOVING, 0.5));
  return frames;
}

function assertPasses(frames, sequence) {
  for (const [fraction, places] of frames) {
    assertNear(places, placesAt(fraction, sequence), 1e-3, `at ${fraction}`);
  }
}

describe('points', () => {
  for (const [loop, sequence] of [
    ['continuous', [0, 1, 2, 0]],
    ['break', [0, 1, 2]],
    ['back-and-forth', [0, 1, 2, 1, 0]],
  ]) {
    test(`move through the frames: ${loop}`, async () => {
      await open(`${loop}.wrl`);
      const seconds = FRAME_SECONDS * (sequence.length - 1);
      assert.equal(await view.read('TIME_KEEPER', 'cycleInterval'), seconds);
      const quarters = (frames) => (
        new Set(frames.map(([fraction]) => Math.min(3, Math.floor(4 * fraction)))).size);
      const goesOn = (frames) => frames.some(([fraction], i) => fraction < frames[i - 1]?.[0]);
      const frames = await watchUntil((so) => quarters(so) === 4 && goesOn(so));
      assertPasses(frames, sequence);
      assert.equal(quarters(frames), 4, 'not in every quarter of the cycle');
      assert.ok(goesOn(frames), 'it does not go on');
    });
  }

  test('start with a click and stop at the last frame: none', async () => {
    await open('none.wrl');
    assertNear(await view.read('POINT_COLLECTION', 'locations'), FRAMES[0], 1e-3, 'at rest');
    const atRest = await view.screenshot();
    for (const round of ['first', 'second']) {
      const arrow = await view.at('Cone', [0, 0, 0]);
      const watching = watchUntil((so) => so.some((frame) => frame[2]) && !so.at(-1)[2]);
      await view.click(arrow);
      const frames = await watching;
      assertPasses(frames, [0, 1, 2]);
      assert.ok(frames.some(([fraction]) => fraction > 0.2 && fraction < 0.8), 'it did not move');
      const [fraction, places, isActive] = frames.at(-1);
      assert.equal(fraction, 1, round);
      assert.equal(isActive, false, round);
      assertNear(places, FRAMES[2], 1e-3, round);
      await assertUnlike(atRest);
    }
  });
});

describe('the slider', () => {
  const knob = () => view.at(['FRAME_SLIDER', 'Knob'], [0, 0, 0]);
  // Where the knob is in its step number `step`, counted from 0 and not necessarily whole.
  async function stepPlace(step) {
    const length = await view.read('FRAME_SLIDER', 'length');
    return view.at('FRAME_SLIDER', [0, (step / (FRAMES.length - 1)) * length, 0]);
  }

  async function assertShows(frame) {
    assert.equal(await view.read('FRAME_SWITCH', 'whichChoice'), frame);
    const spheres = ['FRAME_SWITCH', 'qm4_SphereCollection'];
    assert.equal(await view.isDrawn(spheres), frame === 0, 'the first frame');
    const [at, wanted] = [await knob(), await stepPlace(frame)];
    assert.ok(Math.hypot(at.x - wanted.x, at.y - wanted.y) < 1, 'the knob is elsewhere');
  }

  test('switches frames by dragging or set_value, in whole steps between its ends', async () => {
    await open('slider.wrl');
    const texts = await view.texts();
    for (const label of ['Frame 1', 'Frame 2', 'Frame 3']) assert.ok(texts.includes(label), label);
    await assertShows(0);
    const pictures = [];
    for (const [to, frame] of [[1.2, 1], [1.7, 2], [9, 2], [0.9, 1], [-9, 0], [0.3, 0]]) {
      await view.drag(await knob(), await stepPlace(to));
      await assertShows(frame);
      await view.move(ASIDE);
      for (const [other, before] of pictures.entries()) {
        if (!before) continue;
        if (other === frame) await assertLike(before, `frame ${frame} is not what it was`);
        else await assertUnlike(before, `frames ${frame} and ${other} look alike`);
      }
      pictures[frame] ??= await view.screenshot();
    }

    // Sent to a frame it goes there, and no farther than its ends either.
    for (const [value, frame] of [[2, 2], [1, 1], [7, 2], [-3, 0]]) {
      await view.send('FRAME_SLIDER', 'set_value', value);
      await assertShows(frame);
    }
  });
});
