// What the tests share that look at worlds in a real browser: the worlds of a test file, served to
// one page, and what is asked of them again and again. The environment variable ORVANE names the
// program that makes charts.

import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { after, afterEach, before } from 'node:test';
import { promisify } from 'node:util';
import { launch, openPage } from '../browser.mjs';
import { startViewer } from '../server.mjs';

// The text of a world that is written by hand.
export const byHand = (world) => readFileSync(new URL(`worlds/${world}`, import.meta.url));

// A place of the window where no world shows anything but background.
export const ASIDE = { x: 30, y: 100 };

// Small, since each pixel is drawn in software.
const WINDOW = { width: 800, height: 600 };

// The least share of the picture that a visible change takes up, and the most that rounding leaves
// between two pictures of one scene.
const SEEN = 0.002;
const SAME = 0.0005;

export let browser;
export let server;

// The page that shows the worlds, once `open` was called.
export let view;

// Serves the worlds of a test file from a folder of their own, where `files` are written and
// `charts` made: texts, and arguments of the program, by the name of the file. The PROTO files lie
// beside them.
export function serve({ files = {}, charts = {} }) {
  let folder;

  before(async () => {
    folder = await mkdtemp(join(tmpdir(), 'viewer-'));
    for (const [name, text] of Object.entries(files)) await writeFile(join(folder, name), text);
    assert.ok(process.env.ORVANE, 'Set ORVANE to the path of the orvane program.');
    const orvane = (args) => promisify(execFile)(resolve(process.env.ORVANE), args, { cwd: folder });
    await orvane(['protos', '.']);
    for (const [world, words] of Object.entries(charts)) {
      await orvane([...words.split(' '), '-o', world]);
    }
    server = await startViewer(folder);
    browser = await launch();
  });

  after(async () => {
    await browser?.close();
    await server?.close();
    if (folder) await rm(folder, { recursive: true });
  });

  afterEach(() => {
    assert.deepEqual(view?.complaints.splice(0) ?? [], [], 'the browser complains');
  });
}

// Shows a world as it is made, with the pointer aside. The page stays from test to test: it goes on
// to a world several times faster than a page is opened.
export async function open(world) {
  if (view) {
    await view.page.mouse.up();
    await view.open(world);
  } else {
    view = await openPage(browser, server.url, world, WINDOW);
  }
  await view.page.mouse.move(ASIDE.x, ASIDE.y);
  await view.ready();
  assert.equal(await view.trouble(), '');
}

export async function assertDrawn(page = view, message = 'nothing is drawn') {
  const share = await page.drawnShare(await page.screenshot());
  assert.ok(share > 0.05, `${message}: only ${share} of the picture`);
}

export async function assertUnlike(before, message = 'the picture is the same', least = SEEN) {
  const share = await view.changedShare(before, await view.screenshot());
  assert.ok(share > least, `${message}: ${share} of it has changed`);
}

export async function assertLike(before, message = 'the picture is not what it was') {
  const share = await view.changedShare(before, await view.screenshot());
  assert.ok(share < SAME, `${message}: ${share} of it has changed`);
}

// Holds a number, or those in arrays of any depth, against others.
export function assertNear(actual, expected, tolerance, message) {
  const [is, shall] = [actual, expected].map((numbers) => [numbers].flat(Infinity));
  assert.ok(is.length === shall.length && is.every((x, i) => Math.abs(x - shall[i]) <= tolerance),
    `${message}: ${JSON.stringify(actual)}, not ${JSON.stringify(expected)}`);
}

// Clicks on a check box: the node at `path` goes, alone among `others`, and comes back.
export async function assertToggles(box, path, others = []) {
  const place = await view.at(box);
  const whole = await view.screenshot();
  assert.ok(await view.isDrawn(path));

  await view.click(place);
  await view.move(ASIDE);
  assert.equal(await view.isDrawn(path), false);
  for (const other of others) assert.ok(await view.isDrawn(other), `${other} is gone too`);
  await assertUnlike(whole);

  await view.click(place);
  await view.move(ASIDE);
  await assertLike(whole);
}

// Sends the node at `path` other values, and its own again: the picture follows.
export async function assertRedraws(path, field) {
  const whole = await view.screenshot();
  const values = await view.read(path, field);
  await view.send(path, field, values.map((value) => 0.3 * value));
  await assertUnlike(whole, `the picture is the same with another ${path}`);
  await view.send(path, field, values);
  await assertLike(whole);
}

export const shows = async (text) => (await view.texts()).join('\n').includes(text);

export async function assertPopsUp(place, text) {
  await view.move(place);
  assert.ok(await shows(text), `no popup "${text}" among ${await view.texts()}`);
}
