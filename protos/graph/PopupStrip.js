// Draws the strip of qm4_PopupStrip, and shows the panel at the value that the pointer is on.

/* Up to so many values the strip follows each, beyond it has so many steps. */
var FEW = 48, STEPS = 32;
var overStrip = false, overPanel = false, laidOut = -1;

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_size(value, time) {
  draw();
  layOut();
}

function set_heights(value, time) {
  draw();
  layOut();
}

function set_textHeight(value, time) { layOut(); }

function set_alignment(value, time) { layOut(); }

function set_popupTexts(value, time) { layOut(); }

function set_overStrip(over, time) { overStrip = over; }

function set_stripHit(point, time) {
  pointed = countStore.whichChoice > FEW ? valueBehind(point) : valueAt(point.x);
}

function set_overPanel(over, time) { overPanel = over; }

function set_panelHit(point, time) {
  var value = valueBehind(point);
  overPanel = value >= 0;
  if (overPanel) pointed = value;
}

/* Not before: the pointer leaves the strip and comes upon the panel at one and the same time. */
function eventsProcessed() {
  if (!overStrip && !overPanel) pointed = -1;
  if (pointed == laidOut) return;
  laidOut = pointed;
  layOut();
}

function layOut() {
  if (text() == '') {
    hidePanel();
    return;
  }
  var place = new SFVec3f(pointed * store.offset, height(pointed), store.maxAngle / 2.1);
  var shift = new SFVec3f(panelX(), panelY(), store.maxAngle + halfWidth() * sizeStore.offset);
  showPanel(place, shift, sizeStore.offset);
}

/* Where the middle of the panel is, seen from the value. */
function panelX() {
  var distance = reach() + halfWidth() * sizeStore.offset, alignment = textStore.description;
  return alignment == 'LEFT' ? -distance : alignment == 'RIGHT' ? distance : 0;
}

function panelY() {
  var distance = store.minAngle + (halfHeight() + 0.3) * sizeStore.offset;
  if (textStore.description == 'BOTTOM') return -distance;
  return panelX() == 0 ? distance : 0;
}

/* Seen from anywhere, what belongs to a value is not wider to either side than this. */
function reach() {
  var x = 0.5 * store.offset, z = 0.5 * store.maxAngle;
  return Math.sqrt(x * x + z * z);
}

function valueAt(x) {
  return Math.max(0, Math.min(countStore.whichChoice - 1, Math.floor(x / store.offset + 0.5)));
}

/* The first value that the line of sight comes upon from a point on, or -1. What belongs to a value is a
   box; those between the strip's front and back are tried as the line passes them. */
function valueBehind(point) {
  var eye = viewer.position_changed, middle = store.maxAngle / 2.1;
  var way = point.subtract(eye), inside = new Array(0, 1e6);
  cut(inside, point.z - middle, way.z, -0.501 * store.maxAngle, 0.501 * store.maxAngle);
  if (inside[0] > inside[1]) return -1;
  var i = valueAt(point.x + inside[0] * way.x), last = valueAt(point.x + inside[1] * way.x);
  for (var step = i <= last ? 1 : -1; ; i += step) {
    var stretch = inside.slice(0), own = height(i);
    cut(stretch, point.x - i * store.offset, way.x, -0.501 * store.offset, 0.501 * store.offset);
    cut(stretch, point.y, way.y, lower(own, slope(i - 1, own), slope(i, own)),
      upper(own, slope(i - 1, own), slope(i, own)));
    if (stretch[0] <= stretch[1]) return i;
    if (i == last) return -1;
  }
}

/* Leaves of a stretch of t what has at + t * rate between two borders. */
function cut(stretch, at, rate, from, to) {
  if (Math.abs(rate) < 0.0000001) {
    if (at < from || at > to) stretch[1] = stretch[0] - 1;
    return;
  }
  var a = (from - at) / rate, b = (to - at) / rate;
  stretch[0] = Math.max(stretch[0], Math.min(a, b));
  stretch[1] = Math.min(stretch[1], Math.max(a, b));
}

function draw() {
  var count = countStore.whichChoice, points = new Array(), index = new Array();
  if (!(store.offset > 0 && store.maxAngle > 0 && store.minAngle > 0)) count = 0;
  if (count > FEW) addSteps(points, index, count);
  else addValues(points, index, count);
  strip.coord.point = vectors(points);
  strip.set_coordIndex = integers(index);
}

/* A value has three stations along x: the borders with its neighbours and, between them, its own place.
   There the strip is a little deeper, so that where the strips of several series in one row overlap, the
   series with the nearer value answers. */
function addValues(points, index, count) {
  for (var i = 0; i < count; ++i) {
    var own = height(i), left = slope(i - 1, own), right = slope(i, own);
    addStation(points, border(i - 1), upper(own, left, left), lower(own, left, left), 0.98);
    addStation(points, i * store.offset, upper(own, own, own), lower(own, own, own), 1);
    addStation(points, border(i), upper(own, right, right), lower(own, right, right), 0.98);
    addSleeve(points, index, points.length - 12, own < 0);
    addSleeve(points, index, points.length - 8, own < 0);
    join(points, index, points.length - 12, i == count - 1);
  }
}

/* A step has two stations, and encloses as many values as it must. */
function addSteps(points, index, count) {
  var size = Math.ceil(count / STEPS);
  for (var first = 0; first < count; first += size) {
    var last = Math.min(first + size, count) - 1, top = -1e30, bottom = 1e30, own = height(first);
    for (var i = first; i <= last; ++i) {
      var left = i == first ? slope(i - 1, own) : right, right = slope(i, own);
      top = Math.max(top, upper(own, left, right));
      bottom = Math.min(bottom, lower(own, left, right));
      if (i < last) own = height(i + 1);
    }
    addStation(points, (first - 0.5) * store.offset, top, bottom, 1);
    addStation(points, (last + 0.5) * store.offset, top, bottom, 1);
    addSleeve(points, index, points.length - 8, bottom < 0);
    join(points, index, points.length - 8, last == count - 1);
  }
}

function height(i) {
  var given = heightStore.keyValue;
  return i < given.length && given[i] - given[i] == 0 ? given[i] : 0;
}

/* Between values i and i + 1, just inside the half of the larger, whose step stands there. */
function border(i) {
  var inwards = 0;
  if (i >= 0 && i < countStore.whichChoice - 1) {
    inwards = Math.abs(height(i)) > Math.abs(height(i + 1)) ? -0.01 : 0.01;
  }
  return (i + 0.5 + inwards) * store.offset;
}

/* Half-way between values i and i + 1; at the ends the height of the value itself. */
function slope(i, own) {
  return i < 0 || i == countStore.whichChoice - 1 ? own : (height(i) + height(i + 1)) / 2;
}

/* How far a value reaches that lies between two slopes. */
function upper(own, left, right) {
  var high = Math.max(own, left, right);
  return Math.max(high + store.minAngle, rest() * high);
}

function lower(own, left, right) {
  var low = Math.min(own, left, right);
  return Math.min(low - store.minAngle, rest() * low);
}

function rest() { return 1 - Math.max(0, Math.min(1, store.diskAngle)); }

/* Four points: upper front, upper back, lower front, lower back. */
function addStation(points, x, top, bottom, deepness) {
  var middle = store.maxAngle / 2.1, half = deepness * store.maxAngle / 2;
  points.push(
    new SFVec3f(x, top, middle + half), new SFVec3f(x, top, middle - half),
    new SFVec3f(x, bottom, middle + half), new SFVec3f(x, bottom, middle - half));
}

/* The faces from a station to the next: front, back, upper, and, of what is below 0, lower. */
function addSleeve(points, index, a, isLow) {
  var b = a + 4;
  index.push(a + 2, b + 2, b, a, -1, b + 3, a + 3, a + 1, b + 1, -1, a, b, b + 1, a + 1, -1);
  if (isLow) index.push(a + 3, b + 3, b + 2, a + 2, -1);
}

/* Closes the strip at its ends, and between the station before b and b, at the same x, where they differ:
   browsers spend long on faces without an area. */
function join(points, index, b, isLast) {
  var a = b - 4, end = points.length - 4;
  if (b == 0) index.push(3, 2, 0, 1, -1);
  else if (points[a].y != points[b].y) index.push(b, b + 1, a + 1, a, -1);
  if (b > 0 && points[a + 2].y != points[b + 2].y) index.push(a + 2, a + 3, b + 3, b + 2, -1);
  if (isLast) index.push(end + 2, end + 3, end + 1, end, -1);
}

// include ../parts/panel.js

// include ../parts/vectors.js

// include ../parts/integers.js
