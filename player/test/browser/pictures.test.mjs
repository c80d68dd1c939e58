// Holds the player against X_ITE: the pictures of all worlds of the demo, and pictures and
// fields after what a visitor does with a real pointer.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { serveDemo } from './pages.mjs';

const MOST = 0.02; // of the range, in the mean
const WORST = 0.12; // in the 256th part of the picture that differs most: a part that is missing shows there

const ASIDE = { x: 30, y: 100 };

let demo;
before(async () => { demo = await serveDemo(); });
after(() => demo?.close());

async function assertAlike(pair, where) {
  const { mean, worst } = await pair.difference();
  assert.ok(mean <= MOST && worst <= WORST, `${where}: the pictures differ by ${mean}, at most ${worst}`);
  assert.deepEqual(pair.complaints.splice(0), [], where);
}

/** Opens a world for a task, and stops what would move while pictures are taken. */
async function inWorld(world, task) {
  const pair = await demo.open(world);
  try {
    if (world === 'health-scatter') await pair.send('TIME_KEEPER', 'enabled', false);
    await task(pair);
  } finally {
    await pair.close();
  }
}

test('all worlds of the demo look as in X_ITE, from the first viewpoint and from one more', async (t) => {
  for (const [n, world] of demo.worlds.entries()) {
    await t.test(world, () => inWorld(world, async (pair) => {
      if (world === 'health-scatter') await pair.send('LOC_INT', 'set_fraction', 0.3);
      const [first, ...others] = await pair.view.viewpoints();
      // The others in turn: all of them would be minutes in software.
      const chosen = others.length > 0 ? [first, others[n % others.length]] : [first];
      for (const viewpoint of chosen) {
        await pair.viewpoint(viewpoint);
        await assertAlike(pair, viewpoint);
      }
    }));
  }
});

// What is done in a world: where, in X_ITE's terms, by which moves, and the fields it changes.
const DEEDS = {
  toggle: {
    world: 'rain-columns', at: ['CHECK_BOX_1_2'], click: true, field: ['SERIES_TOGGLE_1_2', 'contentsExist'],
  },
  popup: { world: 'rain-columns', at: [['SERIES_TOGGLE_1_4', 'qm4_PopupStrip'], [11, 3, 1]] },
  slider: {
    world: 'health-slider', at: [['FRAME_SLIDER', 'Knob']], drag: { x: 70, y: 31 },
    field: ['FRAME_SWITCH', 'whichChoice'],
  },
  slice: {
    world: 'penguin-pie', at: [['SLICE_TOGGLE_1', 'IndexedFaceSet']], drag: { x: 30, y: 12 },
    field: ['INNER_TRANS_1', 'translation'],
  },
  spin: { world: 'workforce-ring', at: [['SLICE_TOGGLE_2']], drag: { x: 60, y: 0 }, field: ['PIE_TRANS', 'rotation'] },
};

for (const [name, { world, at, click, drag, field }] of Object.entries(DEEDS)) {
  test(`a ${name} does what it does in X_ITE`, () => inWorld(world, async (pair) => {
    const before = await pair.page.screenshot(), value = field && await pair.values(...field);
    const { x, y } = await pair.view.at(...at);
    await pair.both((page) => page.mouse.move(x, y, { steps: 3 }));
    if (click) await pair.both((page) => page.mouse.click(x, y, { delay: 200 }));
    if (drag) {
      await pair.both((page) => page.mouse.down());
      await pair.both((page) => page.mouse.move(x + drag.x, y + drag.y, { steps: 12 }));
      await pair.both((page) => page.mouse.up());
    }
    if (field) {
      await pair.both((page) => page.mouse.move(ASIDE.x, ASIDE.y));
      const { ours, theirs } = await pair.values(...field);
      assert.notDeepEqual(ours, value.ours, 'the field has not changed');
      [ours].flat().forEach((number, i) => {
        assert.ok(Math.abs(number - [theirs].flat()[i]) < 0.02, `${field.join('.')}: ${ours}, in X_ITE ${theirs}`);
      });
    } else {
      assert.ok(await pair.page.evaluate(() => player.pointed), 'no value is pointed at');
    }
    await assertAlike(pair, name);
    assert.notDeepEqual(await pair.page.screenshot(), before, 'the picture is as before');
  }));
}

test('the player survives the loss of its context, and leaves nothing behind', async () => {
  const pair = await demo.open('rain-columns');
  try {
    const before = await pair.page.screenshot();
    await pair.page.evaluate(async () => {
      const canvas = document.querySelector('canvas');
      const came = (event) => new Promise((resolve) => { player.listen(event, resolve); });
      const loss = canvas.getContext('webgl2').getExtension('WEBGL_lose_context');
      const lost = came('lost'), restored = came('restored');
      loss.loseContext();
      await lost;
      loss.restoreContext();
      await restored;
      await player.idle();
    });
    assert.deepEqual(await pair.page.screenshot(), before, 'the picture after the loss is another');
    const left = await pair.page.evaluate(() => {
      player.dispose();
      return document.getElementById('place').childElementCount;
    });
    assert.equal(left, 0);
    assert.deepEqual(pair.complaints.filter((text) => !/context (lost|restored)/i.test(text)), []);
  } finally {
    await pair.close();
  }
});
