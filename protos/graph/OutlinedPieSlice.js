// Draws the faces and the edges of qm4_OutlinedPieSlice.

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function draw() {
  var height = heightStore.offset, radius = radiusStore.offset;
  var angle = Math.min(angleStore.offset, 2 * Math.PI);
  var whole = angle >= 6.2831, off = 0.005 * Math.min(height, radius);
  var newPoints = new MFVec3f(), faces = new Array(), edges = new Array();
  if (height > 0 && radius > 0 && angle > 0) {
    /* An arc strays from the circle by 0.002 at most, and a pie has 63 to 209 sides. */
    var step = Math.max(0.03, Math.min(0.1, Math.sqrt(0.016 / radius)));
    var sides = Math.max(2, Math.ceil(angle / step));
    newPoints.length = 6 * (sides + 1);
    putArcs(newPoints, 0, sides, angle, off, off, height - off);
    putArcs(newPoints, 2, sides, angle, radius - off, off, height - off);
    putArcs(newPoints, 4, sides, angle, radius, 0, height);
    if (whole) drawWhole(faces, edges, sides);
    else drawSlice(faces, edges, sides);
    if (!whole) {
      newPoints.length += 2;
      newPoints[newPoints.length - 2] = new SFVec3f(0, 0, 0);
      newPoints[newPoints.length - 1] = new SFVec3f(0, height, 0);
    }
  }
  points = newPoints;
  faceIndex = integers(faces);
  edgeIndex = integers(edges);
}

/* Six points for each angle: inner, outer and edge radius, each low and high. */
function putArcs(field, first, sides, angle, radius, low, high) {
  for (var k = 0; k <= sides; ++k) {
    var x = radius * Math.cos(angle * k / sides), z = radius * Math.sin(angle * k / sides);
    field[6 * k + first] = new SFVec3f(x, low, z);
    field[6 * k + first + 1] = new SFVec3f(x, high, z);
  }
}

function drawSlice(faces, edges, sides) {
  var k, end = 6 * sides, tip = end + 6;
  for (k = 0; k < end; k += 6) {
    faces.push(k, k + 6, k + 7, k + 1, -1, k + 8, k + 2, k + 3, k + 9, -1);
    faces.push(k + 1, k + 7, k + 9, k + 3, -1, k + 2, k + 8, k + 6, k, -1);
  }
  faces.push(0, 1, 3, 2, -1, end, end + 2, end + 3, end + 1, -1);
  for (var high = 0; high < 2; ++high) {
    edges.push(tip + high);
    for (k = 4; k <= end + 4; k += 6) edges.push(k + high);
    edges.push(tip + high, -1);
  }
  edges.push(tip, tip + 1, -1, 4, 5, -1, end + 4, end + 5, -1);
}

function drawWhole(faces, edges, sides) {
  var k, end = 6 * sides;
  for (k = 0; k < end; k += 6) {
    var next = (k + 6) % end;
    faces.push(next + 2, k + 2, k + 3, next + 3, -1);
  }
  for (k = 0; k < end; k += 6) faces.push(k + 2);
  faces.push(-1);
  for (k = end - 6; k >= 0; k -= 6) faces.push(k + 3);
  faces.push(-1);
  for (var high = 0; high < 2; ++high) {
    for (k = 4; k < end; k += 6) edges.push(k + high);
    edges.push(4 + high, -1);
  }
}

// include ../parts/integers.js
