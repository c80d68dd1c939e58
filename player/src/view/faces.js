// Turns the faces of an IndexedFaceSet into triangles over as few vertices as show them the same.

import { ShapeUtils, Vector2 } from 'three';

// Up to so many faces, each has corners of its own, so that light varies over it; beyond, a face has one light
// and shares its corners.
const FEW = 200;

/** @typedef {{position: Float32Array, normal: ?Float32Array, color: ?Float32Array, uv: ?Float32Array,
 *             index: Uint16Array|Uint32Array, isFlat: boolean}} Triangles
 *  isFlat: a triangle has one normal, that of its last vertex; colours are one a triangle, too, when
 *  hasFlatColor is set. Vertices can so be shared by faces that meet at an edge: a box has 8 of them. */

/** @param {object} set  the fields of an IndexedFaceSet: points, coordIndex, ccw, convex, creaseAngle, and
 *  where given normals, normalIndex, normalPerVertex, colors, colorIndex, colorPerVertex, texCoords,
 *  texCoordIndex
 *  @returns {Triangles} counter-clockwise seen from the front */
export function triangles(set) {
  const mesh = new Mesh(set);
  const isFaceted = set.normals ? !set.normalPerVertex : mesh.isFaceted(set.creaseAngle);
  const isPlainColor = !set.colors || !set.colorPerVertex || sameIndex(set.colorIndex, set.coordIndex);
  const isPlainMap = !set.texCoords || sameIndex(set.texCoordIndex, set.coordIndex);
  if (isFaceted && isPlainColor && isPlainMap && mesh.faceCount > FEW) return mesh.faceted();
  return mesh.smooth(isFaceted);
}

/** The smallest array that can hold indexes below count. */
export function indexArray(length, count) {
  return count > 65535 ? new Uint32Array(length) : new Uint16Array(length);
}

function sameIndex(index, other) {
  if (!index || index.length === 0) return true;
  return index.length === other.length && index.every((n, i) => n === other[i]);
}

class Mesh {
  constructor(set) {
    this.set = set;
    this.points = set.points;
    this.pointCount = set.points.length / 3;
    this.findFaces();
    this.cut();
  }

  /** Where each face's corners begin and end in coordIndex; faces with a point that is not there are out. */
  findFaces() {
    const { coordIndex } = this.set;
    const { length } = coordIndex;
    const begins = new Int32Array(length + 1), ends = new Int32Array(length + 1), numbers = new Int32Array(length + 1);
    let count = 0, begin = 0, number = 0, isWhole = true;
    for (let at = 0; at <= length; ++at) {
      const point = at < length ? coordIndex[at] : -1;
      if (point >= 0) {
        if (point >= this.pointCount) isWhole = false;
        continue;
      }
      if (at - begin >= 3 && isWhole) {
        begins[count] = begin;
        ends[count] = at;
        numbers[count++] = number;
      }
      if (at > begin || at < length) ++number;
      begin = at + 1;
      isWhole = true;
    }
    this.faceCount = count;
    this.begins = begins;
    this.ends = ends;
    this.numbers = numbers; // of the face in the field, which colours and normals go by
    this.findNormals();
  }

  /** By Newell's way, so that faces that are not quite flat have one, too. */
  findNormals() {
    const { points, begins, ends } = this, { coordIndex } = this.set;
    const turn = this.set.ccw === false ? -1 : 1;
    const normals = new Float32Array(3 * this.faceCount);
    for (let face = 0; face < this.faceCount; ++face) {
      let x = 0, y = 0, z = 0, a = 3 * coordIndex[ends[face] - 1];
      for (let at = begins[face]; at < ends[face]; ++at) {
        const b = 3 * coordIndex[at];
        x += (points[a + 1] - points[b + 1]) * (points[a + 2] + points[b + 2]);
        y += (points[a + 2] - points[b + 2]) * (points[a] + points[b]);
        z += (points[a] - points[b]) * (points[a + 1] + points[b + 1]);
        a = b;
      }
      const scale = turn / (Math.sqrt(x * x + y * y + z * z) || 1);
      normals[3 * face] = x * scale;
      normals[3 * face + 1] = y * scale;
      normals[3 * face + 2] = z * scale;
    }
    this.faceNormals = normals;
  }

  /** Corners of triangles, as places in coordIndex, each face's first corner last in all its triangles. */
  cut() {
    const { begins, ends, faceCount } = this;
    let count = 0;
    for (let face = 0; face < faceCount; ++face) count += 3 * (ends[face] - begins[face] - 2);
    const corners = new Int32Array(count);
    this.firsts = new Int32Array(faceCount + 1); // of each face's corners in "corners"
    const isTurned = this.set.ccw === false;
    let n = 0;
    for (let face = 0; face < faceCount; ++face) {
      this.firsts[face] = n;
      const begin = begins[face], end = ends[face];
      if (this.set.convex === false && end - begin > 3) {
        for (const [a, b, c] of this.cutConcave(face)) {
          corners[n++] = begin + a;
          corners[n++] = begin + (isTurned ? c : b);
          corners[n++] = begin + (isTurned ? b : c);
        }
      } else {
        for (let at = begin + 1; at < end - 1; ++at) {
          corners[n++] = isTurned ? at + 1 : at;
          corners[n++] = isTurned ? at : at + 1;
          corners[n++] = begin;
        }
      }
    }
    this.firsts[faceCount] = n;
    this.corners = corners.subarray(0, n);
  }

  cutConcave(face) {
    const { points, faceNormals } = this, { coordIndex } = this.set;
    const size = [0, 1, 2].map((axis) => Math.abs(faceNormals[3 * face + axis]));
    const drop = size.indexOf(Math.max(...size)), u = (drop + 1) % 3, v = (drop + 2) % 3;
    const outline = [];
    for (let at = this.begins[face]; at < this.ends[face]; ++at) {
      const p = 3 * coordIndex[at];
      outline.push(new Vector2(points[p + u], points[p + v]));
    }
    const isClockwise = ShapeUtils.isClockWise(outline);
    const cuts = ShapeUtils.triangulateShape(outline.slice(), []);
    const turns = cuts.map(([a, b, c]) => (
      ShapeUtils.area([outline[a], outline[b], outline[c]]) < 0 === isClockwise ? [a, b, c] : [a, c, b]));
    return turns;
  }

  /** Whether no two faces that share a point are to be shaded round. */
  isFaceted(creaseAngle) {
    if (!(creaseAngle > 0)) return true;
    if (creaseAngle >= Math.PI) return false;
    const { faceNormals, begins, ends } = this, { coordIndex } = this.set;
    const least = Math.cos(creaseAngle), first = new Int32Array(this.pointCount).fill(-1);
    for (let face = 0; face < this.faceCount; ++face) {
      for (let at = begins[face]; at < ends[face]; ++at) {
        const point = coordIndex[at], other = first[point];
        if (other < 0) first[point] = face;
        else if (other !== face && dot(faceNormals, 3 * face, 3 * other) >= least) return false;
      }
    }
    return true;
  }

  /** Each face gets a vertex of its own that carries its normal, a corner that no other face has taken. */
  faceted() {
    const { set, points, corners, firsts } = this, { coordIndex, colors, texCoords } = set;
    const owner = new Int32Array(this.pointCount).fill(-1);
    const copies = []; // points that are needed once more
    const index = new Uint32Array(corners.length);
    const isFan = set.convex !== false;
    const hasFaceColors = colors && !set.colorPerVertex;
    const carriers = new Int32Array(corners.length / 3); // the vertex that carries a triangle's normal
    for (let face = 0; face < this.faceCount; ++face) {
      const begin = this.begins[face], size = this.ends[face] - begin;
      let turn = 0;
      while (turn < size && owner[coordIndex[begin + turn]] >= 0) ++turn;
      const isTaken = turn === size;
      if (isFan) {
        const carrier = isTaken ? this.pointCount + copies.length : coordIndex[begin + turn];
        if (isTaken) copies.push(coordIndex[begin]);
        else owner[carrier] = face;
        for (let n = firsts[face]; n < firsts[face + 1]; n += 3) {
          for (let k = 0; k < 2; ++k) {
            const at = corners[n + k] - begin + (isTaken ? 0 : turn);
            index[n + k] = coordIndex[begin + (at >= size ? at - size : at)];
          }
          index[n + 2] = carrier;
          carriers[n / 3] = face;
        }
      } else {
        for (let n = firsts[face]; n < firsts[face + 1]; n += 3) {
          let k = 2;
          const free = [2, 1, 0].find((i) => {
            const taken = owner[coordIndex[corners[n + i]]];
            return taken < 0 || taken === face;
          });
          if (free !== undefined) k = free;
          index[n] = coordIndex[corners[n + (k + 1) % 3]];
          index[n + 1] = coordIndex[corners[n + (k + 2) % 3]];
          const last = coordIndex[corners[n + k]];
          if (free === undefined) {
            index[n + 2] = this.pointCount + copies.length;
            copies.push(last);
          } else {
            owner[last] = face;
            index[n + 2] = last;
          }
          carriers[n / 3] = face;
        }
      }
    }

    const count = this.pointCount + copies.length;
    const position = extended(points, copies, 3);
    const normal = new Float32Array(3 * count);
    const flatColor = hasFaceColors ? new Float32Array(3 * count) : null;
    for (let t = 0; t < carriers.length; ++t) {
      const face = carriers[t], vertex = 3 * index[3 * t + 2], number = this.numbers[face];
      if (set.normals) copy3(set.normals, picked(set.normalIndex, number), normal, vertex);
      else copy3(this.faceNormals, face, normal, vertex);
      if (hasFaceColors) copy3(colors, picked(set.colorIndex, number), flatColor, vertex);
    }
    return {
      position, normal, isFlat: true, hasFlatColor: Boolean(hasFaceColors),
      color: hasFaceColors ? flatColor : colors ? extended(sized(colors, 3 * this.pointCount), copies, 3) : null,
      uv: texCoords ? extended(sized(texCoords, 2 * this.pointCount), copies, 2) : null,
      index: count > 65535 ? index : new Uint16Array(index),
    };
  }

  /** One vertex for each point and what differs there: normal, colour, place in the texture. */
  smooth(isFaceted) {
    const { set, points, corners, firsts } = this, { coordIndex, colors, texCoords } = set;
    const cornerNormals = this.cornerNormals(isFaceted);
    const most = corners.length;
    const index = new Uint32Array(most), vertexOf = new Int32Array(coordIndex.length).fill(-1);
    const from = new Int32Array(most), next = new Int32Array(most);
    const first = new Int32Array(this.pointCount).fill(-1);
    let count = 0;
    const colorOf = (at, face) => (
      set.colorPerVertex ? picked(set.colorIndex, at, coordIndex) : picked(set.colorIndex, this.numbers[face]));
    const faceOf = new Int32Array(coordIndex.length);
    for (let face = 0; face < this.faceCount; ++face) faceOf.fill(face, this.begins[face], this.ends[face]);
    const isSame = (a, b) => cornerNormals[3 * a] === cornerNormals[3 * b]
      && cornerNormals[3 * a + 1] === cornerNormals[3 * b + 1]
      && cornerNormals[3 * a + 2] === cornerNormals[3 * b + 2]
      && (!colors || colorOf(a, faceOf[a]) === colorOf(b, faceOf[b]))
      && (!texCoords || picked(set.texCoordIndex, a, coordIndex) === picked(set.texCoordIndex, b, coordIndex));
    for (let n = 0; n < firsts[this.faceCount]; ++n) {
      const at = corners[n], point = coordIndex[at];
      if (vertexOf[at] < 0) {
        let vertex = first[point];
        while (vertex >= 0 && !isSame(from[vertex], at)) vertex = next[vertex];
        if (vertex < 0) {
          vertex = count++;
          from[vertex] = at;
          next[vertex] = first[point];
          first[point] = vertex;
        }
        vertexOf[at] = vertex;
      }
      index[n] = vertexOf[at];
    }

    const position = new Float32Array(3 * count), normal = new Float32Array(3 * count);
    const color = colors ? new Float32Array(3 * count) : null;
    const uv = texCoords ? new Float32Array(2 * count) : null;
    for (let vertex = 0; vertex < count; ++vertex) {
      const at = from[vertex];
      copy3(points, coordIndex[at], position, 3 * vertex);
      copy3(cornerNormals, at, normal, 3 * vertex);
      if (color) copy3(colors, colorOf(at, faceOf[at]), color, 3 * vertex);
      if (uv) {
        const place = 2 * picked(set.texCoordIndex, at, coordIndex);
        uv[2 * vertex] = texCoords[place];
        uv[2 * vertex + 1] = texCoords[place + 1];
      }
    }
    return { position, normal, color, uv, isFlat: false, index: count > 65535 ? index : new Uint16Array(index) };
  }

  /** The normal at each corner, three numbers a place in coordIndex. */
  cornerNormals(isFaceted) {
    const { set, begins, ends, faceNormals } = this, { coordIndex, normals } = set;
    const result = new Float32Array(3 * coordIndex.length);
    if (normals) {
      for (let face = 0; face < this.faceCount; ++face) {
        for (let at = begins[face]; at < ends[face]; ++at) {
          const which = set.normalPerVertex
            ? picked(set.normalIndex, at, coordIndex) : picked(set.normalIndex, this.numbers[face]);
          copy3(normals, which, result, 3 * at);
        }
      }
      return result;
    }
    const least = isFaceted ? 2 : Math.cos(Math.min(set.creaseAngle, Math.PI)) - 1e-6;
    const [starts, faces] = this.facesAtPoints();
    for (let face = 0; face < this.faceCount; ++face) {
      for (let at = begins[face]; at < ends[face]; ++at) {
        const point = coordIndex[at];
        let x = 0, y = 0, z = 0;
        for (let k = starts[point]; k < starts[point + 1]; ++k) {
          const other = faces[k];
          if (other !== face && dot(faceNormals, 3 * face, 3 * other) < least) continue;
          x += faceNormals[3 * other];
          y += faceNormals[3 * other + 1];
          z += faceNormals[3 * other + 2];
        }
        const length = Math.sqrt(x * x + y * y + z * z) || 1;
        result[3 * at] = x / length;
        result[3 * at + 1] = y / length;
        result[3 * at + 2] = z / length;
      }
    }
    return result;
  }

  /** Those of point p are faces[starts[p]] up to faces[starts[p + 1] - 1]. */
  facesAtPoints() {
    const { begins, ends } = this, { coordIndex } = this.set;
    const starts = new Int32Array(this.pointCount + 2);
    for (let face = 0; face < this.faceCount; ++face) {
      for (let at = begins[face]; at < ends[face]; ++at) ++starts[coordIndex[at] + 2];
    }
    for (let point = 2; point < starts.length; ++point) starts[point] += starts[point - 1];
    const faces = new Int32Array(starts[this.pointCount + 1]);
    for (let face = 0; face < this.faceCount; ++face) {
      for (let at = begins[face]; at < ends[face]; ++at) faces[starts[coordIndex[at] + 1]++] = face;
    }
    return [starts, faces];
  }
}

/** Entry `at` of an index, or of what stands in for one that is not given. */
function picked(index, at, standIn) {
  if (index && index.length > 0) return index[at];
  return standIn ? standIn[at] : at;
}

function dot(vectors, a, b) {
  return vectors[a] * vectors[b] + vectors[a + 1] * vectors[b + 1] + vectors[a + 2] * vectors[b + 2];
}

function copy3(from, element, to, place) {
  to[place] = from[3 * element];
  to[place + 1] = from[3 * element + 1];
  to[place + 2] = from[3 * element + 2];
}

function sized(list, length) {
  if (list.length === length) return list;
  const result = new Float32Array(length);
  result.set(list.length > length ? list.subarray(0, length) : list);
  return result;
}

/** A list with some of its elements repeated at its end; itself where none is. */
function extended(list, copies, size) {
  if (copies.length === 0) return list;
  const result = new Float32Array(list.length + size * copies.length);
  result.set(list);
  copies.forEach((element, i) => {
    for (let k = 0; k < size; ++k) result[list.length + size * i + k] = list[size * element + k];
  });
  return result;
}
