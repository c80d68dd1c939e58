// What the PROTOs' Scripts draw, as rows: solids are closed and look outwards, lie where the row says, and
// have no point that is not finite.

import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { readScripts, run } from './scripts.mjs';

const scripts = readScripts();
const draw = (proto, values, nodes) => (
  run(scripts.find((script) => script.proto === proto && script.code.includes('draw')), values, nodes));

// The points that a script sent or put into the nodes it was given, and their faces without the -1.
function mesh(proto, values) {
  const columns = { geometry: { coord: { point: [] } } };
  const scope = draw(proto, values, { columns, nearness: {}, row: {} });
  const points = scope.facePoints ?? scope.points ?? columns.geometry.coord.point;
  const index = scope.faceIndex ?? scope.index ?? columns.geometry.set_coordIndex ?? [];
  const faces = [[]];
  for (const i of index) {
    if (i < 0) faces.push([]);
    else faces.at(-1).push(i);
  }
  return { points, faces: faces.filter((face) => face.length), normals: scope.normals };
}

const round = (number, grain = 1e-4) => Number((Math.round(number / grain) * grain).toFixed(4)) + 0;
const key = ({ x, y, z }, grain) => [x, y, z].map((number) => round(number, grain)).join(' ');

// [ least, greatest ] of the points that faces use, along x, y and z.
function extent({ points, faces }) {
  const used = [...new Set(faces.flat())].map((i) => points[i]);
  return [Math.min, Math.max].map((most) => (
    ['x', 'y', 'z'].map((axis) => round(most(...used.map((point) => point[axis]))))));
}

function volume({ points, faces }) {
  return faces.reduce((sum, [a, ...rest]) => sum + rest.slice(1).reduce((part, c, i) => (
    part + points[a].dot(points[rest[i]].cross(points[c])) / 6), 0), 0);
}

// Edges that do not have as many faces to one side as to the other; a long one may have several beside it.
// Points are the same that `grain` does not tell apart.
function openEdges({ points, faces }, grain) {
  const balance = {};
  const count = (from, to) => {
    const [edge, side] = from < to ? [`${from}, ${to}`, 1] : [`${to}, ${from}`, -1];
    balance[edge] = (balance[edge] ?? 0) + side;
  };
  for (const face of faces) {
    const corners = face.map((i) => key(points[i], grain)).filter((corner, i, all) => corner !== all.at(i - 1));
    corners.forEach((to, i) => count(corners.at(i - 1), to));
  }
  const open = () => Object.keys(balance).filter((edge) => balance[edge]);
  const place = Object.fromEntries(points.map((at) => [key(at, grain), at]));
  const ends = [...new Set(open().flatMap((edge) => edge.split(', ')))];
  for (const edge of open()) {
    const [from, to] = edge.split(', ');
    const way = place[to].subtract(place[from]);
    const share = (end) => place[end].subtract(place[from]).dot(way) / way.dot(way);
    const between = ends.filter((end) => share(end) > 0 && share(end) < 1
      && way.multiply(share(end)).subtract(place[end].subtract(place[from])).length() < 1e-4);
    const stops = [from, ...between.sort((a, b) => share(a) - share(b)), to];
    const times = balance[edge];
    balance[edge] = 0;
    if (times < 0) stops.reverse();
    for (let n = 0; n < Math.abs(times); ++n) stops.slice(1).forEach((stop, i) => count(stops[i], stop));
  }
  return open();
}

const NUMB = [NaN, Infinity, -Infinity];
const WAVE = Array.from({ length: 50 }, (_, i) => 3 * Math.sin(i) + (i % 7));

// A foot that is lifted off the floor, and faces that stand back from edges, leave gaps up to `grain`.
const SOLIDS = [
  ['OutlinedAreaSeries', 'rising', { count: 2, heights: [1, 3] }, { volume: 4, extent: [[0, 0, 0], [2, 3, 1]] }],
  ['OutlinedAreaSeries', 'through 0', { count: 3, heights: [2, -2, 0] },
    { volume: 4, extent: [[0, -2, 0], [4, 2, 1]] }],
  ['OutlinedAreaSeries', 'of one value', { count: 1, heights: [2] },
    { volume: 0.4, extent: [[-0.1, 0, 0], [0.1, 2, 1]] }],
  ['OutlinedAreaSeries', 'of many values', { count: 50, heights: WAVE }],
  ['OutlinedColumnSeries', 'of both signs', { count: 2, heights: [2, -3] },
    { volume: 4.8, within: 0.05, grain: 0.05, extent: [[-0.5, -2.99, 0], [2.5, 1.99, 1]] }],
  ['RoundedColumnSeries', 'of both signs', { count: 2, heights: [2, -3] },
    { volume: 4.93, within: 0.05, grain: 0.05, extent: [[-0.5, -3, 0], [2.5, 2, 1]] }],
  ['RoundedColumnSeries', 'without a round', { count: 1, heights: [2], bevelRadius: 0 },
    { volume: 2, within: 0.05, grain: 0.05 }],
  ['OutlinedRibbonSeries', 'level', { count: 3, heights: [1, 1, 1] },
    { volume: 0.75, within: 0.005, extent: [[0.005, 0.905, 0.005], [3.995, 1.095, 0.995]] }],
  ['OutlinedRibbonSeries', 'with sharp bends', { count: 4, heights: [0, 9, -9, 0] }],
  ['OutlinedRibbonSeries', 'of many values', { count: 50, heights: WAVE, spacing: 0.1 }],
  ['RoundedRibbonSeries', 'level', { count: 3, heights: [1, 1, 1] },
    { volume: 0.79, within: 0.005, extent: [[0, 0.9, 0], [4, 1.1, 1]] }],
  ['RoundedRibbonSeries', 'with sharp bends', { count: 4, heights: [0, 9, -9, 0] }],
  ['RoundedRibbonSeries', 'of many values', { count: 50, heights: WAVE, spacing: 0.1 }],
  ['OutlinedPieSlice', 'a fifth', {}, { volume: 5.65, within: 0.15 }],
  ['OutlinedPieSlice', 'whole', { angle: 6.2832 }, { volume: 28.2, within: 0.5 }],
  ['RoundedRingSlice', 'a fifth', {}, { volume: 4, within: 0.3 }],
  ['RoundedRingSlice', 'whole', { angle: 6.2832 }, { volume: 21, within: 0.5 }],
  ['RoundedRingSlice', 'a pie of more than half', { innerRadius: 0, angle: 4 }, { volume: 17.6, within: 0.5 }],
  ['RoundedRingSlice', 'thin, with a tip', { innerRadius: 0, angle: 0.1 }],
  ['ConeCollection', 'two cones', { coneLocations: [0, 5].map((x) => point(x, 1, 0)) },
    { volume: 0.111, within: 0.003, extent: [[-0.3, 0.7, -0.3], [5.3, 1.3, 0.3]] }],
];

function point(x, y, z) {
  return run({ defaults: '', declared: '', code: `var at = new SFVec3f(${x}, ${y}, ${z});` }).at;
}

describe('a solid is closed and looks outwards:', () => {
  for (const [proto, what, values, { volume: expected, within = 1e-6, extent: box, grain } = {}] of SOLIDS) {
    test(`${proto} ${what}`, () => {
      const solid = mesh(proto, values);
      assert.ok(solid.points.every(({ x, y, z }) => Number.isFinite(x + y + z)), 'not finite');
      assert.deepEqual(openEdges(solid, grain), []);
      assert.ok(volume(solid) > 0, 'inside out or empty');
      if (expected) assert.ok(Math.abs(volume(solid) - expected) <= within, `volume ${volume(solid)}`);
      if (box) assert.deepEqual(extent(solid), box);
      for (const [i, normal] of (solid.normals ?? []).entries()) {
        assert.ok(Math.abs(normal.length() - 1) < 1e-6, `normal ${i} is ${key(normal)}`);
      }
    });
  }
});

describe('nothing is drawn without a size or a count, and what is no number counts as 0:', () => {
  for (const proto of new Set(SOLIDS.map(([name]) => name).filter((name) => name.endsWith('Series')))) {
    test(proto, () => {
      for (const none of [{ count: 0 }, { spacing: 0 }, { depth: -1 }]) {
        assert.deepEqual(mesh(proto, { heights: [1, 2], ...none }).faces, []);
      }
      const given = { count: 4, heights: [2, ...NUMB] };
      assert.deepEqual(mesh(proto, given), mesh(proto, { ...given, heights: [2, 0, 0, 0] }));
    });
  }
});

test('a strip of many values finds the one that the line of sight comes upon', () => {
  const heights = WAVE.map((height, i) => (i === 20 ? 20 : height));
  const strip = draw('PopupStrip', { pointCount: 50, pointSpacing: 2, stripDepth: 1.05, pointHeights: heights },
    { viewer: { position_changed: point(50, 30, 90) }, strip: { coord: {} }, home: {} });
  const behind = (target) => {
    const eye = strip.viewer.position_changed;
    strip.set_stripHit(target.add(eye.subtract(target).multiply(0.01)));
    return strip.pointed;
  };
  heights.forEach((height, i) => assert.equal(behind(point(2 * i, height, 1)), i));
  assert.equal(behind(point(38, 19, 0.5)), -1); // beside the peak, above all others
});
