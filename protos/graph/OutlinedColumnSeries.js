// Draws the columns of qm4_OutlinedColumnSeries, and their edges once the viewer is near.

var edges = null;

function initialize() {
  set_appearance(store.choice, 0);
  draw();
}

function set_appearance(value, time) { columns.appearance = value.length > 0 ? value[0] : null; }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

function set_near(isNear, time) {
  if (isNear && edges == null) {
    edges = Browser.createVrmlFromString(
      'Shape { appearance Appearance { } geometry IndexedLineSet { } }');
    edges[0].appearance.material = edgeMaterial;
    edges[0].geometry.coord = columns.geometry.coord;
    drawEdges();
  }
  if (isNear) row.addChildren = edges;
  else if (edges != null) row.removeChildren = edges;
}

function draw() {
  var spacing = sizeStore.offset, width = sizeStore.minAngle, depth = sizeStore.maxAngle;
  var visible = spacing > 0 && width > 0 && depth > 0;
  var count = visible ? Math.max(0, Math.min(store.whichChoice, 32767)) : 0;
  var known = columns.geometry.coord.point.length == 16 * count;
  drawPoints(count, spacing, width, depth);
  if (known) return;
  drawFaces();
  if (edges != null) drawEdges();
}

/* Sixteen points a column: four corners at the foot and four at the tip, left front to left rear,
   first of the faces and then of the edges, which stand off the faces so that they stay whole. The
   edges of the foot are lifted off a floor at y = 0. A column that hangs is one that stands, turned
   half round about z, which keeps its faces looking outwards. */
function drawPoints(count, spacing, width, depth) {
  var heights = heightStore.keyValue, given = heights.length;
  var field = new MFVec3f(), Point = SFVec3f;
  var shorter = Math.min(width, depth), off = 0.01 * shorter, lift = 0.02 * shorter;
  var rear = off, front = depth - off, n = 0, highest = 0;
  field.length = 16 * count;
  for (var i = 0; i < count; ++i) {
    var x = i * spacing, y = i < given ? heights[i] : 0;
    if (y - y != 0) y = 0;
    var side = y < 0 ? -1 : 1;
    if (side * y < 2 * lift) y = side * 2 * lift;
    if (side * y > highest) highest = side * y;

    var left = x - side * (0.5 * width - off), right = x + side * (0.5 * width - off);
    var foot = y < 0 ? lift : 0, tip = y - side * off;
    field[n++] = new Point(left, foot, front);
    field[n++] = new Point(right, foot, front);
    field[n++] = new Point(right, foot, rear);
    field[n++] = new Point(left, foot, rear);
    field[n++] = new Point(left, tip, front);
    field[n++] = new Point(right, tip, front);
    field[n++] = new Point(right, tip, rear);
    field[n++] = new Point(left, tip, rear);

    left = x - side * 0.5 * width;
    right = x + side * 0.5 * width;
    field[n++] = new Point(left, lift, depth);
    field[n++] = new Point(right, lift, depth);
    field[n++] = new Point(right, lift, 0);
    field[n++] = new Point(left, lift, 0);
    field[n++] = new Point(left, y, depth);
    field[n++] = new Point(right, y, depth);
    field[n++] = new Point(right, y, 0);
    field[n++] = new Point(left, y, 0);
  }
  columns.geometry.coord.point = field;
  drawNormals(count);

  var length = spacing * Math.max(0, count - 1), reach = 160 * shorter;
  nearness.center = new SFVec3f(0.5 * length, 0, 0.5 * depth);
  nearness.size = new SFVec3f(length + reach, 2 * highest + reach, depth + reach);
}

/* A column that hangs has its left and right, and its tip and foot, changed over. Numbers of faces are those
   of drawFaces. */
function drawNormals(count) {
  var heights = heightStore.keyValue, field = new MFInt32(), faces = count < 100 ? 6 : 5, n = 0;
  var standing = new Array(0, 1, 2, 3, 4, 5), hanging = new Array(0, 3, 2, 1, 5, 4);
  field.length = faces * count;
  for (var i = 0; i < count; ++i) {
    var list = i < heights.length && heights[i] < 0 && heights[i] - heights[i] == 0 ? hanging : standing;
    for (var k = 0; k < faces; ++k) field[n++] = list[k];
  }
  columns.geometry.set_normalIndex = field;
}

/* The face at the foot lies between the lifted edges, clear of the floor as they are. */
function drawFaces() {
  columns.geometry.set_coordIndex = repeated(
    new Array(0, 1, 5, 4, -1, 1, 2, 6, 5, -1, 2, 3, 7, 6, -1, 3, 0, 4, 7, -1, 4, 5, 6, 7, -1),
    new Array(11, 10, 9, 8, -1));
}

function drawEdges() {
  edges[0].geometry.set_coordIndex = repeated(
    new Array(8, 12, 13, 14, 15, 12, -1, 9, 13, -1, 10, 14, -1, 11, 15, -1),
    new Array(8, 9, 10, 11, 8, -1));
}

/* An index into the points, the same for all columns; the part at the foot is left out of a long row. */
function repeated(pattern, foot) {
  var count = columns.geometry.coord.point.length / 16;
  if (count < 100) pattern = pattern.concat(foot);
  var field = new MFInt32(), size = pattern.length, n = 0;
  field.length = size * count;
  for (var i = 0; i < count; ++i) {
    for (var k = 0; k < size; ++k) field[n++] = pattern[k] < 0 ? -1 : 16 * i + pattern[k];
  }
  return field;
}
