// The standard's own bodies as triangles: Box, Sphere, Cylinder, Cone, and the lattice of an ElevationGrid.

import { indexArray, triangles } from './faces.js';

const AROUND = 32; // parts of a circle

/** @param {{x: number, y: number, z: number}} size */
export function box({ x, y, z }) {
  const points = [];
  for (let n = 0; n < 8; ++n) points.push(n & 1 ? x / 2 : -x / 2, n & 2 ? y / 2 : -y / 2, n & 4 ? z / 2 : -z / 2);
  const faces = [4, 5, 7, 6, -1, 1, 0, 2, 3, -1, 5, 1, 3, 7, -1, 0, 4, 6, 2, -1, 6, 7, 3, 2, -1, 0, 1, 5, 4, -1];
  return triangles({ points: new Float32Array(points), coordIndex: new Int32Array(faces), creaseAngle: 0 });
}

export function sphere(radius) {
  const profile = [];
  for (let k = 0; k <= AROUND / 2; ++k) {
    const angle = 2 * Math.PI * k / AROUND;
    profile.push([radius * Math.sin(angle), radius * Math.cos(angle), Math.sin(angle), Math.cos(angle)]);
  }
  return turned([profile]);
}

/** @param {{radius: number, height: number, side: boolean, top: boolean, bottom: boolean}} fields */
export function cylinder({ radius, height, side, top, bottom }) {
  const y = height / 2;
  return turned([
    side ? [[radius, y, 1, 0], [radius, -y, 1, 0]] : [],
    top ? [[0, y, 0, 1], [radius, y, 0, 1]] : [],
    bottom ? [[radius, -y, 0, -1], [0, -y, 0, -1]] : [],
  ]);
}

/** @param {{bottomRadius: number, height: number, side: boolean, bottom: boolean}} fields */
export function cone({ bottomRadius, height, side, bottom }) {
  const y = height / 2, slant = Math.hypot(height, bottomRadius) || 1;
  const up = bottomRadius / slant, out = height / slant;
  return turned([
    side ? [[0, y, out, up], [bottomRadius, -y, out, up]] : [],
    bottom ? [[bottomRadius, -y, 0, -1], [0, -y, 0, -1]] : [],
  ]);
}

/** Bodies of revolution about y. A profile runs from above to below, seen at the right of the axis: distance
 *  from the axis, y, and the normal there, outwards and up. */
function turned(profiles) {
  const rings = profiles.reduce((sum, profile) => sum + profile.length, 0);
  const row = AROUND + 1, count = rings * row;
  const position = new Float32Array(3 * count), normal = new Float32Array(3 * count);
  const bands = profiles.reduce((sum, profile) => sum + Math.max(0, profile.length - 1), 0);
  const index = indexArray(6 * bands * AROUND, count);
  let vertex = 0, n = 0;
  for (const profile of profiles) {
    profile.forEach(([distance, y, out, up], k) => {
      for (let i = 0; i < row; ++i, ++vertex) {
        const angle = 2 * Math.PI * i / AROUND, sin = -Math.sin(angle), cos = -Math.cos(angle);
        position.set([distance * sin, y, distance * cos], 3 * vertex);
        normal.set([out * sin, up, out * cos], 3 * vertex);
        if (k === 0 || i === AROUND) continue;
        const above = vertex - row;
        index.set([above, vertex, vertex + 1, above, vertex + 1, above + 1], n);
        n += 6;
      }
    });
  }
  return { position, normal, color: null, uv: null, index, isFlat: false };
}

/** @param {object} grid  the fields of an ElevationGrid: xDimension, xSpacing, zDimension, zSpacing, height,
 *  ccw, creaseAngle, and where given colors, colorPerVertex, normals, normalPerVertex, texCoords */
export function lattice(grid) {
  const { xDimension: columns, zDimension: rows, xSpacing, zSpacing, height } = grid;
  if (columns < 2 || rows < 2) return null;
  const points = new Float32Array(3 * columns * rows);
  for (let k = 0, n = 0; k < rows; ++k) {
    for (let i = 0; i < columns; ++i, ++n) {
      points[3 * n] = i * xSpacing;
      points[3 * n + 1] = n < height.length ? height[n] : 0;
      points[3 * n + 2] = k * zSpacing;
    }
  }
  const isPlain = !grid.normals && (!grid.colors || grid.colorPerVertex);
  const sheet = isPlain ? smoothSheet(grid, points) : null;
  return sheet ?? triangles({
    ...grid, points, coordIndex: cells(columns, rows), ccw: grid.ccw, texCoords: grid.texCoords ?? texture(columns, rows),
  });
}

/** The sheet with one vertex a lattice point, as long as no two cells meet at more than the crease angle;
 *  otherwise null. */
function smoothSheet(grid, points) {
  const { xDimension: columns, zDimension: rows, xSpacing, zSpacing, creaseAngle } = grid;
  const turn = grid.ccw === false ? -1 : 1;
  const cellColumns = columns - 1, least = Math.cos(Math.min(Math.PI, creaseAngle));
  const cellNormals = new Float32Array(3 * cellColumns * (rows - 1));
  const normal = new Float32Array(points.length);
  for (let k = 0, n = 0; k < rows - 1; ++k) {
    for (let i = 0; i < cellColumns; ++i, n += 3) {
      const a = k * columns + i, b = a + 1, c = a + columns, d = c + 1;
      const ya = points[3 * a + 1], yb = points[3 * b + 1], yc = points[3 * c + 1], yd = points[3 * d + 1];
      const x = -(yb + yd - ya - yc) / (2 * xSpacing), z = -(yc + yd - ya - yb) / (2 * zSpacing);
      const scale = turn / Math.sqrt(x * x + 1 + z * z);
      cellNormals[n] = x * scale;
      cellNormals[n + 1] = scale;
      cellNormals[n + 2] = z * scale;
      if (i > 0 && dotOf(cellNormals, n, n - 3) < least) return null;
      if (k > 0 && dotOf(cellNormals, n, n - 3 * cellColumns) < least) return null;
      for (const vertex of [a, b, c, d]) {
        normal[3 * vertex] += cellNormals[n];
        normal[3 * vertex + 1] += cellNormals[n + 1];
        normal[3 * vertex + 2] += cellNormals[n + 2];
      }
    }
  }
  for (let n = 0; n < normal.length; n += 3) {
    const scale = 1 / Math.sqrt(normal[n] ** 2 + normal[n + 1] ** 2 + normal[n + 2] ** 2);
    normal[n] *= scale;
    normal[n + 1] *= scale;
    normal[n + 2] *= scale;
  }
  const index = indexArray(6 * cellColumns * (rows - 1), columns * rows);
  for (let k = 0, n = 0; k < rows - 1; ++k) {
    for (let i = 0; i < cellColumns; ++i) {
      const a = k * columns + i, c = a + columns;
      index[n++] = a;
      index[n++] = turn > 0 ? c : c + 1;
      index[n++] = turn > 0 ? c + 1 : c;
      index[n++] = a;
      index[n++] = turn > 0 ? c + 1 : a + 1;
      index[n++] = turn > 0 ? a + 1 : c + 1;
    }
  }
  const uv = grid.hasTexture ? grid.texCoords ?? texture(columns, rows) : null;
  return { position: points, normal, color: grid.colors ?? null, uv, index, isFlat: false };
}

function dotOf(vectors, a, b) {
  return vectors[a] * vectors[b] + vectors[a + 1] * vectors[b + 1] + vectors[a + 2] * vectors[b + 2];
}

function cells(columns, rows) {
  const index = new Int32Array(5 * (columns - 1) * (rows - 1));
  for (let k = 0, n = 0; k < rows - 1; ++k) {
    for (let i = 0; i < columns - 1; ++i, n += 5) {
      const a = k * columns + i;
      index.set([a, a + columns, a + columns + 1, a + 1, -1], n);
    }
  }
  return index;
}

function texture(columns, rows) {
  const uv = new Float32Array(2 * columns * rows);
  for (let k = 0, n = 0; k < rows; ++k) {
    for (let i = 0; i < columns; ++i, n += 2) {
      uv[n] = i / (columns - 1);
      uv[n + 1] = k / (rows - 1);
    }
  }
  return uv;
}
