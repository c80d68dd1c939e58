// What the events that a node receives do, for the nodes that do more than to keep a value: groups,
// interpolators (ISO/IEC 14772-1, 6) and bindable nodes.

import { LISTS } from '../vrml/values.js';
import { nodeTypes } from './nodeTypes.js';
import { SFColor, SFRotation, SFVec3f } from './singles.js';

function addChildren(group, nodes) {
  const children = group.get('children'), added = nodes.filter((node) => !children.includes(node));
  if (added.length > 0) group.scene.events.accept(group.field('children'), [...children, ...added]);
}

function removeChildren(group, nodes) {
  const children = group.get('children'), rest = children.filter((node) => !nodes.includes(node));
  if (rest.length < children.length) group.scene.events.accept(group.field('children'), rest);
}

/** Where a fraction lies among the keys: between n - 1 and n, so far from the first to the second. */
function segment(key, fraction) {
  const last = key.length - 1;
  if (fraction <= key[0]) return { n: 0, part: 1 };
  if (fraction >= key[last]) return { n: last, part: 1 };
  let low = 0, high = last;
  while (high - low > 1) {
    const middle = (low + high) >> 1;
    if (key[middle] <= fraction) low = middle;
    else high = middle;
  }
  return { n: high, part: (fraction - key[low]) / (key[high] - key[low]) };
}

/** An interpolator whose values have so many numbers; blend(from, to, part, Single) mixes two of them. */
function interpolate(listType, blend) {
  const { size, Single } = LISTS[listType];
  return (node, fraction) => {
    const key = node.get('key'), values = node.get('keyValue');
    if (key.length === 0 || values.length < key.length * size) return;
    const { n, part } = segment(key, fraction), at = (k) => single(values, k, size, Single);
    const value = part === 1 ? at(n) : blend(at(n - 1), at(n), part);
    node.scene.events.send(node.field('value_changed'), value);
  };
}

function single(values, n, size, Single) {
  const first = n * size;
  return size === 1 ? values[first] : new Single(...values.subarray(first, first + size));
}

function mix(from, to, part) { return from + part * (to - from); }

function mixVectors(from, to, part) {
  return new SFVec3f(mix(from.x, to.x, part), mix(from.y, to.y, part), mix(from.z, to.z, part));
}

function mixRotations(from, to, part) {
  return new SFRotation(from.x, from.y, from.z, from.angle)
    .slerp(new SFRotation(to.x, to.y, to.z, to.angle), part);
}

/** Through hue, the shorter way round, saturation and value. */
function mixColors(from, to, part) {
  const a = toHsv(from), b = toHsv(to);
  const turn = a[1] === 0 || b[1] === 0 ? 0 : ((b[0] - a[0] + 9) % 6) - 3;
  const hue = a[1] === 0 ? b[0] : a[0] + part * turn;
  return fromHsv(hue, mix(a[1], b[1], part), mix(a[2], b[2], part));
}

/** Hue from 0 to 6. */
function toHsv({ r, g, b }) {
  const value = Math.max(r, g, b), range = value - Math.min(r, g, b);
  if (range === 0) return [0, 0, value];
  const hue = value === r ? (g - b) / range : value === g ? 2 + (b - r) / range : 4 + (r - g) / range;
  return [(hue + 6) % 6, range / value, value];
}

function fromHsv(hue, saturation, value) {
  const part = (n) => {
    const k = (((n + hue) % 6) + 6) % 6;
    return value - value * saturation * Math.max(0, Math.min(k, 4 - k, 1));
  };
  return new SFColor(part(5), part(3), part(1));
}

/** All points at once: keyValue has as many for each key. */
function interpolateCoordinates(node, fraction) {
  const key = node.get('key'), values = node.get('keyValue');
  const size = key.length > 0 ? 3 * Math.floor(values.length / 3 / key.length) : 0;
  if (size === 0) return;
  const { n, part } = segment(key, fraction);
  const to = n * size, from = part === 1 ? to : to - size;
  const points = new Float32Array(size);
  for (let k = 0; k < size; ++k) points[k] = mix(values[from + k], values[to + k], part);
  node.scene.events.send(node.field('value_changed'), points);
}

const INPUTS = {
  ScalarInterpolator: { set_fraction: interpolate('MFFloat', mix) },
  PositionInterpolator: { set_fraction: interpolate('MFVec3f', mixVectors) },
  ColorInterpolator: { set_fraction: interpolate('MFColor', mixColors) },
  OrientationInterpolator: { set_fraction: interpolate('MFRotation', mixRotations) },
  CoordinateInterpolator: { set_fraction: interpolateCoordinates },
};
for (const group of ['Anchor', 'Billboard', 'Group', 'Transform']) INPUTS[group] = { addChildren, removeChildren };
for (const bindable of ['Background', 'NavigationInfo', 'Viewpoint']) {
  INPUTS[bindable] = { set_bind: (node, isBound) => node.scene.bindings.set(node, isBound) };
}
for (const [type, inputs] of Object.entries(INPUTS)) nodeTypes.get(type).inputs = inputs;
