// The viewer page in a real browser, on small worlds written by hand.

import assert from 'node:assert/strict';
import { readdirSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { test } from 'node:test';
import { openPage } from '../browser.mjs';
import { startViewer } from '../server.mjs';
import {
  assertDrawn, assertUnlike, browser, byHand, open, serve, server, view,
} from './worlds.mjs';

serve({
  files: {
    ...Object.fromEntries(
      readdirSync(new URL('worlds', import.meta.url)).map((name) => [name, byHand(name)])),
    '100%.wrl': byHand('two-views.wrl'),
  },
});

const heading = ({ page }) => page.getByRole('heading', { level: 1 }).textContent();
const currentLink = () => view.page.locator('nav a[aria-current="page"]').allTextContents();
const followListed = (name) => view.page.getByRole('link', { name }).click();
const button = (name) => view.page.getByRole('button', { name, exact: true });

// Waits until the world of this title is on show.
async function shown(title) {
  await view.page.getByRole('heading', { name: title }).waitFor();
  await view.ready();
}

test('lists the worlds and shows the first, all from its own server', async (context) => {
  const own = await openPage(browser, server.url);
  context.after(() => own.close());
  const requests = [];
  own.page.on('request', (request) => requests.push(request.url()));
  await own.page.reload();
  await own.ready();

  assert.equal(await heading(own), 'Two views');
  const links = own.page.locator('nav a');
  assert.deepEqual(await links.allTextContents(), ['Two views', 'A door & a wall']);
  assert.equal(await links.first().getAttribute('aria-current'), 'page');
  await assertDrawn(own);
  assert.ok(requests.includes(`${server.url}two-views.wrl`));
  const isOwn = (url) => url.startsWith(server.url) || /^(data|blob):/.test(url);
  assert.deepEqual(requests.filter((url) => !isOwn(url)), []);
  assert.deepEqual(own.complaints, []);
});

test('goes from world to world by list, by link and by the Back button, in one page', async () => {
  await open('two-views.wrl');
  await view.page.evaluate(() => { document.body.dataset.mark = 'same page'; });
  const goes = async (way, file, title, viewpoints) => {
    await way();
    await shown(title);
    assert.equal(new URL(view.page.url()).search, `?world=${file}`);
    assert.deepEqual(await currentLink(), [title]);
    assert.deepEqual(await view.viewpoints(), viewpoints);
  };
  const link = async () => view.click(await view.at('DOOR'));
  const door = ['links.wrl', 'A door & a wall', ['Front']];
  await goes(() => followListed('A door & a wall'), ...door);
  await goes(link, 'two-views.wrl', 'Two views', ['Front', 'From the left']);
  await goes(() => view.page.goBack(), ...door);
  assert.equal(await view.page.evaluate(() => document.body.dataset.mark), 'same page');
});

test('switches the viewpoint by pointer and by keyboard', async () => {
  await open('two-views.wrl');
  let [from, to] = ['Front', 'From the left'];
  for (const press of [() => button(to).click(), () => button(to).press('Enter')]) {
    assert.equal(await button(from).getAttribute('aria-pressed'), 'true');
    const before = await view.screenshot();
    await press();
    await view.still();
    assert.equal(await button(to).getAttribute('aria-pressed'), 'true');
    assert.equal(await button(from).getAttribute('aria-pressed'), 'false');
    // Seen from its side the text is gone; the box looks the same.
    await assertUnlike(before);
    [from, to] = [to, from];
  }
});

for (const [target, box, words] of [
  ['nowhere', 'WALL', /link leads nowhere/],
  ['a world of another site', 'ELSEWHERE', /another site\s+.*127\.0\.0\.2\/two-views\.wrl/],
  ['a page of another site', 'PAGE', /another site\s+.*127\.0\.0\.2\/page\.html/],
]) {
  test(`says that a link inside a world leads to ${target}, and keeps the world`, async () => {
    await open('links.wrl');
    await view.click(await view.at(box));
    await view.page.getByRole('alert').waitFor();
    assert.match(await view.trouble(), words);
    await assertDrawn();
    assert.deepEqual(await view.viewpoints(), ['Front']);
    view.complaints.length = 0;
  });
}

for (const [name, world, words] of [
  ['a missing file', 'nowhere.wrl', /nowhere\.wrl was not found/],
  ['a file that is no world', 'not-vrml.wrl', /not-vrml\.wrl is not a VRML world/],
  ['a world with an error in it', 'broken.wrl', /broken\.wrl is a broken world\s+Line 3: .*size/],
  ['a world elsewhere', 'http://127.0.0.2/two-views.wrl', /elsewhere/],
  ['a malformed address', 'http://', /elsewhere/],
  ['missing PROTO files', 'missing-protos.wrl', new RegExp(
    'LEFT\\.wrl could not be loaded.*: qm4_Left, qm4_Middle\\.\\s+.*RIGHT\\.wrl.*: qm4_Right\\.')],
]) {
  test(`says what is wrong with ${name}`, async () => {
    await open('links.wrl');
    await view.open(world);
    await view.ready();
    assert.match(await view.trouble(), words);
    assert.equal(await view.page.getByRole('status').isVisible(), false);

    // The next world is shown as if nothing had happened.
    await followListed('Two views');
    await shown('Two views');
    assert.equal(await view.trouble(), '');
    await assertDrawn();
    view.complaints.length = 0;
  });
}

test('works without a list of worlds', async (context) => {
  const bare = await startViewer(fileURLToPath(new URL('.', import.meta.url)));
  context.after(() => bare.close());
  const own = await openPage(browser, bare.url);
  context.after(() => own.close());
  await own.ready();
  assert.match(await own.trouble(), /No world to show/);

  await own.open('worlds/two-views.wrl');
  await own.ready();
  assert.equal(await own.trouble(), '');
  assert.equal(await heading(own), 'two-views.wrl');
  assert.equal(await own.page.locator('nav').isVisible(), false);
});

test('shows a world whose name has a percent sign in it', async () => {
  await open('100%.wrl');
  assert.equal(await heading(view), '100%.wrl');
  await assertDrawn();
});

for (const [lack, prepare, words] of [
  ['a list of worlds that can be read', (page) => page.route('**/worlds.json', (route) => (
    route.fulfill({ json: [{ file: 'two-views.wrl' }, { title: 'Nothing' }] }))), /array of objects/],
  ['X_ITE', (page) => page.route('**/x_ite.min.mjs', (route) => route.abort()), /not complete/],
  ['WebGL', (page) => page.addInitScript(() => {
    HTMLCanvasElement.prototype.getContext = () => null;
  }), /cannot draw worlds/],
]) {
  test(`says that it lacks ${lack}`, async (context) => {
    const own = await openPage(browser, server.url, 'two-views.wrl');
    context.after(() => own.close());
    await prepare(own.page);
    await own.page.reload();
    await own.page.getByRole('alert').waitFor();
    assert.match(await own.trouble(), words);
  });
}

test('says what it is doing while a world is on its way', async () => {
  await open('two-views.wrl');
  const status = view.page.getByRole('status');
  let letGo;
  const held = new Promise((done) => { letGo = done; });
  await view.page.route('**/links.wrl', (route) => held.then(() => route.continue()));
  await followListed('A door & a wall');
  await status.filter({ hasText: 'Fetching links.wrl' }).waitFor();
  letGo();
  await shown('A door & a wall');
  assert.equal(await status.isVisible(), false);
});

test('fits a narrow window, with a stage no taller than 4:3', async () => {
  await open('two-views.wrl');
  await view.page.setViewportSize({ width: 320, height: 640 });
  const widest = await view.page.evaluate(() => document.scrollingElement.scrollWidth);
  assert.ok(widest <= 320, `the page is ${widest} pixels wide`);
  const canvas = await view.page.locator('x3d-canvas').boundingBox();
  assert.ok(canvas.width > 280 && canvas.height > 200, JSON.stringify(canvas));
  assert.ok(canvas.width / canvas.height > 1.33, JSON.stringify(canvas));
});
