// Shows a Scene on a canvas, and lets the viewer walk about and point at it. Draws a frame only when something
// has changed.

import { Color, LinearSRGBColorSpace, Raycaster, Vector2, Vector3, WebGLRenderer, WebGLRenderTarget } from 'three';
import { Camera } from './Camera.js';
import { Navigation } from './Navigation.js';
import { Screen } from './Screen.js';
import { World } from './World.js';
import { pick } from './picking.js';

/** The fonts of the standard's families, as CSS families. */
const FONTS = {
  SANS: 'Ubuntu, "Liberation Sans", Arial, sans-serif',
  SERIF: '"Droid Serif", "Liberation Serif", "Times New Roman", serif',
  TYPEWRITER: '"Ubuntu Mono", "Liberation Mono", "Courier New", monospace',
};

const SAMPLES = 4; // of a still's pixels
const LARGEST = 8192; // side of a still in pixels
const REST = 150; // milliseconds without a move, after which the picture is drawn smooth and its texts sharp
const HELD = 600; // the same while the pointer is held down, and may soon go on

export class View {
  /** @param {HTMLElement} element  gets a canvas that fills it
   *  @param {{fonts?: Object<string, string>}} options  CSS families in place of those for SANS, SERIF and
   *    TYPEWRITER */
  constructor(element, { fonts = {} } = {}) {
    this.element = element;
    this.fonts = { ...FONTS, ...fonts };
    this.callbacks = new Map();
    this.world = null;
    this.camera = new Camera();
    this.frame = 0;
    this.hasMoved = false; // the viewer, since the last frame
    this.isAtRest = true; // or a finer frame is to follow
    this.resting = 0;
    this.waiting = [];
    this.isGone = false;
    this.pointerEvent = null;
    this.lastPointer = null;
    this.canvas = document.createElement('canvas');
    this.canvas.tabIndex = 0;
    this.canvas.style.cssText = 'display: block; width: 100%; height: 100%; touch-action: none';
    element.append(this.canvas);
    this.renderer = new WebGLRenderer({ canvas: this.canvas, antialias: false, powerPreference: 'high-performance' });
    this.screen = new Screen(this.renderer);
    this.renderer.outputColorSpace = LinearSRGBColorSpace; // colours go to the screen as they stand in the world
    this.renderer.setTransparentSort((a, b) => (
      a.groupOrder - b.groupOrder || a.renderOrder - b.renderOrder || b.object.eyeDepth - a.object.eyeDepth
      || a.id - b.id));
    this.navigation = new Navigation(this);
    this.observer = new ResizeObserver(() => this.resize());
    this.observer.observe(element);
    this.fontsCame = () => this.world?.fontsChanged();
    document.fonts.addEventListener('loadingdone', this.fontsCame);
    this.canvas.addEventListener('webglcontextlost', () => this.tell('lost'));
    this.canvas.addEventListener('webglcontextrestored', () => {
      this.tell('restored');
      this.invalidate();
    });
    this.resize();
  }

  /** Shows a scene from its bound Viewpoint, in place of the one before; null: none. */
  show(scene) {
    this.world?.dispose();
    this.world = scene === null ? null : new World(this, scene);
    this.screen.reset();
    this.invalidate();
  }

  get scene() { return this.world?.scene ?? null; }

  get mayNavigate() { return this.world?.mayNavigate ?? false; }

  /** events: 'frame' {time, changed, work} after a frame was drawn, times in milliseconds; 'lost', 'restored' */
  listen(event, callback) {
    if (!this.callbacks.has(event)) this.callbacks.set(event, new Set());
    this.callbacks.get(event).add(callback);
    return () => this.callbacks.get(event).delete(callback);
  }

  tell(event, detail) {
    for (const callback of this.callbacks.get(event) ?? []) callback(detail);
  }

  /** Goes to a Viewpoint: with jump at once. */
  viewpoint(node, { jump = false } = {}) {
    this.world?.goTo(node, !jump);
  }

  /** Back to where the bound Viewpoint is. */
  reset() {
    this.world?.goTo(this.scene.bound('Viewpoint'), true);
  }

  get parallel() { return this.camera.isParallel; }

  /** Whether lines that are parallel in the scene are so in the picture. */
  set parallel(isParallel) {
    this.camera.isParallel = Boolean(isParallel);
    this.invalidate();
  }

  /** Fades what is of the same kind as the node of this DEF name; null fades nothing. */
  highlight(name) {
    this.world?.highlighting.set(name === null ? null : this.scene.named(name));
  }

  // --- Frames

  invalidate() {
    if (this.world !== null) this.world.isStale = true;
    this.request();
  }

  /** The viewer has moved: a frame soon, a smooth one when he rests. */
  moved() {
    this.hasMoved = true;
    this.invalidate();
  }

  request() {
    if (this.frame !== 0 || this.isGone) return;
    const asked = performance.now();
    this.frame = requestAnimationFrame(() => this.draw(performance.now() - asked));
  }

  /** waited: milliseconds since the frame was asked for */
  draw(waited) {
    this.frame = 0;
    const { world, camera } = this, begin = performance.now();
    if (world === null) {
      this.renderer.clear();
      return;
    }
    const changed = world.scene.advance();
    if (changed) world.isStale = true;
    world.runJobs();
    if (camera.isMoving) {
      camera.advance(begin / 1000);
      world.isStale = true;
    }
    if (this.pointerEvent) this.point('move', this.pointerEvent);
    if (world.isStale) {
      world.isStale = false;
      this.render(waited, changed && world.scene.isAnimated);
      this.pointAgain();
      this.tell('frame', { time: begin, changed, work: performance.now() - begin });
    }
    const isUnfinished = camera.isMoving || world.isStale || world.jobs.size > 0;
    if (isUnfinished || world.scene.isAnimated) this.request();
    if (!isUnfinished && this.isAtRest) this.answer();
  }

  render(waited, isAnimated) {
    const { width, height } = this.canvas, { screen } = this;
    if (width === 0 || height === 0) return;
    const isMoving = this.camera.isMoving || this.hasMoved;
    this.hasMoved = false;
    this.isAtRest = !isMoving;
    if (isMoving || isAnimated) screen.waited(waited);
    const isCoarse = isMoving || (isAnimated && screen.isSlow);
    clearTimeout(this.resting);
    this.resting = !isCoarse ? 0 : setTimeout(() => {
      this.resting = 0;
      this.invalidate();
    }, this.navigation.isBusy ? HELD : REST);
    screen.draw(isCoarse, width, height, (target, columns, rows) => this.drawTo(target, columns, rows, isMoving));
  }

  drawTo(target, width, height, isMoving) {
    const { world, renderer } = this;
    const camera = world.prepare(width, height, renderer.getPixelRatio(), isMoving);
    world.runJobs();
    const { r, g, b } = world.sky.color;
    renderer.setClearColor(new Color(r, g, b), 1);
    renderer.setRenderTarget(target);
    renderer.render(world.root, camera);
    renderer.setRenderTarget(null);
  }

  /** Resolves when the picture is final: fonts are there, nothing moves, nothing waits. */
  async idle() {
    await document.fonts.ready;
    if (this.world === null || (this.frame === 0 && this.isAtRest)) return;
    await new Promise((resolve) => { this.waiting.push(resolve); });
  }

  answer() {
    for (const resolve of this.waiting.splice(0)) resolve();
  }

  resize() {
    const { clientWidth, clientHeight } = this.element;
    if (clientWidth === 0 || clientHeight === 0) return;
    this.renderer.setPixelRatio(window.devicePixelRatio);
    this.renderer.setSize(clientWidth, clientHeight, false);
    this.screen.reset();
    this.invalidate();
  }

  // --- The pointer

  /** Tells the scene what the pointer does; returns whether a sensor has taken it. */
  point(type, event) {
    this.pointerEvent = null;
    if (this.world === null) return false;
    this.lastPointer = type === 'leave' ? null : { clientX: event.clientX, clientY: event.clientY };
    if (this.lastPointer === null) return this.scene.pointer({ type, ray: null, hit: null });
    this.world.updateMatrices();
    const ray = this.rayAt(this.lastPointer), hit = pick(this.world.shapes(), ray);
    const isDragging = this.scene.pointer({ type, ray: plainRay(ray), hit });
    const isSensitive = isDragging || (hit !== null && this.scene.isSensitive(hit.path));
    this.canvas.style.cursor = isSensitive ? 'pointer' : '';
    return isDragging || (type === 'down' && isSensitive);
  }

  /** Once a frame is enough for moves. */
  pointLater(event) {
    this.pointerEvent = event;
    this.request();
  }

  /** After a frame that changed something the pointer may rest on another shape. */
  pointAgain() {
    if (this.lastPointer === null || this.navigation.isBusy || this.pointerEvent !== null) return;
    this.point('move', this.lastPointer);
  }

  /** @param {{clientX: number, clientY: number}} at  in the window, in CSS pixels */
  rayAt({ clientX, clientY }) {
    const { left, top, width, height } = this.canvas.getBoundingClientRect();
    const at = new Vector2(2 * (clientX - left) / width - 1, 1 - 2 * (clientY - top) / height);
    const caster = new Raycaster();
    caster.setFromCamera(at, this.camera.camera);
    return caster.ray;
  }

  /** Where in the window a point of the world is, in CSS pixels. */
  project({ x, y, z }) {
    const { left, top, width, height } = this.canvas.getBoundingClientRect();
    const at = new Vector3(x, y, z).project(this.camera.camera);
    return { x: left + (1 + at.x) / 2 * width, y: top + (1 - at.y) / 2 * height };
  }

  // --- Stills

  /** A picture as PNG: scale pixels to each of width by height. Throws RangeError. */
  async still({ width = this.canvas.clientWidth, height = this.canvas.clientHeight, scale = 1 } = {}) {
    const columns = Math.round(width * scale), rows = Math.round(height * scale);
    const most = Math.min(LARGEST, this.renderer.capabilities.maxTextureSize);
    if (!(columns > 0 && rows > 0 && columns <= most && rows <= most)) {
      throw new RangeError(`A picture of ${columns} x ${rows} pixels was asked for; each side is 1 to ${most}`);
    }
    await document.fonts.ready;
    this.scene.advance();
    this.world.runJobs();
    const target = new WebGLRenderTarget(columns, rows, { samples: SAMPLES });
    const pixels = new Uint8Array(4 * columns * rows);
    try {
      this.drawTo(target, columns, rows, false);
      this.renderer.readRenderTargetPixels(target, 0, 0, columns, rows, pixels);
    } finally {
      target.dispose();
      this.invalidate();
    }
    return toPng(pixels, columns, rows);
  }

  dispose() {
    this.show(null);
    this.isGone = true;
    cancelAnimationFrame(this.frame);
    clearTimeout(this.resting);
    this.answer();
    this.observer.disconnect();
    document.fonts.removeEventListener('loadingdone', this.fontsCame);
    this.navigation.dispose();
    this.screen.dispose();
    this.renderer.dispose();
    this.renderer.forceContextLoss();
    this.canvas.remove();
    this.callbacks.clear();
  }
}

function plainRay({ origin, direction }) {
  return {
    origin: { x: origin.x, y: origin.y, z: origin.z },
    direction: { x: direction.x, y: direction.y, z: direction.z },
  };
}

/** From rows of RGBA, the lowest first. */
function toPng(pixels, width, height) {
  const canvas = document.createElement('canvas');
  canvas.width = width;
  canvas.height = height;
  const image = new ImageData(width, height);
  for (let y = 0; y < height; ++y) {
    image.data.set(pixels.subarray(4 * width * y, 4 * width * (y + 1)), 4 * width * (height - 1 - y));
  }
  for (let n = 3; n < image.data.length; n += 4) image.data[n] = 255;
  canvas.getContext('2d').putImageData(image, 0, 0);
  return new Promise((resolve) => { canvas.toBlob(resolve, 'image/png'); });
}
