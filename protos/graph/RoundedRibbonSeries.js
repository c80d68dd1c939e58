// Draws the band of qm4_RoundedRibbonSeries.

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

function spacingOf() { return sizeStore.offset; }

function draw() {
  var spacing = sizeStore.offset, thickness = sizeStore.minAngle, depth = sizeStore.maxAngle;
  var x = new Array(), y = new Array(), rings = new Array();
  var radius = Math.max(0,
    Math.min(sizeStore.diskAngle, 0.5 * thickness, 0.5 * depth, 0.25 * spacing));
  if (spacing > 0 && thickness > 0 && depth > 0) {
    readValues(x, y, spacing, 0.25);
    addRings(rings, x, y, 0.5 * thickness, radius);
  }
  drawPoints(rings, 0.5 * thickness, 0.5 * depth, radius);
  drawFaces(rings);
}

/* The band is a hose: rings round its course, each joined to the one before it. */
function addRings(rings, x, y, half, radius) {
  var last = x.length - 1, i, k;
  if (last < 0) return;
  var from = course(x, y, 0), to;
  for (k = 3; k >= 0; --k) addEnd(rings, x[0], y[0], half, radius, from, -1, k / 3);
  for (i = 1; i < last; ++i) {
    to = course(x, y, i);
    addBend(rings, x[i], y[i], half, from, to);
    from = to;
  }
  for (k = 0; k <= 3; ++k) addEnd(rings, x[last], y[last], half, radius, from, 1, k / 3);
  rings[0].joined = false;
}

/* A ring: the upper and the lower end of the band's section, the way up from the band there, and
   whether the ring is joined to the one before it. At the band's ends rings close by degrees, from
   0 to a right angle (rise), and lean out (-1 at the start, 1 at the end of the course). */
function addRing(rings, upX, upY, downX, downY, normalX, normalY) {
  var ring = new Object();
  ring.upX = upX;
  ring.upY = upY;
  ring.downX = downX;
  ring.downY = downY;
  ring.normalX = normalX;
  ring.normalY = normalY;
  ring.rise = 0;
  ring.lean = 0;
  ring.joined = true;
  rings[rings.length] = ring;
  return ring;
}

function addEnd(rings, x, y, half, radius, way, lean, part) {
  var rise = 0.5 * Math.PI * part, step = lean * radius * (Math.sin(rise) - 1);
  var midX = x + step * way.x, midY = y + step * way.y;
  var ring = addRing(rings,
    midX - half * way.y, midY + half * way.x, midX + half * way.y, midY - half * way.x,
    -way.y, way.x);
  ring.rise = rise;
  ring.lean = lean;
}

/* The inside of the bend is above where the band turns up (side 1), below where it turns down (-1).
   The outside of a bend of more than a right angle takes two rings, which share the end inside. */
function addBend(rings, x, y, half, from, to) {
  var dot = from.x * to.x + from.y * to.y;
  var side = from.x * to.y - from.y * to.x > 0 ? 1 : -1;
  var tangent = Math.sqrt(Math.max(1 - dot, 0) / Math.max(1 + dot, 0.000001));
  var mitreX = -side * half * (from.y + side * from.x * tangent);
  var mitreY = side * half * (from.x - side * from.y * tangent);
  var room = 0.5 * Math.min(from.length, to.length);
  var part = half * tangent > room ? room / (half * tangent) : 1;
  var inX = x + part * mitreX, inY = y + part * mitreY;
  var outX = x - mitreX, outY = y - mitreY;
  if (tangent < 0.31) {
    var size = Math.sqrt(2 + 2 * dot);
    addEnds(rings, side, inX, inY, outX, outY, -(from.y + to.y) / size, (from.x + to.x) / size);
  } else if (tangent <= 1) {
    addEnds(rings, side, inX, inY, outX, outY, -from.y, from.x);
    addEnds(rings, side, inX, inY, outX, outY, -to.y, to.x).joined = false;
  } else {
    addEnds(rings, side, inX, inY,
      x + half * (side * from.y + from.x), y + half * (from.y - side * from.x), -from.y, from.x);
    addEnds(rings, side, inX, inY,
      x + half * (side * to.y - to.x), y - half * (to.y + side * to.x), -to.y, to.x);
  }
}

function addEnds(rings, side, inX, inY, outX, outY, normalX, normalY) {
  return side > 0
    ? addRing(rings, inX, inY, outX, outY, normalX, normalY)
    : addRing(rings, outX, outY, inX, inY, normalX, normalY);
}

/* Sixteen points a ring, four at each corner: from the upper front one to the front, the lower, the
   rear and back to the upper side. */
function drawPoints(rings, half, halfDepth, radius) {
  var coords = new MFVec3f(), vectors = new MFVec3f(), n = 0;
  coords.length = vectors.length = 16 * rings.length;
  for (var i = 0; i < rings.length; ++i) {
    var ring = rings[i], flat = Math.cos(ring.rise), out = ring.lean * Math.sin(ring.rise);
    for (var k = 0; k < 16; ++k) {
      var corner = Math.floor(k / 4), turn = 0.5 * Math.PI * (corner + k % 4 / 3);
      var up = flat * Math.cos(turn), front = flat * Math.sin(turn);
      var across = (corner == 0 || corner == 3 ? 1 : -1) * (half - radius) + radius * up;
      var along = (corner < 2 ? 1 : -1) * (halfDepth - radius) + radius * front;
      var share = 0.5 + 0.5 * across / half;
      coords[n] = new SFVec3f(
        ring.downX + share * (ring.upX - ring.downX),
        ring.downY + share * (ring.upY - ring.downY),
        halfDepth + along);
      vectors[n++] = new SFVec3f(
        up * ring.normalX + out * ring.normalY, up * ring.normalY - out * ring.normalX, front);
    }
  }
  points = coords;
  normals = vectors;
}

function drawFaces(rings) {
  var field = new MFInt32(), count = rings.length, joints = 0, n = 0, i;
  for (i = 0; i < count; ++i) if (rings[i].joined) ++joints;
  field.length = count > 0 ? 80 * joints + 10 : 0;
  for (i = 0; i < count; ++i) {
    for (var k = 0; k < 16 && rings[i].joined; ++k) {
      var next = (k + 1) % 16;
      field[n++] = 16 * i - 16 + next;
      field[n++] = 16 * i + next;
      field[n++] = 16 * i + k;
      field[n++] = 16 * i - 16 + k;
      field[n++] = -1;
    }
  }
  for (i = 0; count > 0 && i < 4; ++i) {
    field[n + i] = (16 - 4 * i) % 16;
    field[n + 5 + i] = 16 * count - 16 + 4 * i;
  }
  if (count > 0) field[n + 4] = field[n + 9] = -1;
  faceIndex = field;
}

// include ../parts/values.js

// include ../parts/course.js
