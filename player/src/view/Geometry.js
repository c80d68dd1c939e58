// A geometry node as vertices on the graphics card: made once however many Shapes use it, and made anew when
// one of its fields has changed.

import { BufferAttribute, BufferGeometry } from 'three';
import { drawn } from '../scene/Node.js';
import { triangles } from './faces.js';
import { segments } from './lines.js';
import { box, cone, cylinder, lattice, sphere } from './solids.js';
import { layOut } from './text.js';

/** What each type draws as: which fields it follows, those of nodes in its fields too, and what makes its
 *  vertices. traits are those of Look. */
const TYPES = {
  IndexedFaceSet: {
    fields: ['coordIndex', 'colorIndex', 'normalIndex', 'texCoordIndex', 'set_coordIndex', 'set_colorIndex'],
    inner: { coord: 'point', color: 'color', normal: 'vector', texCoord: 'point' },
    make: (node) => triangles({
      ...listsOf(node),
      points: inner(node, 'coord', 'point') ?? new Float32Array(0),
      coordIndex: node.get('coordIndex'),
      ccw: node.get('ccw'),
      convex: node.get('convex'),
      creaseAngle: node.get('creaseAngle'),
      normalPerVertex: node.get('normalPerVertex'),
      colorPerVertex: node.get('colorPerVertex'),
      normalIndex: node.get('normalIndex'),
      colorIndex: node.get('colorIndex'),
      texCoordIndex: node.get('texCoordIndex'),
    }),
  },
  ElevationGrid: {
    fields: ['height', 'set_height', 'color', 'normal', 'texCoord'],
    inner: { color: 'color', normal: 'vector', texCoord: 'point' },
    make: (node) => {
      const plain = (name) => node.get(name);
      return lattice({
        ...listsOf(node),
        ...Object.fromEntries(['xDimension', 'xSpacing', 'zDimension', 'zSpacing', 'height', 'ccw', 'creaseAngle',
          'normalPerVertex', 'colorPerVertex'].map((name) => [name, plain(name)])),
        hasTexture: true,
      });
    },
  },
  Box: { fields: [], make: (node) => box(node.get('size')), isSolid: true },
  Sphere: { fields: [], make: (node) => sphere(node.get('radius')), isSolid: true },
  Cylinder: { fields: [], make: (node) => cylinder(fieldsOf(node, ['radius', 'height', 'side', 'top', 'bottom'])), isSolid: true },
  Cone: { fields: [], make: (node) => cone(fieldsOf(node, ['bottomRadius', 'height', 'side', 'bottom'])), isSolid: true },
  IndexedLineSet: {
    kind: 'lines',
    fields: ['coordIndex', 'colorIndex', 'set_coordIndex', 'set_colorIndex'],
    inner: { coord: 'point', color: 'color' },
    make: (node) => segments({
      points: inner(node, 'coord', 'point') ?? new Float32Array(0),
      coordIndex: node.get('coordIndex'),
      colors: inner(node, 'color', 'color'),
      colorIndex: node.get('colorIndex'),
      colorPerVertex: node.get('colorPerVertex'),
    }),
  },
  PointSet: {
    kind: 'points',
    fields: [],
    inner: { coord: 'point', color: 'color' },
    make: (node) => ({
      position: inner(node, 'coord', 'point') ?? new Float32Array(0), color: inner(node, 'color', 'color') ?? null,
    }),
  },
  Spheres: {
    kind: 'balls',
    fields: ['center', 'color', 'transparency', 'radius'],
    inner: {},
    make: balls,
  },
  Text: {
    kind: 'text',
    fields: ['string', 'length', 'maxExtent', 'fontStyle'],
    inner: {},
    make: null,
  },
};

export const hasGeometry = (typeName) => typeName in TYPES;

const inner = (node, field, list) => drawn(node.get(field) ?? null)?.get(list) ?? null;

const fieldsOf = (node, names) => Object.fromEntries(names.map((name) => [name, node.get(name)]));

function listsOf(node) {
  return {
    colors: inner(node, 'color', 'color'),
    normals: inner(node, 'normal', 'vector'),
    texCoords: inner(node, 'texCoord', 'point'),
  };
}

/** One vertex a ball. */
function balls(node) {
  const position = node.get('center'), count = position.length / 3;
  const colors = node.get('color'), transparencies = node.get('transparency'), radii = node.get('radius');
  const ballColor = new Uint8Array(4 * count), ballRadius = new Float32Array(count);
  let hasClear = false, hasOpaque = false;
  for (let i = 0; i < count; ++i) {
    for (let k = 0; k < 3; ++k) ballColor[4 * i + k] = 3 * i + k < colors.length ? 255 * colors[3 * i + k] + 0.5 : 255;
    const alpha = i < transparencies.length ? 1 - transparencies[i] : 1;
    ballColor[4 * i + 3] = Math.round(255 * alpha);
    if (alpha < 1) hasClear = true;
    else hasOpaque = true;
    ballRadius[i] = i < radii.length ? radii[i] : 0.1;
  }
  return { position, ballColor, ballRadius, hasClear, hasOpaque };
}

export class Geometry {
  /** @param {object} view  with later(this), text and invalidate() */
  constructor(node, view) {
    this.node = node;
    this.view = view;
    this.type = TYPES[node.typeName];
    this.kind = this.type.kind ?? 'faces';
    this.users = new Set(); // with geometryChanged(isOther)
    this.buffer = new BufferGeometry();
    this.traits = {};
    this.data = null;
    this.stops = [];
    this.changed = () => view.later(this);
    this.reset = () => {
      this.follow();
      view.later(this);
    };
    this.follow();
    this.update();
  }

  follow() {
    for (const stop of this.stops) stop();
    this.stops = [];
    const listen = (field, callback) => {
      if (field) this.stops.push(field.listen(callback));
    };
    for (const name of new Set(this.type.fields.map((each) => each.replace(/^set_/, '')))) {
      listen(this.node.field(name), name === 'fontStyle' ? this.reset : this.changed);
    }
    for (const [name, list] of Object.entries(this.type.inner ?? {})) {
      listen(this.node.field(name), this.reset);
      const holder = drawn(this.node.get(name) ?? null);
      if (holder) listen(holder.field(list), this.changed);
    }
    if (this.kind === 'text' && this.node.get('fontStyle')) {
      const style = drawn(this.node.get('fontStyle'));
      for (const name of ['family', 'style', 'size', 'spacing', 'justify']) listen(style.field(name), this.changed);
    }
  }

  /** Makes the vertices anew. */
  update() {
    const { node, kind } = this;
    this.data = kind === 'text' ? layOut(node, this.view.fonts) : this.type.make(node);
    const isOther = this.fill(this.data ?? { position: new Float32Array(0) });
    this.traits = {
      isLit: kind === 'faces' || kind === 'text',
      isFlat: Boolean(this.data?.isFlat),
      isText: kind === 'text',
      isBalls: kind === 'balls',
      isSolid: this.type.isSolid ?? (kind === 'faces' ? node.get('solid') : kind !== 'text'),
      hasColor: Boolean(this.data?.color),
      hasFlatColor: Boolean(this.data?.hasFlatColor),
      hasMap: Boolean(this.data?.uv),
    };
    this.chunks = null;
    for (const user of this.users) user.geometryChanged(isOther);
    this.view.invalidate();
  }

  /** Puts arrays into the buffer; returns whether it had to be another one. */
  fill(data) {
    const attributes = {
      position: [data.position, 3], normal: [data.normal, 3], color: [data.color, 3], uv: [data.uv, 2],
      ballColor: [data.ballColor, 4], ballRadius: [data.ballRadius, 1],
    };
    const old = this.buffer;
    const isSame = Object.entries(attributes).every(([name, [array]]) => (
      (array ?? null)?.length === old.getAttribute(name)?.array.length))
      && data.index?.length === old.index?.array.length && data.index?.constructor === old.index?.array.constructor
      && old.getAttribute('position') !== undefined;
    const put = (target, array) => {
      if (target.array === array) return;
      target.array = array;
      target.needsUpdate = true;
    };
    if (isSame) {
      for (const [name, [array]] of Object.entries(attributes)) if (array) put(old.getAttribute(name), array);
      if (data.index) put(old.index, data.index);
    } else {
      const isNew = old.getAttribute('position') === undefined;
      if (!isNew) {
        old.dispose();
        this.buffer = new BufferGeometry();
      }
      for (const [name, [array, size]] of Object.entries(attributes)) {
        if (array) this.buffer.setAttribute(name, new BufferAttribute(array, size, name === 'ballColor'));
      }
      if (data.index) this.buffer.setIndex(new BufferAttribute(data.index, 1));
    }
    this.findBounds(data);
    return !isSame;
  }

  /** The box about all vertices, and the ball about that: three's own looks at each vertex twice. */
  findBounds({ position, ballRadius }) {
    const { buffer } = this;
    const low = [Infinity, Infinity, Infinity], high = [-Infinity, -Infinity, -Infinity];
    let margin = 0;
    if (ballRadius) for (const radius of ballRadius) margin = Math.max(margin, radius);
    for (let n = 0; n < position.length; n += 3) {
      for (let k = 0; k < 3; ++k) {
        const at = position[n + k];
        if (at < low[k]) low[k] = at;
        if (at > high[k]) high[k] = at;
      }
    }
    this.bounds = position.length === 0 ? null : {
      low: low.map((at) => at - margin), high: high.map((at) => at + margin),
    };
  }

  dispose() {
    for (const stop of this.stops) stop();
    this.buffer.dispose();
  }
}
