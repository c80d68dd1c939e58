// Draws the strip of qm4_PopupStrip that answers the pointer.

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_size(value, time) { draw(); }

function set_heights(value, time) { draw(); }

/* A value has three stations along x: the borders with its neighbours and, between them, its own
   place. There the strip is a little deeper, so that where the strips of several series in one
   row overlap, the series with the nearer value answers. A station has four vertices: upper
   front, upper back, lower front, lower back. */
function draw() {
  var count = countStore.whichChoice, spacing = spacingStore.offset, depth = depthStore.offset;
  var newPoints = new MFVec3f(), newIndex = new Array();
  if (!(spacing > 0 && depth > 0 && radiusStore.offset > 0)) count = 0;
  var heights = read(count);
  newPoints.length = 12 * heights.length;
  for (var i = 0; i < count; ++i) {
    var own = heights[i], v = 12 * i, left = slope(heights, i - 1, own);
    var right = slope(heights, i, own);
    addStation(newPoints, v, border(heights, i - 1, spacing), own, left, 0.98);
    addStation(newPoints, v + 4, i * spacing, own, own, 1);
    addStation(newPoints, v + 8, border(heights, i, spacing), own, right, 0.98);
    addSleeve(newIndex, v, v + 4, own);
    addSleeve(newIndex, v + 4, v + 8, own);
    if (i == 0) newIndex.push(3, 2, 0, 1, -1);
    else addSteps(newIndex, v - 4, v, heights[i - 1], own, left);
    if (i == count - 1) newIndex.push(v + 10, v + 11, v + 9, v + 8, -1);
  }
  points = newPoints;
  index = integers(newIndex);
}

function read(count) {
  var given = heightStore.keyValue, heights = new Array();
  for (var i = 0; i < count; ++i) heights[i] = i < given.length ? given[i] : 0;
  return heights;
}

/* Between values i and i + 1, just inside the half of the larger, whose step stands there. */
function border(heights, i, spacing) {
  var inwards = 0;
  if (i >= 0 && i < heights.length - 1) {
    inwards = Math.abs(heights[i]) > Math.abs(heights[i + 1]) ? -0.01 : 0.01;
  }
  return (i + 0.5 + inwards) * spacing;
}

/* Half-way between values i and i + 1; at the ends the height of the value itself. */
function slope(heights, i, own) {
  return i < 0 || i == heights.length - 1 ? own : (heights[i] + heights[i + 1]) / 2;
}

function upper(own, slope) {
  var high = Math.max(own, slope);
  return Math.max(high + radiusStore.offset, rest() * high);
}

function lower(own, slope) {
  var low = Math.min(own, slope);
  return Math.min(low - radiusStore.offset, rest() * low);
}

function rest() { return 1 - Math.max(0, Math.min(1, factorStore.offset)); }

function addStation(field, v, x, own, slope, deepness) {
  var depth = depthStore.offset, middle = depth / 2.1, half = deepness * depth / 2;
  var top = upper(own, slope), bottom = lower(own, slope);
  field[v] = new SFVec3f(x, top, middle + half);
  field[v + 1] = new SFVec3f(x, top, middle - half);
  field[v + 2] = new SFVec3f(x, bottom, middle + half);
  field[v + 3] = new SFVec3f(x, bottom, middle - half);
}

/* The faces from one station to the next: front, back, upper, and, of a value below 0, lower. */
function addSleeve(list, a, b, own) {
  list.push(a + 2, b + 2, b, a, -1, b + 3, a + 3, a + 1, b + 1, -1, a, b, b + 1, a + 1, -1);
  if (own < 0) list.push(a + 3, b + 3, b + 2, a + 2, -1);
}

/* The faces between the last station of a value and the first of the next, at the same x, where
   they differ: browsers spend long on faces without an area. */
function addSteps(list, a, b, before, own, slope) {
  if (upper(before, slope) != upper(own, slope)) list.push(b, b + 1, a + 1, a, -1);
  if (lower(before, slope) != lower(own, slope)) list.push(a + 2, a + 3, b + 3, b + 2, -1);
}

// include ../parts/integers.js
