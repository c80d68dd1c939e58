// Shows a VRML world, the list of the worlds beside it, and the world's viewpoints.

// X_ITE makes the browser of the canvas element, where it finds what it needs.
const X3D = await import('./x_ite/x_ite.min.mjs').then((module) => module.default, () => null);
const canvas = document.querySelector('x3d-canvas');
const { browser } = canvas;
const heading = document.querySelector('#title');
const list = document.querySelector('#worlds');
const stage = document.querySelector('.stage');
const status = document.querySelector('#status');
const alert = document.querySelector('#alert');
const viewpoints = document.querySelector('#viewpoints');

// The worlds beside the page, an array of { file, title }; empty when the page has no list, null
// when what it has is none.
const listed = await fetch('worlds.json')
  .then((response) => (response.ok ? response.json() : []))
  .then((entries) => (entries.every(({ file }) => urlOf(file)) ? entries : null))
  .catch(() => null);
const worlds = listed ?? [];

// The URL of the world on show, and the number of worlds that were asked for so far: an answer
// that arrives after a later question is dropped.
let current = '';
let asked = 0;

// The empty world that X_ITE starts with.
const emptyURL = browser?.currentScene.worldURL;

// When the world on show was complete, in ms since the page began; never, while one is loading.
let shownAt = Infinity;

// What the page tells its reader: a title and one paragraph or more, each a text or an element.
class Trouble extends Error {
  constructor(title, ...details) {
    super(title);
    this.details = details;
  }
}

function element(tag, properties, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

// The URL of a world that is named relative to this page; null for what names none. A percent sign
// that begins no escape stands for itself.
function urlOf(name) {
  const mended = String(name ?? '').replace(/%(?![\da-f]{2})/gi, '%25');
  return mended && URL.canParse(mended, document.baseURI) ? new URL(mended, document.baseURI) : null;
}

function fileName(url) {
  const name = new URL(url).pathname.split('/').pop();
  try {
    return decodeURIComponent(name);
  } catch {
    return name;  // Escapes of something other than UTF-8.
  }
}

// The address of this page with the world at `url`, which is named relative to the page where it
// lies beside or below it.
function addressOf(url) {
  const folder = new URL('.', document.baseURI).href;
  const path = url.startsWith(folder) ? url.slice(folder.length) : new URL(url).pathname;
  return `?world=${encodeURIComponent(path)}`;
}

// Says what the page is busy with, or with no words that it is done.
function showStatus(words) {
  status.textContent = words;
  status.hidden = !words;
  stage.setAttribute('aria-busy', Boolean(words));
  shownAt = words ? Infinity : performance.now();
}

function showTrouble(trouble) {
  alert.replaceChildren(
    element('h2', {}, trouble.message),
    ...trouble.details.map((detail) => element('p', {}, detail)),
  );
  alert.hidden = false;
}

function unreadableList() {
  return new Trouble(
    'The list of worlds cannot be read',
    'worlds.json is an array of objects, each with the file of a world and its title.',
  );
}

// The world that the page's address asks for; without a name, the first of the list.
function requested() {
  const name = new URLSearchParams(location.search).get('world') ?? worlds[0]?.file;
  if (!name) {
    throw !listed ? unreadableList() : new Trouble(
      'No world to show',
      'Name one in the address of this page: ?world=NAME.wrl.',
    );
  }
  const url = urlOf(name);
  if (url?.origin !== location.origin) {
    throw new Trouble('That world lies elsewhere', 'Only worlds of this site are shown here.');
  }
  return url.href;
}

async function textOf(url) {
  const name = fileName(url);
  const response = await fetch(url).catch(() => {
    throw new Trouble(`${name} could not be fetched`, 'The server does not answer.');
  });
  if (response.status === 404) {
    throw new Trouble(`${name} was not found`, `There is no file at ${url}.`);
  }
  if (!response.ok) {
    throw new Trouble(`${name} could not be fetched`, `The server answered ${response.status}.`);
  }
  const text = await response.text();
  if (!text.startsWith('#VRML V2.0 utf8')) {
    throw new Trouble(
      `${name} is not a VRML world`,
      'The first line of a VRML97 world reads “#VRML V2.0 utf8”.',
    );
  }
  return text;
}

// X_ITE's report of a syntax error is a block of lines: where, in which file, the source line with
// a mark below it, and what was expected.
function syntaxTrouble(url, error) {
  const lines = error.message.split('\n').filter((line) => line.trim() && !/^\*+$/.test(line));
  const line = lines[0]?.match(/at line (\d+)/)?.[1];
  return new Trouble(
    `${fileName(url)} is a broken world`,
    line ? `Line ${line}: ${lines.at(-1)}` : lines.join(' '),
  );
}

// Replaces the world on show by the one at `url`.
async function open(url) {
  const turn = ++asked;
  alert.hidden = true;
  try {
    showStatus(`Fetching ${fileName(url)} …`);
    const text = await textOf(url);
    if (turn !== asked) return;

    showStatus(`Building ${fileName(url)} …`);
    browser.baseURL = url;
    const scene = await browser.createX3DFromString(text).catch((error) => {
      throw syntaxTrouble(url, error);
    });
    if (turn !== asked) return;

    current = url;
    await browser.replaceWorld(scene);
    await present();
  } catch (trouble) {
    if (turn !== asked) return;
    if (!(trouble instanceof Trouble)) throw trouble;
    current = url;
    await clear();
    showTrouble(trouble);
  } finally {
    if (turn === asked) showStatus('');
  }
}

// Takes the picture of an earlier world away.
async function clear() {
  announce();
  stage.classList.add('empty');
  viewpoints.hidden = true;
  await browser.replaceWorld(null);
}

// Brings title, list and viewpoints in line with the world on show.
async function present() {
  announce();
  stage.classList.remove('empty');

  // The viewer learns of viewpoints when it draws its first frame.
  await browser.nextFrame();
  listViewpoints();

  const missing = missingProtos();
  if (missing.length) showTrouble(new Trouble('Parts of this world are missing', ...missing));
}

function missingProtos() {
  const files = new Map();
  for (const proto of browser.currentScene.externprotos) {
    if (proto.loadState !== X3D.X3DConstants.FAILED_STATE) continue;
    const file = fileName(new URL(proto.urls[0] ?? '', current));
    files.set(file, [...(files.get(file) ?? []), proto.name]);
  }
  return [...files].map(([file, names]) =>
    `The PROTO file ${file} could not be loaded; the world takes from it: ${names.join(', ')}.`);
}

function listWorlds() {
  const links = worlds.map(({ file, title }) => {
    const { href } = urlOf(file);
    return element('li', {}, element('a', { href: addressOf(href) }, title ?? file));
  });
  list.querySelector('ul').replaceChildren(...links);
  list.hidden = links.length === 0;
}

// Names the current world in the heading and marks it in the list.
function announce() {
  const entry = worlds.find(({ file }) => urlOf(file).href === current);
  heading.textContent = entry?.title ?? fileName(current);
  document.title = `${heading.textContent} – Orvane`;

  for (const link of list.querySelectorAll('a')) {
    link.removeAttribute('aria-current');
    if (link.search !== addressOf(current)) continue;
    link.setAttribute('aria-current', 'page');
    link.scrollIntoView({ block: 'nearest', inline: 'nearest' });
  }
}

function listViewpoints() {
  const layer = browser.getActiveLayer();
  const buttons = layer.getUserViewpoints().map((viewpoint) => {
    const button = element('button', { type: 'button' }, viewpoint.getDescriptions()[0]);
    const bound = viewpoint.getField('isBound');
    const mark = () => button.setAttribute('aria-pressed', bound.getValue());
    bound.addFieldCallback('viewpoints', mark);
    mark();
    button.addEventListener('click', () => browser.bindViewpoint(layer, viewpoint));
    return button;
  });
  viewpoints.replaceChildren(...buttons);
  viewpoints.hidden = buttons.length === 0;
}

async function openRequested() {
  try {
    await open(requested());
  } catch (trouble) {
    if (!(trouble instanceof Trouble)) throw trouble;
    giveUp(trouble);
  }
  if (!listed && alert.hidden) showTrouble(unreadableList());
}

// A link inside the world led to another world.
async function followLink() {
  const { worldURL } = browser.currentScene;
  if (shownAt === Infinity || worldURL === emptyURL) return;
  current = worldURL.replace(/#.*/, '');
  alert.hidden = true;
  if (addressOf(current) !== location.search) history.pushState(null, '', addressOf(current));
  await present();
  showStatus('');
}

function showDeadLink() {
  showTrouble(new Trouble('The link leads nowhere', 'The world it names could not be loaded.'));
}

// An Anchor does not tell that its world is missing; the request that fails tells. It is a link's
// when it began after the world was complete.
function watchRequests(entries) {
  const failed = entries.getEntries().some(({ initiatorType, responseStatus, startTime }) =>
    initiatorType === 'fetch' && responseStatus >= 400 && startTime > shownAt);
  if (failed) showDeadLink();
}

// The page's content security policy has kept something of the world from being fetched.
function showBlocked({ blockedURI }) {
  showTrouble(new Trouble(
    'The world asks for something of another site',
    `Nothing is fetched from there: ${blockedURI}`,
  ));
}

// A link inside the world, or one of its scripts, leads out of this site: the reader decides.
// Browsers that do not tell of it let it go.
function holdBack(event) {
  const { url } = event.destination;
  if (!event.cancelable || new URL(url).origin === location.origin) return;
  event.preventDefault();
  const link = element('a', { href: url, target: '_blank', rel: 'noreferrer' }, url);
  showTrouble(new Trouble('The link leads to another site', link));
}

function start() {
  list.addEventListener('click', (event) => {
    const link = event.target.closest('a');
    if (!link || event.ctrlKey || event.metaKey || event.shiftKey) return;
    event.preventDefault();
    if (link.href !== location.href) history.pushState(null, '', link.href);
    openRequested();
  });

  addEventListener('popstate', openRequested);

  canvas.addEventListener('load', followLink);
  canvas.addEventListener('error', showDeadLink);
  document.addEventListener('securitypolicyviolation', showBlocked);
  globalThis.navigation?.addEventListener('navigate', holdBack);
  new PerformanceObserver(watchRequests).observe({ type: 'resource' });

  listWorlds();
  openRequested();
}

function giveUp(trouble) {
  showStatus('');
  showTrouble(trouble);
}

if (browser) {
  start();
} else if (X3D) {
  giveUp(new Trouble('This browser cannot draw worlds', 'It offers no WebGL 2.'));
} else {
  giveUp(new Trouble('The viewer is not complete', 'The folder x_ite beside it is missing.'));
}
