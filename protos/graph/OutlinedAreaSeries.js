// Draws the faces and the edges of qm4_OutlinedAreaSeries.

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

function spacingOf() { return spacingStore.offset; }

function draw() {
  var depth = depthStore.offset, spacing = spacingStore.offset;
  var x = new Array(), y = new Array();
  if (depth > 0 && spacing > 0) readValues(x, y, spacing, 0.05);
  drawEdges(x, y, depth);
  addCrossings(x, y);
  drawFaces(x, y, depth);
}

/* Puts a point of height 0 wherever the line changes sides, so that no face crosses y = 0. */
function addCrossings(x, y) {
  var fromX = x.slice(0), fromY = y.slice(0), n = 0;
  for (var i = 0; i < fromX.length; ++i) {
    if (i > 0 && fromY[i - 1] * fromY[i] < 0) {
      x[n] = fromX[i - 1] + (fromX[i] - fromX[i - 1]) * fromY[i - 1] / (fromY[i - 1] - fromY[i]);
      y[n++] = 0;
    }
    x[n] = fromX[i];
    y[n++] = fromY[i];
  }
}

/* A point of the line has four vertices: front and back at its height, front and back at 0. */
function drawFaces(x, y, depth) {
  var points = new MFVec3f(), index = new Array();
  var last = x.length - 1, start = 0;
  points.length = 4 * x.length;
  for (var i = 0; i <= last; ++i) {
    var b = 4 * i, a = b - 4;
    points[b] = new SFVec3f(x[i], y[i], depth);
    points[b + 1] = new SFVec3f(x[i], y[i], 0);
    points[b + 2] = new SFVec3f(x[i], 0, depth);
    points[b + 3] = new SFVec3f(x[i], 0, 0);
    var side = i > 0 ? y[i - 1] + y[i] : 0;
    if (side == 0) {
      start = i;
      continue;
    }
    var lowA = y[i - 1] == 0 ? a : a + 2, lowB = y[i] == 0 ? b : b + 2;
    addFace(index, side, lowA, lowB, b, a);
    addFace(index, side, lowB + 1, lowA + 1, a + 1, b + 1);
    addFace(index, side, a, b, b + 1, a + 1);
    /* One face at y = 0 closes the whole stretch on one side of it. */
    if (i == last || y[i] == 0) {
      addFace(index, side, 4 * start + 3, b + 3, b + 2, 4 * start + 2);
      start = i;
    }
  }
  if (last > 0) {
    if (y[0] != 0) addFace(index, y[0], 3, 2, 0, 1);
    if (y[last] != 0) addFace(index, y[last], b + 2, b + 3, b + 1, b);
  }
  facePoints = points;
  faceIndex = integers(index);
}

/* Corners in the order of an area above 0; below 0 it is reversed, so that the face looks out. A
   corner that is named twice counts once: browsers spend long on triangles without an area. */
function addFace(list, side, a, b, c, d) {
  var corners = new Array(a, b, c, d);
  if (side < 0) corners.reverse();
  for (var i = 0; i < 4; ++i) {
    if (corners[i] != corners[(i + 3) % 4]) list.push(corners[i]);
  }
  list.push(-1);
}

/* The edges stand off the faces by a hundredth of the depth, which keeps them whole. */
function drawEdges(x, y, depth) {
  var points = new MFVec3f(), index = new Array();
  var last = x.length - 1, off = 0.01 * depth, i, n = 0;
  if (last > 0) {
    points.length = 2 * x.length + 4;
    for (i = 0; i <= last; ++i) {
      var outX = x[i] + (i == 0 ? -off : i == last ? off : 0);
      var outY = y[i] + (y[i] < 0 ? -off : off);
      points[n++] = new SFVec3f(outX, outY, depth + off);
      points[n++] = new SFVec3f(outX, outY, -off);
    }
    points[n++] = new SFVec3f(x[0] - off, 0, depth + off);
    points[n++] = new SFVec3f(x[0] - off, 0, -off);
    points[n++] = new SFVec3f(x[last] + off, 0, depth + off);
    points[n++] = new SFVec3f(x[last] + off, 0, -off);

    index.push(n - 4);
    for (i = 0; i <= last; ++i) index.push(2 * i);
    index.push(n - 2, n - 1);
    for (i = last; i >= 0; --i) index.push(2 * i + 1);
    index.push(n - 3, n - 4, n - 2, -1, n - 3, n - 1, -1);
    for (i = 0; !isLong && i <= last; ++i) index.push(2 * i, 2 * i + 1, -1);
  }
  edgePoints = points;
  edgeIndex = integers(index);
}

// include ../parts/values.js

// include ../parts/integers.js
