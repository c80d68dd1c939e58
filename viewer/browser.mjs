// Opens worlds in the viewer page, in a real headless browser: to point at things, to read the
// state of the scene, and to take pictures.

import { chromium } from 'playwright-core';

// Software rendering, so that pictures do not depend on the machine's graphics.
const FLAGS = [
  '--no-sandbox', '--disable-gpu', '--use-gl=angle', '--use-angle=swiftshader',
  '--enable-unsafe-swiftshader', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

// A remark of the graphics driver on its own speed says nothing about the world.
const DRIVER_REMARK = /GL Driver Message \(OpenGL, Performance/;

// A page without a list of worlds is complete; the browser reports the missing file all the same.
const NO_LIST = /\/worlds\.json$/;

// X_ITE's passing notices ("Front") are no part of the world.
const WORLD_ONLY = '.x_ite-private-notification { display: none !important; }';

// How long a world may take to be ready, in ms: a busy machine draws slowly in software.
const PATIENCE = 120000;

export function launch() {
  return chromium.launch({ executablePath: '/usr/bin/chromium', args: FLAGS });
}

// Opens the viewer page of the server at `url` with a world, which is named by its URL relative to
// the page, or with the page's own choice. The world may still be loading; `view.ready()` waits.
export async function openPage(browser, url, world = '', size = { width: 1024, height: 768 }) {
  const page = await browser.newPage({ viewport: size });
  page.setDefaultTimeout(PATIENCE);
  const view = new View(page);
  const address = new URL('index.html', url);
  if (world) address.searchParams.set('world', world);
  await page.goto(address.href);
  return view;
}

class View {
  constructor(page) {
    this.page = page;

    // Every warning and error that the page's console showed.
    this.complaints = [];
    page.on('console', (message) => {
      if (!['warning', 'error', 'assert'].includes(message.type())) return;
      const { url } = message.location();
      if (DRIVER_REMARK.test(message.text()) || NO_LIST.test(url)) return;
      this.complaints.push(`${message.text()} (${url})`);
    });
    page.on('pageerror', (error) => this.complaints.push(error.stack ?? String(error)));
  }

  close() {
    return this.page.close();
  }

  // Goes on to another world, named as for `openPage`, as a link in the page's list would.
  open(world) {
    return this.page.evaluate((address) => {
      history.pushState(null, '', address);
      dispatchEvent(new PopStateEvent('popstate'));
    }, `?world=${encodeURIComponent(world)}`);
  }

  // Waits until the page is done with loading, and the world with its fonts is drawn.
  async ready() {
    await this.page.locator('.stage[aria-busy="false"]').waitFor({ state: 'attached' });
    await this.still();
  }

  // What the page says went wrong, or an empty string.
  async trouble() {
    const alert = this.page.getByRole('alert');
    return (await alert.isVisible()) ? alert.innerText() : '';
  }

  // Waits until nothing is loading and no camera is on its way, for several frames on end: X_ITE
  // takes pointer events in with its frames, and draws texts some frames after their font has come.
  async still() {
    await this.page.evaluate(async () => {
      const { browser } = document.querySelector('x3d-canvas');
      for (let quiet = 0; quiet < 8; ++quiet) {
        await new Promise(requestAnimationFrame);
        const moving = browser.getActiveNavigationInfo()?._transitionActive.getValue();
        if (browser.getBrowserLoading() || browser.getLoadingObjects().size || moving) quiet = -1;
      }
    });
  }

  // The descriptions of the world's viewpoints, as the page offers them.
  viewpoints() {
    return this.page.locator('#viewpoints button').allTextContents();
  }

  async viewpoint(description) {
    const buttons = this.page.locator('#viewpoints');
    await buttons.getByRole('button', { name: description, exact: true }).dispatchEvent('click');
    await this.still();
  }

  screenshot(path) {
    return this.page.locator('x3d-canvas').screenshot({ path, style: WORLD_ONLY });
  }

  // The share of a picture, 0 to 1, that is not background: pixels unlike the one at the left edge
  // of their row, so that a sky in bands of colour counts as empty.
  drawnShare(picture) {
    return this.page.evaluate(shareUnlike, [picture.toString('base64')]);
  }

  // The share of the picture, 0 to 1, in which two pictures differ.
  changedShare(before, after) {
    return this.page.evaluate(shareUnlike, [before, after].map((png) => png.toString('base64')));
  }

  // The pixels of one row of a picture, from left to right: [red, green, blue] each, 0 to 255.
  row(picture, y) {
    return this.page.evaluate(pixelsOfRow, [picture.toString('base64'), Math.round(y)]);
  }

  // Where a picture shows something of a colour, in pixels from the left, or else from the top: the
  // middle of each run of columns, or rows, with pixels in which `channel` (0 red, 1 green, 2 blue)
  // is far above the others.
  bands(picture, channel, fromLeft) {
    return this.page.evaluate(middlesOfBands, [picture.toString('base64'), channel, fromLeft]);
  }

  // The value of a node's field; the node is named as for `at`.
  read(path, field) {
    return this.#inScene(({ find, plain }, { path, field }) => (
      plain(find(path).at(-1).getField(field))
    ), { path, field });
  }

  // The values of several fields, [path, field] each, in every frame from now on for `seconds`.
  watch(fields, seconds) {
    return this.#inScene(async ({ find, plain }, { fields, seconds }) => {
      const watched = fields.map(([path, field]) => find(path).at(-1).getField(field));
      const frames = [];
      for (const end = Date.now() + 1000 * seconds; Date.now() < end;) {
        await new Promise(requestAnimationFrame);
        frames.push(watched.map(plain));
      }
      return frames;
    }, { fields, seconds });
  }

  // Sends a field of a node a new value, as a ROUTE would: an array for an MFFloat or MFVec3f.
  async send(path, field, value) {
    await this.#inScene(({ find, send }, { path, field, value }) => (
      send(find(path).at(-1), field, value)
    ), { path, field, value });
    await this.still();
  }

  // The strings of every Text node that is drawn.
  texts() {
    return this.#inScene(({ drawnTexts }) => drawnTexts());
  }

  // Whether a node is drawn: no Switch on the way to it has chosen otherwise.
  isDrawn(path) {
    return this.#inScene(({ find, chosen }, path) => (
      find(path).every((node, i, chain) => i === 0 || chosen(chain[i - 1]).includes(node))
    ), path);
  }

  // Where in the window a point of a node is, in CSS pixels. `path` leads to the node by DEF names
  // or types, each looked for below the one before it ("SERIES_TOGGLE_1", "qm4_PopupStrip").
  // `point` is in the node's own frame, inside its translation, rotation and scale; without one,
  // the middle of the node's bounding box is meant.
  at(path, point) {
    return this.#inScene(({ find, place }, { path, point }) => place(find(path), point),
      { path, point });
  }

  // Lets the pointer rest at a place in the window, as `at` gives it.
  async move({ x, y }) {
    await this.page.mouse.move(x, y, { steps: 3 });
    await this.still();
  }

  // Presses the pointer's button and keeps it down: what moves then is dragged.
  async press(place) {
    await this.move(place);
    await this.page.mouse.down();
    await this.still();
  }

  async release() {
    await this.page.mouse.up();
    await this.still();
  }

  async click(place) {
    await this.press(place);
    await this.release();
  }

  // Presses at one place, moves to another in small steps, and lets go there.
  async drag(from, to) {
    await this.press(from);
    await this.page.mouse.move(to.x, to.y, { steps: 12 });
    await this.release();
  }

  // Calls `task` in the page with the tools of `sceneTools` and `argument`.
  #inScene(task, argument) {
    return this.page.evaluate(`import('./x_ite/x_ite.min.mjs').then(({ default: X3D }) => {
      const tools = (${sceneTools})(X3D, document.querySelector('x3d-canvas'));
      return (${task})(tools, ${JSON.stringify(argument)});
    })`);
  }
}

// Runs in the page, which has a decoder for pictures at hand: the share of the first picture's
// pixels that are clearly unlike those of the second, or of their own row's first pixel.
async function shareUnlike(pictures) {
  const [one, other] = await Promise.all(pictures.map(async (png) => {
    const bytes = Uint8Array.from(atob(png), (char) => char.charCodeAt(0));
    const bitmap = await createImageBitmap(new Blob([bytes]));
    const context = new OffscreenCanvas(bitmap.width, bitmap.height).getContext('2d');
    context.drawImage(bitmap, 0, 0);
    return context.getImageData(0, 0, bitmap.width, bitmap.height);
  }));
  let unlike = 0;
  for (let at = 0; at < one.data.length; at += 4) {
    const peer = other ? at : at - (at % (4 * one.width));
    const from = (other ?? one).data;
    if ([0, 1, 2].some((i) => Math.abs(one.data[at + i] - from[peer + i]) > 16)) ++unlike;
  }
  return unlike / (one.width * one.height);
}

// Runs in the page.
async function pixelsOfRow([png, y]) {
  const bytes = Uint8Array.from(atob(png), (char) => char.charCodeAt(0));
  const bitmap = await createImageBitmap(new Blob([bytes]));
  const context = new OffscreenCanvas(bitmap.width, 1).getContext('2d');
  context.drawImage(bitmap, 0, -y);
  const { data } = context.getImageData(0, 0, bitmap.width, 1);
  return Array.from({ length: bitmap.width }, (_, x) => [...data.slice(4 * x, 4 * x + 3)]);
}

// Runs in the page.
async function middlesOfBands([png, channel, fromLeft]) {
  const bytes = Uint8Array.from(atob(png), (char) => char.charCodeAt(0));
  const bitmap = await createImageBitmap(new Blob([bytes]));
  const { width, height } = bitmap;
  const context = new OffscreenCanvas(width, height).getContext('2d');
  context.drawImage(bitmap, 0, 0);
  const { data } = context.getImageData(0, 0, width, height);
  const isColoured = Array(fromLeft ? width : height).fill(false);
  for (let at = 0; at < data.length; at += 4) {
    const others = [0, 1, 2].filter((i) => i !== channel).map((i) => data[at + i]);
    if (data[at + channel] < 80 + 2 * Math.max(...others)) continue;
    isColoured[fromLeft ? (at / 4) % width : Math.floor(at / 4 / width)] = true;
  }
  const edges = isColoured.flatMap((is, i) => (is !== Boolean(isColoured[i - 1]) ? [i] : []));
  return edges.flatMap((edge, i) => (i % 2 ? [(edges[i - 1] + edge) / 2] : []));
}

// Runs in the page: ways through the scene on X_ITE's side of it. X_ITE keeps matrices as arrays of
// 16 numbers and, as VRML does, multiplies a row vector from the left.
function sceneTools(X3D, canvas) {
  const { browser } = canvas;

  // A PROTO instance shows the first node of its body; any other node shows itself.
  const isInstance = (node) => 'getBody' in node;
  const shown = (node) => (isInstance(node) ? node.getBody().getRootNodes()[0].getValue() : node);

  // The nodes right below a node, as far as they can be drawn: not what hangs in a Script.
  function children(node) {
    if (isInstance(node)) return [shown(node)];
    if (node.getTypeName() === 'Script') return [];
    return [...node.getFields()].flatMap((field) => {
      if (field.getTypeName() === 'SFNode') return [field.getValue()];
      if (field.getTypeName() === 'MFNode') return [...field].map((child) => child?.getValue());
      return [];
    }).filter(Boolean);
  }

  const roots = () => [...browser.currentScene.rootNodes].map((node) => node.getValue());

  // The chain of nodes from the root to the first node below `chain` that a name or type fits.
  function search(name, chain, seen = new Set()) {
    for (const node of chain.length ? children(chain.at(-1)) : roots()) {
      if (seen.has(node)) continue;
      seen.add(node);
      const longer = [...chain, node];
      if (node.getName() === name || node.getTypeName() === name) return longer;
      const found = search(name, longer, seen);
      if (found) return found;
    }
    return null;
  }

  function find(path) {
    let chain = [];
    for (const name of [path].flat()) {
      chain = search(name, chain);
      if (!chain) throw new Error(`no ${name} in the scene (on the way ${path})`);
    }
    return chain;
  }

  function times(vector, matrix) {
    return [0, 1, 2, 3].map((j) => vector.reduce((sum, v, i) => sum + v * matrix[4 * i + j], 0));
  }

  // Where a point of the chain's last node, or else the middle of its bounding box, is on screen.
  function place(chain, point) {
    const last = shown(chain.at(-1));
    if (point) return project([...chain.slice(0, -1), last], point);
    // The box is given in the frame of the node above.
    return project(chain.slice(0, -1), [...last.getBBox(new X3D.Box3()).center]);
  }

  function project(chain, point) {
    const layer = browser.getActiveLayer();
    const viewpoint = browser.getActiveViewpoint();
    const matrices = [
      ...chain.map((node) => node.getMatrix?.()).filter(Boolean).reverse(),
      viewpoint.getViewMatrix(),
      viewpoint.getProjectionMatrix(layer),
    ];
    const [x, y, , w] = matrices.reduce(times, [...point, 1]);
    const box = canvas.getBoundingClientRect();
    return {
      x: box.left + ((1 + x / w) / 2) * box.width,
      y: box.top + ((1 - y / w) / 2) * box.height,
    };
  }

  function plain(field) {
    const value = field.getValue();
    if (typeof value !== 'object') return value;
    return [...field].map((element) => (typeof element === 'object' ? [...element] : element));
  }

  function send(node, field, value) {
    const target = node.getField(field);
    if (!Array.isArray(value)) {
      target.setValue(value);
      return;
    }
    const elements = value.map((element) => (
      Array.isArray(element) ? new X3D.SFVec3f(...element) : element));
    target.assign(new X3D[target.getTypeName()](...elements));
  }

  // Those of a node's children that are drawn.
  function chosen(node) {
    if (node.getTypeName() !== 'Switch') return children(node);
    const choice = children(node)[node.getField('whichChoice').getValue()];
    return choice ? [choice] : [];
  }

  function drawnTexts(nodes = roots()) {
    return nodes.flatMap((node) => (
      node.getTypeName() === 'Text' ? [...node.getField('string')] : drawnTexts(chosen(node))));
  }

  return { find, place, plain, send, chosen, drawnTexts };
}
