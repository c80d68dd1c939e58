// What a ProximitySensor says of where the viewer is (ISO/IEC 14772-1, 6.38).

import { SFRotation, SFVec3f } from './singles.js';

/** place: see Node.js. */
export function approach(node, place) {
  const { events } = node.scene, isActive = node.get('isActive');
  const isInside = place !== null && node.get('enabled') && contains(node, place.position);
  if (isInside !== isActive) {
    events.send(node.field('isActive'), isInside);
    events.send(node.field(isInside ? 'enterTime' : 'exitTime'), events.time);
  }
  if (!isInside) return;
  const { x, y, z } = place.position, turn = place.orientation;
  const position = new SFVec3f(x, y, z), orientation = new SFRotation(turn.x, turn.y, turn.z, turn.angle);
  if (!isActive || `${node.get('position_changed')}` !== `${position}`) {
    events.send(node.field('position_changed'), position);
  }
  if (!isActive || `${node.get('orientation_changed')}` !== `${orientation}`) {
    events.send(node.field('orientation_changed'), orientation);
  }
}

function contains(node, { x, y, z }) {
  const size = node.get('size'), center = node.get('center');
  return size.x > 0 && size.y > 0 && size.z > 0
    && 2 * Math.abs(x - center.x) <= size.x
    && 2 * Math.abs(y - center.y) <= size.y
    && 2 * Math.abs(z - center.z) <= size.z;
}
