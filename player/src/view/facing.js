// What follows the viewer: Billboards that turn to him, and LODs that choose a level by his distance.

import { Matrix4, Vector3 } from 'three';

const toLocal = new Matrix4(), viewer = new Vector3(), up = new Vector3();
const x = new Vector3(), y = new Vector3(), z = new Vector3(), axis = new Vector3();

/** Turns a Billboard so that its z points at the viewer; about its axis, or freely with the viewer's up. */
export function turnBillboard({ node, object }, camera) {
  toLocal.copy(object.parent.matrixWorld).invert();
  viewer.setFromMatrixPosition(camera.matrixWorld);
  if (camera.isOrthographicCamera) {
    z.setFromMatrixColumn(camera.matrixWorld, 2).transformDirection(toLocal);
  } else {
    z.copy(viewer).applyMatrix4(toLocal).normalize();
  }
  const wanted = node.get('axisOfRotation');
  axis.set(wanted.x, wanted.y, wanted.z);
  if (axis.lengthSq() === 0) {
    up.setFromMatrixColumn(camera.matrixWorld, 1).transformDirection(toLocal);
    x.crossVectors(up, z).normalize();
    y.crossVectors(z, x);
  } else {
    // As far as turning about the axis can take z.
    y.copy(axis.normalize());
    x.crossVectors(y, z);
    if (x.lengthSq() < 1e-12) return;
    x.normalize();
    z.crossVectors(x, y);
    // Not y, but the axis stays where it is: turn the frame's own z about it.
    const from = up.set(0, 0, 1).addScaledVector(y, -y.z);
    if (from.lengthSq() < 1e-12) return;
    from.normalize();
    const angle = Math.atan2(axis.dot(viewer.crossVectors(from, z)), from.dot(z));
    object.matrix.makeRotationAxis(axis, angle);
    object.updateMatrixWorld(true);
    return;
  }
  object.matrix.makeBasis(x, y, z);
  object.updateMatrixWorld(true);
}

/** Chooses the level of an LOD; returns whether it is another one. */
export function chooseLevel(group, camera) {
  const { node, object } = group, ranges = node.get('range'), { x: cx, y: cy, z: cz } = node.get('center');
  viewer.setFromMatrixPosition(camera.matrixWorld).applyMatrix4(toLocal.copy(object.matrixWorld).invert());
  const distance = viewer.distanceTo(axis.set(cx, cy, cz));
  let level = 0;
  while (level < ranges.length && distance >= ranges[level]) ++level;
  level = Math.min(level, Math.max(0, node.get('level').length - 1));
  if (level === group.level) return false;
  group.level = level;
  group.fill();
  return true;
}
