// Draws the slice of qm4_RoundedRingSlice.

/* Strips that a quarter of a round is made of. */
var segments = 4;

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function draw() {
  var height = heightStore.offset, radius = radiusStore.offset;
  var inner = Math.max(0, Math.min(innerStore.offset, 0.98 * radius));
  var angle = Math.min(angleStore.offset, 2 * Math.PI);
  var outside = new Array(), inside = new Array(), faces = new Array(), bevel = 0;
  if (height > 0 && radius > 0 && angle > 0) {
    /* An arc strays from the circle by 0.002 at most, and a pie has 63 to 209 sides. */
    var step = Math.max(0.03, Math.min(0.1, Math.sqrt(0.016 / radius)));
    var sides = Math.max(2, Math.ceil(angle / step));
    bevel = bevelThatFits(height, radius, inner, angle);
    var whole = angle >= 6.2831;
    if (whole) {
      addArc(outside, radius - bevel, 0, 2 * Math.PI, sides, 0);
      if (inner > 0) addArc(inside, inner + bevel, 2 * Math.PI, 0, sides, Math.PI);
    } else {
      addOutside(outside, radius - bevel, angle, sides, bevel);
      if (inner > 0 || angle >= Math.PI) addInside(inside, inner + bevel, angle, sides, bevel);
      else addTip(inside, angle, bevel);
    }
    addFaces(faces, sides, outside.length, inside.length, whole);
  }
  drawPoints(outside.concat(inside), height, bevel);
  faceIndex = integers(faces);
}

/* At most half of what would make the slice a mere ridge; less where the sides of a thin slice come
   close at the inner radius. */
function bevelThatFits(height, radius, inner, angle) {
  var slant = angle < Math.PI ? Math.sin(angle / 2) : 1;
  var bevel = Math.min(bevelStore.offset, height / 2, (radius - inner) / 2,
    0.5 * radius * slant / (1 + slant));
  if (inner > 0 && slant < 1) bevel = Math.min(bevel, 0.9 * inner * slant / (1 - slant));
  return Math.max(0, bevel);
}

/* The outline of the slice, seen from above, is that of a core, widened by the bevel. It consists
   of points of the core, each with the way out from there, and with the direction that the side
   of the slice faces; for the most part they are the same. */
function addPoint(list, radius, at, outwards) {
  var point = new Object();
  point.x = radius * Math.cos(at);
  point.z = radius * Math.sin(at);
  point.outX = point.faceX = Math.cos(outwards);
  point.outZ = point.faceZ = Math.sin(outwards);
  list[list.length] = point;
  return point;
}

/* Turn is 0 on the outside of a ring, and Math.PI on its inside. */
function addArc(list, radius, from, to, sides, turn) {
  for (var k = 0; k <= sides; ++k) {
    var at = from + (to - from) * k / sides;
    addPoint(list, radius, at, at + turn);
  }
}

function addCorner(list, radius, at, from, to, first, last) {
  for (var k = first; k <= last; ++k) addPoint(list, radius, at, from + (to - from) * k / segments);
}

function addOutside(list, radius, angle, sides, bevel) {
  var end = Math.asin(bevel / radius);
  addCorner(list, radius, end, -Math.PI / 2, end, 0, segments - 1);
  addArc(list, radius, end, angle - end, sides, 0);
  addCorner(list, radius, angle - end, angle - end, angle + Math.PI / 2, 1, segments);
}

/* The outline comes back on the inside. */
function addInside(list, radius, angle, sides, bevel) {
  var end = radius > 0 ? Math.asin(bevel / radius) : 0;
  addCorner(list, radius, angle - end, angle + Math.PI / 2, angle - end + Math.PI, 0, segments - 1);
  addArc(list, radius, angle - end, end, sides, Math.PI);
  addCorner(list, radius, end, end + Math.PI, 1.5 * Math.PI, 1, segments);
}

/* The two sides meet in a point, which moves faster than they do when the core is widened. */
function addTip(list, angle, bevel) {
  var slant = Math.sin(angle / 2);
  for (var side = 0; side < 2; ++side) {
    var outwards = side == 0 ? angle + Math.PI / 2 : -Math.PI / 2;
    var point = addPoint(list, bevel / slant, angle / 2, outwards);
    point.outX = -Math.cos(angle / 2) / slant;
    point.outZ = -Math.sin(angle / 2) / slant;
  }
}

/* The outline is drawn at each level: those of the lower round, from the face below up, then those
   of the upper round. */
function drawPoints(outline, height, bevel) {
  var coords = new MFVec3f(), vectors = new MFVec3f(), count = outline.length, n = 0;
  coords.length = vectors.length = levels() * count;
  for (var level = 0; level < levels(); ++level) {
    var upper = level > segments;
    var rise = 0.5 * Math.PI * (upper ? level - segments - 1 : level - segments) / segments;
    var y = (upper ? height - bevel : bevel) + bevel * Math.sin(rise), flat = Math.cos(rise);
    for (var i = 0; i < count; ++i) {
      var point = outline[i];
      coords[n] = new SFVec3f(
        point.x + bevel * flat * point.outX, y, point.z + bevel * flat * point.outZ);
      vectors[n++] = new SFVec3f(flat * point.faceX, Math.sin(rise), flat * point.faceZ);
    }
  }
  points = coords;
  normals = vectors;
}

function levels() { return 2 * segments + 2; }

/* The outline of a slice is closed; that of a ring is two, outside and inside, each of which ends
   where it began. The faces above and below are strips between the arcs outside and inside, or
   fans: from the tip, or, of a whole pie, from the first point of its outline. */
function addFaces(list, sides, outsideSize, insideSize, whole) {
  var size = outsideSize + insideSize, top = (levels() - 1) * size, isFan = insideSize < 3;
  for (var base = 0; base < top; base += size) {
    for (var i = 0; i < size; ++i) {
      var a = base + i, b = i < size - 1 ? a + 1 : base;
      if (!whole || i % (sides + 1) < sides) list.push(b, a, a + size, b + size, -1);
    }
  }
  var first = whole ? 0 : segments, last = insideSize == 0 ? 0 : outsideSize;
  for (var k = 0; k < sides; ++k) {
    var out = first + k, back = last + first + sides - k;
    /* Where the arc inside bends away from an end, only this diagonal stays in the slice. */
    var early = 2 * k < sides, pivot = isFan ? last : early ? back : back - 1;
    list.push(top + pivot, top + out + 1, top + out, -1, out, out + 1, pivot, -1);
    if (isFan) continue;
    var corner = early ? out + 1 : out;
    list.push(top + back, top + back - 1, top + corner, -1, corner, back - 1, back, -1);
  }
}

// include ../parts/integers.js
