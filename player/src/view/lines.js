// Turns the lines of an IndexedLineSet into segments over the set's own points.

import { indexArray } from './faces.js';

/** @param {object} set  the fields of an IndexedLineSet: points, coordIndex, and where given colors,
 *  colorIndex, colorPerVertex
 *  @returns {{position: Float32Array, color: ?Float32Array, index: Uint16Array|Uint32Array}} */
export function segments(set) {
  const ends = pairs(set.coordIndex, set.points.length / 3);
  if (!set.colors) return { position: set.points, color: null, index: indexOf(ends, set.points.length / 3) };
  return colored(set, ends);
}

/** Places in coordIndex of the two ends of each segment, and the number of the line it is of. */
function pairs(coordIndex, pointCount) {
  const places = [], lines = [], points = [];
  let line = 0;
  for (let at = 0; at < coordIndex.length; ++at) {
    const point = coordIndex[at];
    if (point < 0) {
      ++line;
    } else if (at > 0 && coordIndex[at - 1] >= 0 && point < pointCount && coordIndex[at - 1] < pointCount) {
      places.push(at - 1, at);
      points.push(coordIndex[at - 1], point);
      lines.push(line);
    }
  }
  return { places, lines, points };
}

function indexOf({ points }, pointCount) {
  const index = indexArray(points.length, pointCount);
  index.set(points);
  return index;
}

/** Each end has a vertex of its own: a point may have another colour in another line. */
function colored(set, { places, lines, points }) {
  const count = places.length;
  const position = new Float32Array(3 * count), color = new Float32Array(3 * count), index = indexArray(count, count);
  const hasIndex = set.colorIndex && set.colorIndex.length > 0;
  for (let n = 0; n < count; ++n) {
    const line = lines[n >> 1];
    let which = hasIndex ? set.colorIndex[line] : line;
    if (set.colorPerVertex) which = hasIndex ? set.colorIndex[places[n]] : points[n];
    for (let k = 0; k < 3; ++k) {
      position[3 * n + k] = set.points[3 * points[n] + k];
      color[3 * n + k] = set.colors[3 * which + k];
    }
    index[n] = n;
  }
  return { position, color, index };
}
