// What the pointer does to sensors and Anchors (ISO/IEC 14772-1, 4.6.7.3): which are meant, over and out,
// clicks and drags.

import { DRAGS } from './drags.js';
import { inverse, normalInto, transformDirection, transformPoint } from './matrix.js';
import { drawn } from './Node.js';

function isSensor(node) { return node.typeName === 'TouchSensor' || node.typeName in DRAGS; }

/** The enabled sensors of the lowest group of a path that has any, an Anchor counting as one of its own:
 *  {node, matrix} each. */
function sensorsOf(path) {
  for (let n = path.length - 1; n >= 0; --n) {
    const { node, matrix } = path[n];
    const own = (node.get('children') ?? []).map(drawn).filter((child) => child !== null && isSensor(child));
    if (node.typeName === 'Anchor') own.push(node);
    const found = own.filter((sensor) => sensor.get('enabled') !== false);
    if (own.length > 0) return found.map((sensor) => ({ node: sensor, matrix }));
  }
  return [];
}

export class Pointer {
  constructor(scene) {
    this.scene = scene;
    this.over = []; // {node, matrix} of what is under the pointer
    this.active = []; // of what was pressed: {node, drag, into}
  }

  isSensitive(path) { return sensorsOf(path).length > 0; }

  get isDragging() { return this.active.some(({ drag }) => drag !== null); }

  /** See Node.js. */
  handle({ type, ray, hit }) {
    const found = hit === null || hit === undefined || type === 'leave' ? [] : sensorsOf(hit.path);
    if (this.active.length === 0) this.pass(found, hit);
    else this.follow(found, ray, hit);
    if (type === 'down' && this.active.length === 0) this.press(found, ray, hit);
    if (type === 'up' || type === 'leave') this.release(found, hit);
  }

  /** The pointer moves with nothing pressed. */
  pass(found, hit) {
    for (const { node } of this.over) {
      if (!found.some((other) => other.node === node)) this.setOver(node, false);
    }
    for (const sensor of found) {
      if (!this.over.some((other) => other.node === sensor.node)) this.setOver(sensor.node, true);
      this.sayHit(sensor, hit);
    }
    this.over = found;
  }

  setOver(node, isOver) {
    if (node.typeName === 'TouchSensor') this.scene.events.send(node.field('isOver'), isOver);
    if (node.typeName === 'Anchor') this.scene.notify('description', isOver ? node.get('description') : '');
  }

  sayHit({ node, matrix }, hit) {
    if (node.typeName !== 'TouchSensor') return;
    const { events } = this.scene;
    events.send(node.field('hitPoint_changed'), transformPoint(inverse(matrix), hit.point));
    events.send(node.field('hitNormal_changed'), normalInto(matrix, hit.normal));
    if (hit.texCoord) events.send(node.field('hitTexCoord_changed'), hit.texCoord);
  }

  press(found, ray, hit) {
    this.active = found.map(({ node, matrix }) => {
      const into = inverse(matrix), Drag = DRAGS[node.typeName];
      if (node.typeName !== 'Anchor') this.scene.events.send(node.field('isActive'), true);
      if (Drag === undefined) return { node, into, drag: null };
      return { node, into, drag: new Drag(node, transformPoint(into, hit.point), localRay(into, ray)) };
    });
  }

  /** The pointer moves with sensors pressed: no others take notice. */
  follow(found, ray, hit) {
    for (const { node, into, drag } of this.active) {
      if (drag !== null && ray) drag.move(localRay(into, ray));
      const now = found.find((other) => other.node === node);
      const was = this.over.some((other) => other.node === node);
      if (now !== undefined) this.sayHit(now, hit);
      if (was !== (now !== undefined)) this.setOver(node, !was);
    }
    this.over = found.filter(({ node }) => this.active.some((other) => other.node === node));
  }

  release(found, hit) {
    const { events } = this.scene, active = this.active;
    this.active = [];
    for (const { node, drag } of active) {
      const isOver = found.some((other) => other.node === node);
      if (node.typeName === 'Anchor') {
        if (isOver) this.scene.notify('link', { urls: node.get('url'), parameters: node.get('parameter') });
      } else {
        drag?.drop();
        events.send(node.field('isActive'), false);
        if (isOver && node.typeName === 'TouchSensor') events.send(node.field('touchTime'), events.time);
      }
    }
    if (active.length > 0) this.pass(found, hit);
  }
}

function localRay(into, { origin, direction }) {
  return { origin: transformPoint(into, origin), direction: transformDirection(into, direction) };
}
