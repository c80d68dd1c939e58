// Frames as 16 numbers, column by column: points, directions and normals from one to the other.

import { SFVec3f } from './singles.js';

export function transformPoint(m, { x, y, z }) {
  return new SFVec3f(
    m[0] * x + m[4] * y + m[8] * z + m[12],
    m[1] * x + m[5] * y + m[9] * z + m[13],
    m[2] * x + m[6] * y + m[10] * z + m[14]);
}

export function transformDirection(m, { x, y, z }) {
  return new SFVec3f(
    m[0] * x + m[4] * y + m[8] * z,
    m[1] * x + m[5] * y + m[9] * z,
    m[2] * x + m[6] * y + m[10] * z);
}

/** A normal of the world in the frame that m leads out of. */
export function normalInto(m, { x, y, z }) {
  return new SFVec3f(
    m[0] * x + m[1] * y + m[2] * z,
    m[4] * x + m[5] * y + m[6] * z,
    m[8] * x + m[9] * y + m[10] * z).normalize();
}

/** The way back, of a matrix without perspective; of a flat one, all 0. */
export function inverse(m) {
  const a = m[5] * m[10] - m[6] * m[9], b = m[6] * m[8] - m[4] * m[10], c = m[4] * m[9] - m[5] * m[8];
  const determinant = m[0] * a + m[1] * b + m[2] * c;
  const k = determinant === 0 ? 0 : 1 / determinant;
  const r = [
    k * a, k * (m[2] * m[9] - m[1] * m[10]), k * (m[1] * m[6] - m[2] * m[5]), 0,
    k * b, k * (m[0] * m[10] - m[2] * m[8]), k * (m[2] * m[4] - m[0] * m[6]), 0,
    k * c, k * (m[1] * m[8] - m[0] * m[9]), k * (m[0] * m[5] - m[1] * m[4]), 0,
    0, 0, 0, 1,
  ];
  const origin = transformDirection(r, { x: m[12], y: m[13], z: m[14] });
  r[12] = -origin.x;
  r[13] = -origin.y;
  r[14] = -origin.z;
  return r;
}
