// Draws the columns of qm4_RoundedColumnSeries.

function initialize() {
  if (store.choice.length > 0) appearance = store.choice[0];
  draw();
}

function set_appearance(value, time) { appearance = value.length > 0 ? value[0] : null; }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

function draw() {
  var visible = sizeStore.offset > 0 && sizeStore.minAngle > 0 && sizeStore.maxAngle > 0;
  var count = visible ? Math.max(0, Math.min(store.whichChoice, 32767)) : 0;
  var segments = Math.min(segmentStore.whichChoice, 16, Math.ceil(100 / Math.max(count, 1)));
  segments = Math.max(segments, 1);
  drawPoints(count, directions(segments));
  var pattern = facePattern(segments), size = pattern.length;
  if (faceIndex.length != size * count) drawFaces(count, pattern, pointsAColumn(segments));
}

/* A column is made of rings round its axis: the rim of the face at its foot, the foot of its sides,
   and the rings of the round from the top of its sides to the face at its tip. A ring has
   segments + 1 points at each corner; those of the last ring coincide, and are one. */
function pointsAColumn(segments) { return 4 * (segments + 1) * (segments + 2) + 4; }

/* For each point of a column: the corner it belongs to (x and z are -1 or 1), where its ring is (at
   0 the rim, 1 the foot, 2 the tip), and the way from the centre of its round, of length 1. */
function directions(segments) {
  var list = new Array();
  for (var ring = -2; ring <= segments; ++ring) {
    var rise = 0.5 * Math.PI * Math.max(ring, 0) / segments;
    for (var corner = 0; corner < 4; ++corner) {
      for (var k = 0; k <= (ring == segments ? 0 : segments); ++k) {
        var turn = 0.5 * Math.PI * (corner + k / segments);
        var point = new Object();
        point.x = corner == 0 || corner == 3 ? 1 : -1;
        point.z = corner < 2 ? 1 : -1;
        point.at = Math.min(ring + 2, 2);
        point.outX = Math.cos(rise) * Math.cos(turn);
        point.outY = Math.sin(rise);
        point.outZ = Math.cos(rise) * Math.sin(turn);
        list[list.length] = point;
      }
    }
  }
  return list;
}

/* A column that hangs is one that stands, turned half round about z, which keeps its faces looking
   outwards. The face at the foot is lifted off a floor at y = 0. */
function drawPoints(count, list) {
  var spacing = sizeStore.offset, width = sizeStore.minAngle, depth = sizeStore.maxAngle;
  var heights = heightStore.keyValue, given = heights.length, size = list.length;
  var coords = new MFVec3f(), vectors = new MFVec3f(), Vector = SFVec3f;
  var lift = 0.02 * Math.min(width, depth), n = 0;
  coords.length = vectors.length = size * count;
  for (var i = 0; i < count; ++i) {
    var y = i < given ? heights[i] : 0;
    if (y - y != 0) y = 0;
    var side = y < 0 ? -1 : 1;
    if (side * y < 2 * lift) y = side * 2 * lift;
    var radius = Math.max(0, Math.min(sizeStore.diskAngle, 0.5 * Math.min(width, depth, side * y)));
    var toX = 0.5 * width - radius, toZ = 0.5 * depth - radius;
    var level = new Array(lift, y < 0 ? lift : 0, y - side * radius);
    for (var k = 0; k < size; ++k) {
      var point = list[k];
      coords[n] = new Vector(
        i * spacing + side * (point.x * toX + point.outX * radius),
        level[point.at] + side * point.outY * radius,
        0.5 * depth + point.z * toZ + point.outZ * radius);
      vectors[n++] = point.at == 0
        ? new Vector(0, -side, 0)
        : new Vector(side * point.outX, side * point.outY, point.outZ);
    }
  }
  points = coords;
  normals = vectors;
}

/* The faces of one column, each closed by -1. */
function facePattern(segments) {
  var list = new Array(), corner = segments + 1, size = 4 * corner;
  var ring, k, i, last = (segments + 2) * size;
  for (k = 0; k < size; ++k) list.push(k);
  list.push(-1);
  for (ring = 1; ring <= segments; ++ring) {
    for (k = 0; k < size; ++k) {
      i = ring * size;
      list.push(i + (k + 1) % size, i + k, i + size + k, i + size + (k + 1) % size, -1);
    }
  }
  for (k = 0; k < size; ++k) {
    i = last - size;
    list.push(i + (k + 1) % size, i + k, last + Math.floor(k / corner));
    if ((k + 1) % corner == 0) list.push(last + (k + 1) / corner % 4);
    list.push(-1);
  }
  list.push(last + 3, last + 2, last + 1, last, -1);
  return list;
}

function drawFaces(count, pattern, pointCount) {
  var field = new MFInt32(), size = pattern.length, n = 0;
  field.length = size * count;
  for (var i = 0; i < count; ++i) {
    for (var k = 0; k < size; ++k) field[n++] = pattern[k] < 0 ? -1 : pointCount * i + pattern[k];
  }
  faceIndex = field;
}
