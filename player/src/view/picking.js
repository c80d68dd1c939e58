// Which shape a ray meets first, and where.

import { Matrix4, Vector3 } from 'three';

const CHUNK = 64; // triangles in a box

const toLocal = new Matrix4(), origin = new Vector3(), direction = new Vector3();
const a = new Vector3(), b = new Vector3(), c = new Vector3();

/** @param {Iterable<Shape>} shapes  those that are shown
 *  @param {{origin: Vector3, direction: Vector3}} ray  in the world
 *  @returns the hit as the scene wants it, or null */
export function pick(shapes, ray) {
  let best = null;
  for (const shape of shapes) {
    const { geometry, object } = shape;
    if (object === null || geometry.bounds === null) continue;
    if (geometry.kind === 'lines' || geometry.kind === 'points') continue;
    toLocal.copy(object.matrixWorld).invert();
    origin.copy(ray.origin).applyMatrix4(toLocal);
    direction.copy(ray.origin).add(ray.direction).applyMatrix4(toLocal).sub(origin); // so that t is the world's
    const most = best === null ? Infinity : best.t;
    if (!meetsBox(geometry.bounds.low, geometry.bounds.high, 0, most)) continue;
    const found = geometry.kind === 'balls' ? firstBall(geometry, most) : firstTriangle(geometry, most);
    if (found !== null) best = { ...found, shape };
  }
  return best === null ? null : described(best, ray);
}

function meetsBox(low, high, at, most) {
  let near = 0, far = most;
  for (let k = 0; k < 3; ++k) {
    const from = k === 0 ? origin.x : k === 1 ? origin.y : origin.z;
    const step = k === 0 ? direction.x : k === 1 ? direction.y : direction.z;
    let t0 = (low[at + k] - from) / step, t1 = (high[at + k] - from) / step;
    if (t0 > t1) [t0, t1] = [t1, t0];
    // Not a number where the ray runs in the plane of a side: then that side does not bound it.
    if (t0 > near) near = t0;
    if (t1 < far) far = t1;
    if (near > far * 1.000001 + 1e-9) return false;
  }
  return true;
}

function firstBall({ data: { position, ballRadius } }, most) {
  const square = direction.lengthSq();
  let best = null, least = most;
  for (let i = 0; i < ballRadius.length; ++i) {
    const x = origin.x - position[3 * i], y = origin.y - position[3 * i + 1], z = origin.z - position[3 * i + 2];
    const half = x * direction.x + y * direction.y + z * direction.z;
    const root = half * half - square * (x * x + y * y + z * z - ballRadius[i] ** 2);
    if (root < 0) continue;
    const t = (-half - Math.sqrt(root)) / square;
    if (t < 0 || t >= least) continue;
    least = t;
    best = { t, normal: [x + t * direction.x, y + t * direction.y, z + t * direction.z] };
  }
  return best;
}

function firstTriangle(geometry, most) {
  const { position } = geometry.data, index = geometry.buffer.index.array, { isSolid } = geometry.traits;
  const boxes = geometry.chunks ??= boxesOf(position, index);
  const ox = origin.x, oy = origin.y, oz = origin.z, dx = direction.x, dy = direction.y, dz = direction.z;
  let best = null, least = most;
  for (let chunk = 0; 3 * CHUNK * chunk < index.length; ++chunk) {
    if (!meetsBox(boxes.low, boxes.high, 3 * chunk, least)) continue;
    const end = Math.min(index.length, 3 * CHUNK * (chunk + 1));
    for (let n = 3 * CHUNK * chunk; n < end; n += 3) {
      const i = 3 * index[n], j = 3 * index[n + 1], k = 3 * index[n + 2];
      const ax = position[i], ay = position[i + 1], az = position[i + 2];
      const ux = position[j] - ax, uy = position[j + 1] - ay, uz = position[j + 2] - az;
      const vx = position[k] - ax, vy = position[k + 1] - ay, vz = position[k + 2] - az;
      const px = dy * vz - dz * vy, py = dz * vx - dx * vz, pz = dx * vy - dy * vx;
      const volume = ux * px + uy * py + uz * pz;
      if (isSolid ? volume <= 0 : volume === 0) continue;
      const sx = ox - ax, sy = oy - ay, sz = oz - az;
      const s = (sx * px + sy * py + sz * pz) / volume;
      if (s < 0 || s > 1) continue;
      const qx = sy * uz - sz * uy, qy = sz * ux - sx * uz, qz = sx * uy - sy * ux;
      const r = (dx * qx + dy * qy + dz * qz) / volume;
      if (r < 0 || s + r > 1) continue;
      const t = (vx * qx + vy * qy + vz * qz) / volume;
      if (t < 0 || t >= least) continue;
      least = t;
      const side = volume > 0 ? 1 : -1;
      best = {
        t, normal: [side * (uy * vz - uz * vy), side * (uz * vx - ux * vz), side * (ux * vy - uy * vx)],
        corners: [n, s, r],
      };
    }
  }
  return best;
}

/** The box about each CHUNK triangles. */
function boxesOf(position, index) {
  const count = Math.ceil(index.length / 3 / CHUNK);
  const low = new Float32Array(3 * count).fill(Infinity), high = new Float32Array(3 * count).fill(-Infinity);
  for (let n = 0; n < index.length; ++n) {
    const chunk = 3 * Math.floor(n / 3 / CHUNK), from = 3 * index[n];
    for (let k = 0; k < 3; ++k) {
      const at = position[from + k];
      if (at < low[chunk + k]) low[chunk + k] = at;
      if (at > high[chunk + k]) high[chunk + k] = at;
    }
  }
  return { low, high };
}

function described({ t, normal, shape, corners }, ray) {
  a.copy(ray.direction).multiplyScalar(t).add(ray.origin);
  // Normals go by the inverse's transpose.
  toLocal.copy(shape.object.matrixWorld).invert().transpose();
  b.set(...normal).transformDirection(toLocal);
  const path = [];
  for (let at = shape.object.parent; at !== null; at = at.parent) {
    if (at.userData.node) path.unshift({ node: at.userData.node, matrix: at.matrixWorld.elements.slice() });
  }
  const hit = { point: plain(a), normal: plain(b), path, shape };
  const uv = shape.geometry.data.uv;
  if (uv && corners) {
    const [n, s, r] = corners, index = shape.geometry.buffer.index.array;
    c.set(0, 0, 0);
    [1 - s - r, s, r].forEach((weight, k) => {
      const at = 2 * index[n + k];
      c.x += weight * uv[at];
      c.y += weight * uv[at + 1];
    });
    hit.texCoord = { x: c.x, y: c.y };
  }
  return hit;
}

const plain = ({ x, y, z }) => ({ x, y, z });
