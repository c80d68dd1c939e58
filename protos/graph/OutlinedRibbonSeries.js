// Draws the band and the edges of qm4_OutlinedRibbonSeries.

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

function spacingOf() { return sizeStore.offset; }

function draw() {
  var spacing = sizeStore.offset, thickness = sizeStore.minAngle, depth = sizeStore.maxAngle;
  var x = new Array(), y = new Array(), faces = new Array(), edges = new Array();
  /* The edges stand off the faces, so that they stay whole. */
  var off = 0.025 * Math.min(thickness, depth);
  if (spacing > 0 && thickness > 0 && depth > 0) {
    readValues(x, y, spacing, 0.25);
    faces = sections(x, y, 0.5 * thickness - off, Math.min(off, 0.1 * spacing));
    edges = sections(x, y, 0.5 * thickness, 0);
  }
  drawPoints(faces, edges, off, depth);
  drawFaces(faces);
  drawEdges(edges, 4 * faces.length);
}

/* The band's sections, each with its upper and its lower end; inset shortens the band. */
function sections(x, y, half, inset) {
  var list = new Array(), last = x.length - 1;
  for (var i = 0; i <= last; ++i) {
    var to = i < last ? course(x, y, i) : course(x, y, i - 1);
    if (i > 0 && i < last) {
      addBend(list, x[i], y[i], half, course(x, y, i - 1), to);
    } else {
      var step = i == 0 ? inset : -inset;
      var midX = x[i] + step * to.x, midY = y[i] + step * to.y;
      addSection(list, midX - half * to.y, midY + half * to.x, midX + half * to.y, midY - half * to.x);
    }
  }
  return list;
}

function addSection(list, upX, upY, downX, downY) {
  var section = new Object();
  section.upX = upX;
  section.upY = upY;
  section.downX = downX;
  section.downY = downY;
  section.hinge = 0;
  list[list.length] = section;
}

/* The inside of the bend is above where the band turns up (side 1), below where it turns down (-1).
   The outside of a bend that is cut off takes two sections, which share the end inside: the second
   one is hinged there, at its upper (1) or its lower (-1) end. */
function addBend(list, x, y, half, from, to) {
  var dot = from.x * to.x + from.y * to.y;
  var side = from.x * to.y - from.y * to.x > 0 ? 1 : -1;
  var tangent = Math.sqrt(Math.max(1 - dot, 0) / Math.max(1 + dot, 0.000001));
  var mitreX = -side * half * (from.y + side * from.x * tangent);
  var mitreY = side * half * (from.x - side * from.y * tangent);
  var room = 0.5 * Math.min(from.length, to.length);
  var part = half * tangent > room ? room / (half * tangent) : 1;
  var inX = x + part * mitreX, inY = y + part * mitreY;
  if (tangent <= 1) {
    addEnds(list, side, inX, inY, x - mitreX, y - mitreY);
  } else {
    addEnds(list, side, inX, inY,
      x + half * (side * from.y + from.x), y + half * (from.y - side * from.x));
    addEnds(list, side, inX, inY,
      x + half * (side * to.y - to.x), y - half * (to.y + side * to.x));
    list[list.length - 1].hinge = side;
  }
}

function addEnds(list, side, inX, inY, outX, outY) {
  if (side > 0) addSection(list, inX, inY, outX, outY);
  else addSection(list, outX, outY, inX, inY);
}

/* Four points a section: upper front, upper rear, lower front, lower rear. */
function drawPoints(faces, edges, off, depth) {
  var field = new MFVec3f();
  field.length = 4 * (faces.length + edges.length);
  putPoints(field, 0, faces, depth - off, off);
  putPoints(field, 4 * faces.length, edges, depth, 0);
  points = field;
}

function putPoints(field, n, list, front, rear) {
  for (var i = 0; i < list.length; ++i) {
    var section = list[i];
    field[n++] = new SFVec3f(section.upX, section.upY, front);
    field[n++] = new SFVec3f(section.upX, section.upY, rear);
    field[n++] = new SFVec3f(section.downX, section.downY, front);
    field[n++] = new SFVec3f(section.downX, section.downY, rear);
  }
}

function drawFaces(list) {
  var index = new Array(), end = 4 * (list.length - 1);
  if (list.length > 0) index.push(0, 1, 3, 2, -1, end + 2, end + 3, end + 1, end, -1);
  for (var i = 1; i < list.length; ++i) {
    var a = 4 * (i - 1), b = 4 * i, hinge = list[i].hinge;
    if (hinge > 0) index.push(a + 2, b + 2, b, -1, b + 3, a + 3, b + 1, -1);
    else if (hinge < 0) index.push(b + 2, b, a, -1, b + 3, a + 1, b + 1, -1);
    else index.push(a + 2, b + 2, b, a, -1, b + 3, a + 3, a + 1, b + 1, -1);
    if (hinge <= 0) index.push(a, b, b + 1, a + 1, -1);
    if (hinge >= 0) index.push(a + 3, b + 3, b + 2, a + 2, -1);
  }
  faceIndex = integers(index);
}

/* Four lines along the band, one across each end of a section, and the uprights of both caps. */
function drawEdges(list, first) {
  var index = new Array(), end = first + 4 * (list.length - 1), i;
  if (list.length > 0) index.push(first, first + 2, -1, first + 1, first + 3, -1);
  if (list.length > 0) index.push(end, end + 2, -1, end + 1, end + 3, -1);
  for (var corner = 0; corner < 4; ++corner) {
    for (i = 0; i < list.length; ++i) index.push(first + 4 * i + corner);
    index.push(-1);
  }
  for (i = 0; !isLong && i < list.length; ++i) {
    var a = first + 4 * i;
    if (list[i].hinge <= 0) index.push(a, a + 1, -1);
    if (list[i].hinge >= 0) index.push(a + 2, a + 3, -1);
  }
  edgeIndex = integers(index);
}

// include ../parts/values.js

// include ../parts/course.js

// include ../parts/integers.js
