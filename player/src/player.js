// The player: plays one world at a time in an element of a page. Its interface is described in player.d.ts.

import { legendOf } from './legend.js';
import { library } from './scene/protos.js';
import { Scene } from './scene/Scene.js';
import { pointAt, popupsOf } from './popups.js';
import { LISTS } from './vrml/values.js';
import { View } from './view/View.js';

// How long scripts may run in one go before the page gets its turn, in milliseconds.
const SLICE = 50;

const TYPES = Object.entries(LISTS);

export class Player {
  #callbacks = new Map();
  #clock;
  #legend = [];
  #popups = [];
  #pointed = null;
  #scene = null;
  #view;
  #loads = 0;

  constructor(element, { clock = () => Date.now() / 1000, fonts } = {}) {
    this.#clock = clock;
    this.#view = new View(element, { fonts });
    for (const event of ['frame', 'lost', 'restored']) {
      this.#view.listen(event, (detail) => this.#tell(event, detail));
    }
  }

  async load(text, { url = '' } = {}) {
    const load = ++this.#loads;
    const pause = async (words, part) => {
      this.#tell('progress', { text: words, part });
      await new Promise((resume) => { setTimeout(resume); });
      if (load !== this.#loads) throw new DOMException('Another world was asked for', 'AbortError');
    };
    await pause('Reading', 0);
    const scene = new Scene(library, { url, clock: this.#clock });
    for (const event of ['link', 'description', 'warning', 'print']) {
      scene.listen(event, (detail) => this.#tell(event, detail));
    }
    scene.read(text);
    const count = scene.scripts.length;
    for (let left = count; left > 0;) {
      left = scene.initialize(performance.now() + SLICE);
      if (left > 0) await pause('Drawing', 1 - left / count);
    }
    this.#show(scene);
    this.#tell('progress', { text: '', part: 1 });
  }

  #show(scene) {
    this.#scene = scene;
    this.#pointed = null;
    this.#legend = legendOf(scene);
    this.#popups = popupsOf(scene, (value, popup) => this.#pointTo(value, popup));
    scene.listen('bound', ({ type, node }) => {
      if (type === 'Viewpoint') this.#tell('viewpoint', { index: scene.bindables(type).indexOf(node) });
    });
    for (const [name, node] of scene.names) {
      if (node.typeName !== 'qm4_ContentToggle') continue;
      node.field('contentsExist').listen((isOn) => this.#tell('toggle', { name, isOn }));
    }
    this.#view.show(scene);
  }

  #pointTo(value, popup) {
    const before = this.#pointed;
    if (value === null && before?.popup !== popup) return;
    if (value !== null && before?.popup === popup && before.index === value.index) return;
    this.#pointed = value;
    this.#tell('value', value);
  }

  get warnings() { return [...this.#scene?.warnings ?? []]; }

  get viewpoints() {
    return (this.#scene?.bindables('Viewpoint') ?? []).map((node) => ({
      name: node.name, description: node.get('description'),
    }));
  }

  get viewpoint() {
    const scene = this.#scene;
    return scene === null ? -1 : scene.bindables('Viewpoint').indexOf(scene.bound('Viewpoint'));
  }

  set viewpoint(index) {
    const node = this.#scene?.bindables('Viewpoint')[index];
    if (node === undefined) throw new RangeError(`There is no viewpoint ${index}`);
    this.#scene.bind(node);
    this.#view.viewpoint(node, { jump: false });
  }

  get parallel() { return this.#view.parallel; }
  set parallel(isParallel) { this.#view.parallel = isParallel; }

  reset() { this.#view.reset(); }

  highlight(name) { this.#view.highlight(name); }

  get values() { return this.#popups.map(({ name, texts }) => ({ name, texts: [...texts] })); }

  get legend() {
    return this.#legend.map(({ text, color, toggle }) => ({
      text, color, name: toggle?.name ?? '', isOn: toggle?.get('contentsExist') ?? true,
    }));
  }

  show(entry, isOn) {
    const { box, toggle } = this.#legend[entry] ?? {};
    if (!toggle) throw new RangeError(`There is no legend entry ${entry} with a check box`);
    this.#scene.set(box, 'isOn', isOn);
    this.#scene.set(toggle, 'contentsExist', isOn);
  }

  get pointed() { return this.#pointed; }

  point(popup, index) {
    const chosen = this.#popups[popup];
    if (index >= 0 && chosen === undefined) throw new RangeError(`There are no values ${popup}`);
    const before = this.#pointed;
    if (before !== null && (before.popup !== popup || index < 0)) pointAt(this.#popups[before.popup], -1);
    if (index >= 0) pointAt(chosen, index);
  }

  get(name, fieldName) { return this.#field(name, fieldName).value; }

  set(name, fieldName, value) {
    const field = this.#field(name, fieldName);
    if (field.access !== 'eventIn' && field.access !== 'exposedField') {
      throw new TypeError(`${name}.${fieldName} cannot be set`);
    }
    this.#scene.set(this.#scene.named(name), fieldName, asValue(field.type, value));
  }

  #field(name, fieldName) {
    const node = this.#scene?.named(name) ?? null;
    if (node === null) throw new RangeError(`No node is called "${name}"`);
    const field = node.field(fieldName);
    if (field === null) throw new RangeError(`${node.typeName} has no field "${fieldName}"`);
    return field;
  }

  still(size) { return this.#view.still(size); }

  idle() { return this.#view.idle(); }

  listen(event, callback) {
    if (!this.#callbacks.has(event)) this.#callbacks.set(event, new Set());
    this.#callbacks.get(event).add(callback);
    return () => this.#callbacks.get(event).delete(callback);
  }

  #tell(event, detail) {
    for (const callback of this.#callbacks.get(event) ?? []) callback(detail);
  }

  dispose() {
    ++this.#loads;
    this.#callbacks.clear();
    this.#legend = [];
    this.#popups = [];
    this.#scene = null;
    this.#view.dispose();
  }
}

/** A value from outside as fields hold it: lists of numbers may be any array, also one of arrays. */
function asValue(type, value) {
  const list = TYPES.find(([name]) => name === type)?.[1];
  if (list !== undefined) return list.Type.from([...value].flat());
  if (type === 'SFNode' || type === 'MFNode' || type === 'SFImage') {
    throw new TypeError(`A field of type ${type} cannot be set from outside`);
  }
  return value;
}
