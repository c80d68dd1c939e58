// A page with a chart in it: shows the worlds that it carries, and offers with buttons and keys what the
// chart offers to the pointer.

import { Player } from 'player';
import { fill, save, tend } from './table.js';

const SCHEMES = ['http:', 'https:', 'mailto:', 'file:'];
const FONTS = { SANS: '"Orvane Sans", system-ui, sans-serif', SERIF: 'serif', TYPEWRITER: 'monospace' };

const part = (id) => document.getElementById(id);
const state = part('state'), value = part('value'), stage = part('stage');

class Page {
  #player;
  #worlds;
  #history = [];
  #world = '';

  constructor(worlds) {
    this.#worlds = worlds;
    const place = stage.querySelector('.player');
    this.#player = new Player(place, { fonts: FONTS });
    this.#player.listen('progress', ({ text }) => { state.textContent = text; });
    this.#player.listen('value', (pointed) => this.#pointed(pointed));
    this.#player.listen('toggle', ({ name, isOn }) => {
      for (const box of part('key').querySelectorAll('input')) if (box.value === name) box.checked = isOn;
    });
    this.#player.listen('viewpoint', ({ index }) => press(part('views'), index));
    this.#player.listen('link', ({ urls }) => this.#follow(urls));
    place.addEventListener('keydown', (event) => this.#key(event), true);
    place.addEventListener('focusout', () => this.#leave());
    this.#tools();
    addEventListener('beforeprint', () => { part('data').open = true; });
  }

  async open(name) {
    await this.#player.load(this.#worlds[name], { url: name });
    this.#world = name;
    stage.querySelector('img.still')?.remove();
    this.#views();
    this.#entries();
    part('back').hidden = this.#history.length === 0;
    await this.#player.idle();
    stage.dataset.ready = name;
    this.#picture();
  }

  get player() { return this.#player; }

  #tools() {
    const tools = part('tools'), player = this.#player;
    button(part('back'), 'Back', () => this.open(this.#history.pop()));
    const parallel = button(tools, 'Parallel', () => {
      player.parallel = !player.parallel;
      parallel.setAttribute('aria-pressed', player.parallel);
    });
    parallel.setAttribute('aria-pressed', 'false');
    parallel.title = 'Parallel lines stay parallel';
    button(tools, 'Reset', () => player.reset()).title = 'Back to where this view was';
    button(tools, 'Save picture', async () => save(await player.still({ scale: 2 }), 'png'));
    if (document.fullscreenEnabled) {
      button(tools, 'Full screen', () => (document.fullscreenElement ? document.exitFullscreen()
        : stage.requestFullscreen()));
    }
  }

  #views() {
    const views = part('views');
    views.replaceChildren();
    for (const [index, { name, description }] of this.#player.viewpoints.entries()) {
      button(views, description || name || `View ${index + 1}`, () => { this.#player.viewpoint = index; });
    }
    press(views, this.#player.viewpoint);
  }

  #entries() {
    const entries = this.#player.legend, key = part('key'), list = key.querySelector('div');
    list.replaceChildren(...entries.flatMap((entry, index) => (entry.name ? [this.#entry(entry, index)] : [])));
    key.hidden = list.children.length === 0;
    part('chart').classList.toggle('keyed', !key.hidden);
  }

  #entry({ text, color, name, isOn }, index) {
    const label = document.createElement('label'), box = document.createElement('input');
    Object.assign(box, { type: 'checkbox', value: name, checked: isOn });
    box.addEventListener('change', () => this.#player.show(index, box.checked));
    const words = document.createElement('span');
    words.textContent = text;
    label.append(box, ...(color ? [swatch(color)] : []), words);
    for (const event of ['pointerenter', 'focusin']) label.addEventListener(event, () => this.#player.highlight(name));
    for (const event of ['pointerleave', 'focusout']) label.addEventListener(event, () => this.#player.highlight(null));
    return label;
  }

  #pointed(pointed) {
    value.textContent = pointed?.text.replace(/\s*\n\s*/g, ', ') ?? '';
    this.#player.highlight(pointed ? this.#player.values[pointed.popup]?.name || null : null);
  }

  /** Left and right walk along a series, up and down from one to the next. */
  #key(event) {
    const step = { ArrowRight: [0, 1], ArrowLeft: [0, -1], ArrowDown: [1, 0], ArrowUp: [-1, 0] }[event.key];
    if (event.key === 'Escape') this.#leave();
    if (!step || event.altKey || event.ctrlKey || event.metaKey || event.shiftKey) return;
    const { values, pointed } = this.#player;
    if (values.length === 0) return;
    event.preventDefault();
    event.stopPropagation();
    const popup = pointed ? (pointed.popup + step[0] + values.length) % values.length : 0;
    const { length } = values[popup].texts;
    if (length > 0) this.#player.point(popup, pointed ? (Math.min(pointed.index, length - 1) + step[1] + length) % length : 0);
  }

  #leave() {
    const { pointed } = this.#player;
    if (pointed) this.#player.point(pointed.popup, -1);
  }

  #follow(urls) {
    for (const url of urls) {
      if (this.#enter(url)) return;
      let target;
      try { target = new URL(url, document.baseURI); } catch { continue; }
      if (!SCHEMES.includes(target.protocol)) continue;
      location.assign(target.href);
      return;
    }
    value.textContent = 'The chart links to what this page does not open.';
  }

  /** Goes to a viewpoint or a world of this page; false where there is no such. */
  #enter(url) {
    const [path, viewpoint] = url.split('#');
    const name = path.split(/[\\/]/).at(-1);
    if (path === '') {
      const index = this.#player.viewpoints.findIndex((view) => view.name === viewpoint);
      if (index >= 0) this.#player.viewpoint = index;
      return index >= 0;
    }
    if (!Object.hasOwn(this.#worlds, name)) return false;
    this.#history.push(this.#world);
    this.open(name);
    return true;
  }

  /** What printing shows. */
  async #picture() {
    const image = part('print'), before = image.src;
    image.src = URL.createObjectURL(await this.#player.still({ width: 1200, height: 750 }));
    if (before.startsWith('blob:')) URL.revokeObjectURL(before);
  }
}

function button(place, label, act) {
  const made = document.createElement('button');
  made.type = 'button';
  made.textContent = label;
  made.addEventListener('click', act);
  place.append(made);
  return made;
}

function press(buttons, index) {
  for (const [i, each] of [...buttons.children].entries()) each.setAttribute('aria-pressed', i === index);
}

function swatch({ r, g, b }) {
  const svg = document.createElementNS('http://www.w3.org/2000/svg', 'svg');
  const rect = document.createElementNS(svg.namespaceURI, 'rect');
  svg.setAttribute('viewBox', '0 0 1 1');
  svg.setAttribute('aria-hidden', 'true');
  rect.setAttribute('width', '1');
  rect.setAttribute('height', '1');
  rect.setAttribute('fill', `rgb(${[r, g, b].map((part) => Math.round(255 * part))})`);
  svg.append(rect);
  return svg;
}

async function main() {
  const { worlds, csv } = JSON.parse(await orvaneUnpack('worlds'));
  const data = part('data');
  if (data.querySelector('tr')) tend(data, csv);
  await Promise.allSettled([document.fonts.load('16px "Orvane Sans"')]);
  const page = new Page(worlds);
  await page.open(Object.keys(worlds)[0]);
  if (!data.querySelector('tr')) {
    const names = new Map(page.player.legend.map(({ name, text }) => [name, text]));
    const rows = page.player.values.flatMap(({ name, texts }) => texts.map((text) => [names.get(name) ?? '', text]));
    if (rows.length > 0) {
      fill(data.querySelector('table'), ['Series', 'Value'], rows.slice(0, 2500));
      tend(data, null);
    }
  }
  part('bar').hidden = false;
}

main().catch((error) => {
  state.textContent = `The chart cannot be drawn here: ${error.message}`;
});
