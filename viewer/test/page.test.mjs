// The viewer page in a real browser, on small worlds written by hand.

import assert from 'node:assert/strict';
import { fileURLToPath } from 'node:url';
import { after, afterEach, before, beforeEach, test } from 'node:test';
import { launch, openPage } from '../browser.mjs';
import { startViewer } from '../server.mjs';

const WORLDS = fileURLToPath(new URL('worlds', import.meta.url));

let browser;
let server;
let view;

before(async () => {
  browser = await launch();
});
after(() => browser?.close());

beforeEach(async () => {
  server = await startViewer(WORLDS);
});
afterEach(async () => {
  await view?.close();
  await server.close();
});

async function open(world, size) {
  view = await openPage(browser, server.url, world, size);
  await view.ready();
  return view.page;
}

const heading = (page) => page.getByRole('heading', { level: 1 }).textContent();
const currentLink = (page) => page.locator('nav a[aria-current="page"]').allTextContents();

test('lists the worlds and shows the first, without a request beyond its server', async () => {
  view = await openPage(browser, server.url);
  const requests = [];
  view.page.on('request', (request) => requests.push(request.url()));
  await view.page.reload();
  await view.ready();

  assert.equal(await heading(view.page), 'Two views');
  const links = await view.page.locator('nav a').allTextContents();
  assert.deepEqual(links, ['Two views', 'A door & a wall']);
  assert.deepEqual(await currentLink(view.page), ['Two views']);
  assert.ok((await view.drawnShare(await view.screenshot())) > 0.05);
  assert.ok(requests.includes(`${server.url}two-views.wrl`));
  const own = (url) => url.startsWith(server.url) || /^(data|blob):/.test(url);
  assert.deepEqual(requests.filter((url) => !own(url)), []);
  assert.deepEqual(view.complaints, []);
});

test('goes from world to world by the list and by the Back button, in one page', async () => {
  const page = await open('two-views.wrl');
  await page.evaluate(() => { document.body.dataset.mark = 'same page'; });

  await page.getByRole('link', { name: 'A door & a wall' }).click();
  await page.getByRole('heading', { name: 'A door & a wall' }).waitFor();
  await view.ready();
  assert.match(page.url(), /\?world=links\.wrl$/);
  assert.deepEqual(await currentLink(page), ['A door & a wall']);
  assert.deepEqual(await view.viewpoints(), ['Front']);

  await page.goBack();
  await page.getByRole('heading', { name: 'Two views' }).waitFor();
  await view.ready();
  assert.deepEqual(await view.viewpoints(), ['Front', 'From the left']);
  assert.equal(await page.evaluate(() => document.body.dataset.mark), 'same page');
  assert.deepEqual(view.complaints, []);
});

for (const [way, press] of [
  ['pointer', (button) => button.click()],
  ['keyboard', (button) => button.press('Enter')],
]) {
  test(`switches the viewpoint by ${way}`, async () => {
    const page = await open('two-views.wrl');
    const button = (name) => page.getByRole('button', { name, exact: true });
    const front = await view.screenshot();
    assert.equal(await button('Front').getAttribute('aria-pressed'), 'true');

    await press(button('From the left'));
    await view.still();
    assert.equal(await button('From the left').getAttribute('aria-pressed'), 'true');
    assert.equal(await button('Front').getAttribute('aria-pressed'), 'false');
    // Seen from its side the text is gone; the box looks the same.
    const share = await view.changedShare(front, await view.screenshot());
    assert.ok(share > 0.005, `only ${share} of the picture has changed`);
  });
}

test('follows a link inside a world', async () => {
  const page = await open('links.wrl');
  await view.click(await view.at('DOOR'));
  await page.getByRole('heading', { name: 'Two views' }).waitFor();
  await view.ready();
  assert.match(page.url(), /\?world=two-views\.wrl$/);
  assert.deepEqual(await currentLink(page), ['Two views']);
  assert.deepEqual(await view.viewpoints(), ['Front', 'From the left']);
});

test('says that a link inside a world is dead, and keeps the world', async () => {
  await open('links.wrl');
  const before = await view.drawnShare(await view.screenshot());
  await view.click(await view.at('WALL'));
  await view.page.getByRole('alert').waitFor();
  assert.match(await view.trouble(), /link leads nowhere/);
  assert.ok(before > 0.05);
  assert.deepEqual(await view.viewpoints(), ['Front']);
});

const troubles = [
  ['a missing file', 'nowhere.wrl', /nowhere\.wrl was not found/],
  ['a file that is no world', 'not-vrml.wrl', /not-vrml\.wrl is not a VRML world/],
  ['a world with an error in it', 'broken.wrl', /broken\.wrl is a broken world\s+Line 3: .*size/],
  ['a world elsewhere', 'http://127.0.0.2/two-views.wrl', /elsewhere/],
  ['a malformed address', 'http://', /elsewhere/],
  ['missing PROTO files', 'missing-protos.wrl', new RegExp(
    'LEFT\\.wrl could not be loaded.*: qm4_Left, qm4_Middle\\.\\s+.*RIGHT\\.wrl.*: qm4_Right\\.')],
];

for (const [name, world, words] of troubles) {
  test(`says what is wrong with ${name}`, async () => {
    const page = await open(world);
    assert.match(await view.trouble(), words);
    assert.equal(await page.getByRole('status').isVisible(), false);

    // The next world is shown as if nothing had happened.
    await page.getByRole('link', { name: 'Two views' }).click();
    await page.getByRole('heading', { name: 'Two views' }).waitFor();
    await view.ready();
    assert.equal(await view.trouble(), '');
    assert.ok((await view.drawnShare(await view.screenshot())) > 0.05);
  });
}

test('works without a list of worlds', async (context) => {
  const bare = await startViewer(fileURLToPath(new URL('.', import.meta.url)));
  context.after(() => bare.close());
  view = await openPage(browser, bare.url);
  await view.ready();
  assert.match(await view.trouble(), /No world to show/);
  await view.close();

  view = await openPage(browser, bare.url, 'worlds/two-views.wrl');
  await view.ready();
  assert.equal(await view.trouble(), '');
  assert.equal(await heading(view.page), 'two-views.wrl');
  assert.equal(await view.page.locator('nav').isVisible(), false);
});

for (const [lack, prepare, words] of [
  ['X_ITE', (page) => page.route('**/x_ite.min.mjs', (route) => route.abort()), /not complete/],
  ['WebGL', (page) => page.addInitScript(() => {
    HTMLCanvasElement.prototype.getContext = () => null;
  }), /cannot draw worlds/],
]) {
  test(`says that it lacks ${lack}`, async () => {
    view = await openPage(browser, server.url, 'two-views.wrl');
    await prepare(view.page);
    await view.page.reload();
    await view.page.getByRole('alert').waitFor();
    assert.match(await view.trouble(), words);
  });
}

test('says what it is doing while a world is on its way', async () => {
  const page = await open('two-views.wrl');
  let letGo;
  const held = new Promise((done) => { letGo = done; });
  await page.route('**/links.wrl', (route) => held.then(() => route.continue()));
  await page.getByRole('link', { name: 'A door & a wall' }).click();
  await page.getByRole('status').filter({ hasText: 'Fetching links.wrl' }).waitFor();
  letGo();
  await page.getByRole('heading', { name: 'A door & a wall' }).waitFor();
  await view.ready();
  assert.equal(await page.getByRole('status').isVisible(), false);
});

test('fits a narrow window, with a stage no taller than 4:3', async () => {
  const page = await open('two-views.wrl', { width: 320, height: 640 });
  const widest = await page.evaluate(() => document.scrollingElement.scrollWidth);
  assert.ok(widest <= 320, `the page is ${widest} pixels wide`);
  const canvas = await page.locator('x3d-canvas').boundingBox();
  assert.ok(canvas.width > 280 && canvas.height > 200, JSON.stringify(canvas));
  assert.ok(canvas.width / canvas.height > 1.33, JSON.stringify(canvas));
});
