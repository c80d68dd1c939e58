// Turns drags, wheel, fingers and keys on the canvas into moves of the camera and events for the pointer.

const TURN = 3.5; // radians for a drag over the height of the picture
const STEP = 0.09; // radians a press of an arrow key
const WHEEL = 0.0012; // of the distance, as a logarithm, for each pixel the wheel scrolls
const KEY_ZOOM = 0.85;

export class Navigation {
  /** @param {object} view  with canvas, camera, mayNavigate, invalidate(), moved(), point(type, event), reset() */
  constructor(view) {
    this.view = view;
    this.fingers = new Map(); // by id: where each is
    this.drag = null; // 'turn', 'pan', 'sensor' or null
    this.controller = new AbortController();
    const { canvas } = view, { signal } = this.controller;
    const on = (type, listener, options) => canvas.addEventListener(type, listener, { signal, ...options });
    on('pointerdown', (event) => this.down(event));
    on('pointermove', (event) => this.move(event));
    on('pointerup', (event) => this.up(event));
    on('pointercancel', (event) => this.up(event));
    on('pointerleave', () => {
      if (this.fingers.size === 0) view.point('leave', null);
    });
    on('wheel', (event) => this.wheel(event), { passive: false });
    on('keydown', (event) => this.key(event));
    on('contextmenu', (event) => event.preventDefault());
  }

  down(event) {
    const { view, fingers } = this;
    view.canvas.setPointerCapture(event.pointerId);
    fingers.set(event.pointerId, event);
    if (fingers.size > 1) {
      if (this.drag === 'sensor') view.point('leave', event);
      this.drag = view.mayNavigate ? 'pinch' : null;
      return;
    }
    if (event.button === 0 && view.point('down', event)) this.drag = 'sensor';
    else if (!view.mayNavigate) this.drag = null;
    else this.drag = event.button === 0 && !event.shiftKey ? 'turn' : 'pan';
  }

  move(event) {
    const { view, fingers } = this;
    const before = fingers.get(event.pointerId);
    if (before === undefined || this.drag === null || this.drag === 'sensor') {
      view.pointLater(event);
      if (before !== undefined) fingers.set(event.pointerId, event);
      return;
    }
    const height = view.canvas.clientHeight;
    const dx = event.clientX - before.clientX, dy = event.clientY - before.clientY;
    if (this.drag === 'pinch') this.pinch(event, before);
    else if (this.drag === 'turn') view.camera.turn(-TURN * dx / height, -TURN * dy / height);
    else view.camera.pan(-2 * dx / height, 2 * dy / height);
    fingers.set(event.pointerId, event);
    view.moved();
  }

  /** Two fingers: what lies under them stays there. */
  pinch(event, before) {
    const { camera, canvas } = this.view, height = canvas.clientHeight;
    const other = [...this.fingers.values()].find(({ pointerId }) => pointerId !== event.pointerId);
    if (other === undefined) return;
    const apart = (finger) => Math.hypot(finger.clientX - other.clientX, finger.clientY - other.clientY);
    camera.zoom(Math.max(1, apart(before)) / Math.max(1, apart(event)));
    camera.pan(-(event.clientX - before.clientX) / height, (event.clientY - before.clientY) / height);
  }

  up(event) {
    const { view, fingers } = this;
    fingers.delete(event.pointerId);
    if (fingers.size > 0) return;
    if (this.drag !== 'pinch') view.point(event.type === 'pointercancel' ? 'leave' : 'up', event);
    this.drag = null;
    view.invalidate();
  }

  wheel(event) {
    if (!this.view.mayNavigate) return;
    event.preventDefault();
    const scale = event.deltaMode === 1 ? 20 : event.deltaMode === 2 ? 400 : 1;
    this.view.camera.zoom(Math.exp(Math.max(-1, Math.min(1, WHEEL * scale * event.deltaY))));
    this.view.moved();
  }

  key(event) {
    const { view } = this, { camera } = view;
    if (!view.mayNavigate || event.ctrlKey || event.metaKey || event.altKey) return;
    const moves = {
      ArrowLeft: () => camera.turn(-STEP, 0),
      ArrowRight: () => camera.turn(STEP, 0),
      ArrowUp: () => camera.turn(0, -STEP),
      ArrowDown: () => camera.turn(0, STEP),
      '+': () => camera.zoom(KEY_ZOOM),
      '=': () => camera.zoom(KEY_ZOOM),
      '-': () => camera.zoom(1 / KEY_ZOOM),
      Home: () => view.reset(),
    };
    const move = moves[event.key];
    if (move === undefined) return;
    event.preventDefault();
    move();
    view.moved();
  }

  get isBusy() { return this.drag !== null && this.drag !== 'sensor'; }

  dispose() {
    this.controller.abort();
  }
}
