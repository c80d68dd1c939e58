// A world that plays: its nodes, its time, its events. What the view asks of it is written in Node.js.

import { Parser } from '../vrml/Parser.js';
import { Bindings } from './Bindings.js';
import { Browser } from './Browser.js';
import { Events } from './Events.js';
import { Field } from './Field.js';
import { instantiate } from './instantiate.js';
import './inputs.js';
import { nodeTypes } from './nodeTypes.js';
import { Pointer } from './Pointer.js';
import { approach } from './proximity.js';
import { Script } from './Script.js';
import { ScriptValues } from './ScriptValues.js';
import { tick } from './timeSensor.js';

export class Scene {
  /** @param {object} library  the PROTOs that are compiled in; see Library.js
   *  @param {{url?: string, clock?: () => number}} options  the world's own address; the time in seconds */
  constructor(library, { url = '', clock = () => Date.now() / 1000 } = {}) {
    this.library = library;
    this.url = url;
    this.clock = clock;
    this.warnings = [];
    this.callbacks = new Map();
    this.events = new Events();
    this.values = new ScriptValues(this);
    this.browser = new Browser(this);
    this.bindings = new Bindings(this);
    this.pointing = new Pointer(this);
    this.rootsField = new Field('MFNode', 'exposedField', []);
    this.names = new Map();
    this.timeSensors = [];
    this.scripts = []; // made, and not yet initialized
  }

  get roots() { return this.rootsField.value; }

  /** Makes the nodes of a world's text, without running its scripts. Throws WorldError. */
  read(text) {
    const body = new Parser(text, nodeTypes, this.library, (message) => this.warn(message)).world();
    const { nodes, names } = instantiate(body, this);
    this.names = names;
    this.events.cascade(this.clock(), () => {
      this.events.accept(this.rootsField, nodes);
      this.bindings.bindFirst();
    });
  }

  /** Runs the scripts that wait to be initialized until a moment of performance.now(); returns how many still
   *  wait. */
  initialize(until = Infinity) {
    let n = 0;
    while (n < this.scripts.length && (n === 0 || performance.now() < until)) {
      const script = this.scripts[n++];
      this.events.cascade(this.clock(), () => script.initialize());
    }
    this.scripts = this.scripts.slice(n);
    return this.scripts.length;
  }

  /** Reads and initializes a world. */
  load(text) {
    this.read(text);
    this.initialize();
  }

  /** Nodes of a text without a header, ready to play. */
  create(text) {
    const before = this.scripts;
    this.scripts = [];
    try {
      const body = new Parser(text, nodeTypes, this.library, (message) => this.warn(message)).statements();
      const { nodes } = instantiate(body, this);
      for (const script of this.scripts) script.initialize();
      return nodes;
    } finally {
      this.scripts = before;
    }
  }

  /** Takes note of a node that was made. */
  added(node) {
    const { typeName } = node;
    if (typeName === 'TimeSensor') this.timeSensors.push(node);
    else if (typeName === 'Script') this.addScript(node);
    else this.bindings.add(node);
  }

  addScript(node) {
    const [url = ''] = node.get('url'), make = this.library.scripts[url];
    if (make !== undefined) this.scripts.push(new Script(node, make));
    else this.warn(`The Script ${node.name} is not run: scripts of worlds are not`);
  }

  named(name) { return this.names.get(name) ?? null; }

  advance(time = this.clock()) {
    const { events } = this;
    if (this.timeSensors.length > 0) {
      events.cascade(time, () => this.timeSensors.forEach((node) => tick(node, time)));
    }
    const { changed } = events;
    events.changed = false;
    return changed;
  }

  get isAnimated() {
    return this.timeSensors.some((node) => node.get('isActive')
      || (node.get('enabled') && (node.get('loop') || node.get('startTime') > this.events.time)));
  }

  bound(type) { return this.bindings.bound(type); }

  bindables(type) { return this.bindings.all.get(type) ?? []; }

  bind(node) { this.act(() => this.bindings.set(node, true)); }

  pointer(event) {
    this.act(() => this.pointing.handle(event));
    return this.pointing.isDragging;
  }

  isSensitive(path) { return this.pointing.isSensitive(path); }

  proximity(node, place) { this.act(() => approach(node, place)); }

  /** Sends an event to a field from outside, at once. */
  set(node, fieldName, value) {
    this.act(() => this.events.accept(node.field(fieldName), value));
  }

  act(what) {
    this.events.cascade(this.clock(), what);
    if (this.events.changed) this.notify('changed');
  }

  listen(event, callback) {
    if (!this.callbacks.has(event)) this.callbacks.set(event, new Set());
    this.callbacks.get(event).add(callback);
    return () => this.callbacks.get(event).delete(callback);
  }

  notify(event, detail) {
    for (const callback of this.callbacks.get(event) ?? []) callback(detail);
  }

  warn(message) {
    this.warnings.push(message);
    this.notify('warning', message);
  }
}
