// Scatter charts made by the command-line program, in a real browser: points that move as their loop
// style says, and a slider that picks a frame.
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

// Each axis runs from 0 to 10 in a grid of 10, so that a point stands at its numbers.
const FRAMES = [
  [[0, 10, 0], [10, 2, 5], [4, 0, 10]],
  [[8, 5, 2], [1, 6, 7], [5, 10, 0]],
  [[3, 1, 9], [6, 8, 1], [9, 3, 6]],
];
const TABLE = `x,y,z,size,frame\n${FRAMES.map((frame, i) => (
  frame.map((point) => `${point.join(',')},1,Frame ${i + 1}\n`).join(''))).join('')}`;

// Long enough that a slow machine draws some pictures between two frames.
const FRAME_SECONDS = 3;

// A place of the window where the charts show nothing but background.
const ASIDE = { x: 20, y: 100 };

let folder;
let server;
let browser;
let view;

before(async () => {
  assert.ok(process.env.ORVANE, 'Set ORVANE to the path of the orvane program.');
  folder = await mkdtemp(join(tmpdir(), 'viewer-'));
  await writeFile(join(folder, 'points.csv'), TABLE);
  const chart = (world, ...options) => promisify(execFile)(
    resolve(process.env.ORVANE),
    ['chart', 'scatter', 'points.csv', '--size', '10,10,10', '-o', world, ...options],
    { cwd: folder },
  );
  for (const loop of ['continuous', 'break', 'back-and-forth', 'none']) {
    await chart(`${loop}.wrl`, '--loop', loop, '--frame-seconds', `${FRAME_SECONDS}`);
  }
  await chart('slider.wrl', '--animate', 'slider');
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

// Where the points are when `fraction` of a cycle is over that passes the frames of `sequence`.
function placesAt(fraction, sequence) {
  const steps = sequence.length - 1;
  const at = Math.min(fraction / 0.99, 1) * steps;
  const i = Math.min(Math.floor(at), steps - 1);
  return FRAMES[sequence[i]].map((from, k) => from.map((start, axis) => (
    start + (at - i) * (FRAMES[sequence[i + 1]][k][axis] - start))));
}

function assertNear(actual, expected, message) {
  assert.equal(actual.length, expected.length, message);
  for (const [i, value] of actual.flat().entries()) {
    assert.ok(Math.abs(value - expected.flat()[i]) < 1e-3,
      `${message}: ${JSON.stringify(actual)}, not ${JSON.stringify(expected)}`);
  }
}

const MOVING = [['TIME_KEEPER', 'fraction_changed'], ['POINT_COLLECTION', 'locations']];

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
      const fractions = [];
      const hasSeen = (i) => fractions.some((fraction) => Math.floor(4 * fraction) === i);
      const goesOn = () => fractions.some((fraction, i) => fraction < fractions[i - 1]);
      for (let cycle = 0; cycle < 3 && !([0, 1, 2, 3].every(hasSeen) && goesOn()); ++cycle) {
        for (const [fraction, places] of await view.watch(MOVING, 1.1 * seconds)) {
          assertNear(places, placesAt(fraction, sequence), `at ${fraction}`);
          fractions.push(fraction);
        }
      }
      for (let i = 0; i < 4; ++i) assert.ok(hasSeen(i), `nothing of quarter ${i + 1} of the cycle`);
      assert.ok(goesOn(), 'it does not go on');
    });
  }

  test('stand where each known fraction puts them', async () => {
    await open('break.wrl');
    await view.send('TIME_KEEPER', 'enabled', false);
    for (const fraction of [0, 0.2475, 0.495, 0.6, 0.99, 1]) {
      await view.send('LOC_INT', 'set_fraction', fraction);
      assertNear(await view.read('POINT_COLLECTION', 'locations'), placesAt(fraction, [0, 1, 2]),
        `at ${fraction}`);
    }
    await view.send('LOC_INT', 'set_fraction', 0);
    const first = await view.screenshot();
    await view.send('LOC_INT', 'set_fraction', 0.99);
    const unlike = await view.changedShare(first, await view.screenshot());
    assert.ok(unlike > 0.002, `only ${unlike} of the picture has changed`);
  });

  test('start with a click and stop at the last frame: none', async () => {
    await open('none.wrl');
    assertNear(await view.read('POINT_COLLECTION', 'locations'), FRAMES[0], 'at rest');
    for (const round of ['first', 'second']) {
      const arrow = await view.at('Cone', [0, 0, 0]);
      const watching = view.watch([...MOVING, ['TIME_KEEPER', 'isActive']], 6 * FRAME_SECONDS);
      await view.click(arrow);
      const frames = await watching;
      for (const [fraction, places] of frames) {
        assertNear(places, placesAt(fraction, [0, 1, 2]), `${round} at ${fraction}`);
      }
      assert.ok(frames.some(([fraction]) => fraction > 0.2 && fraction < 0.8), 'it did not move');
      const [fraction, places, isActive] = frames.at(-1);
      assert.equal(fraction, 1, round);
      assert.equal(isActive, false, round);
      assertNear(places, FRAMES[2], round);
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

  test('switches frames by dragging, in whole steps and no farther than its ends', async () => {
    await open('slider.wrl');
    const texts = await view.texts();
    for (const label of ['Frame 1', 'Frame 2', 'Frame 3']) assert.ok(texts.includes(label), label);
    await assertShows(0);
    const pictures = [];
    for (const [to, frame] of [[1.2, 1], [1.7, 2], [9, 2], [0.9, 1], [-9, 0], [0.3, 0]]) {
      await view.drag(await knob(), await stepPlace(to));
      await assertShows(frame);
      await view.move(ASIDE);
      const picture = await view.screenshot();
      for (const [other, before] of pictures.entries()) {
        if (!before) continue;
        const unlike = await view.changedShare(picture, before);
        if (other === frame) assert.ok(unlike < 0.0005, `frame ${frame} is not what it was`);
        else assert.ok(unlike > 0.002, `frames ${frame} and ${other} look alike`);
      }
      pictures[frame] = picture;
    }
  });

  test('follows set_value, clamped', async () => {
    await open('slider.wrl');
    for (const [value, frame] of [[2, 2], [1, 1], [7, 2], [-3, 0]]) {
      await view.send('FRAME_SLIDER', 'set_value', value);
      await assertShows(frame);
    }
  });
});
