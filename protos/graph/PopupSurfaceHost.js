// Shows the panel of qm4_PopupSurface at the lattice point that the pointer is nearest to.

var over = false, overPanel = false, hit = null;

function set_over(value, time) { over = value; }

function set_hit(point, time) {
  var large = Math.max(xStore.whichChoice, zStore.whichChoice) > 33;
  var place = large ? seenThrough(point) : point;
  if (place == null) pointed = -1;
  else pointTo(place);
}

function pointTo(point) {
  var i = nearest(point.x / xStepStore.offset, xStore.whichChoice);
  var k = nearest(point.z / zStepStore.offset, zStore.whichChoice);
  hit = new SFVec3f(point.x, point.y, point.z);
  pointed = k * xStore.whichChoice + i;
  layOut();
}

function set_overPanel(value, time) { overPanel = value; }

function set_panelHit(point, time) {
  var behind = seenThrough(point);
  overPanel = behind != null;
  if (overPanel) pointTo(behind);
}

function set_size(value, time) { layOut(); }

function set_position(value, time) { layOut(); }

function set_popupText(value, time) { layOut(); }

function eventsProcessed() {
  if (!over && !overPanel) pointed = -1;
  if (text() == '') hidePanel();
}

function nearest(at, count) { return Math.max(0, Math.min(count - 1, Math.floor(at + 0.5))); }

/* Where the line of sight through a point comes upon the sheets behind it, or null. It is followed in
   steps of a quarter of a cell; u and v count lattice points along x and z. */
function seenThrough(point) {
  var right = xStore.whichChoice - 1, front = zStore.whichChoice - 1;
  var eye = viewer.position_changed;
  var u = point.x / xStepStore.offset, du = u - eye.x / xStepStore.offset;
  var v = point.z / zStepStore.offset, dv = v - eye.z / zStepStore.offset;
  var y = point.y, dy = y - eye.y, cells = Math.max(Math.abs(du), Math.abs(dv));
  var stretch = overlap(overlap(new Array(0, 1e6), u, du, right), v, dv, front);
  if (!(stretch[0] <= stretch[1])) return null;
  if (cells < 0.000001) return onLattice(u, v);
  var step = 0.25 / cells, depth = Math.max(0.04, depthStore.offset), before = 0, gap = 0;
  for (var t = stretch[0]; t < stretch[1] + step; t += step) {
    var height = onLattice(u + t * du, v + t * dv).y;
    gap = y + t * dy - height;
    if (gap * before < 0 || Math.abs(gap) <= depth) {
      /* The sheet lies between here and the last step. */
      var far = Math.abs(before) - depth, near = depth - (before < 0 ? -gap : gap);
      if (far > 0) t -= step * near / (far + near);
      return onLattice(u + t * du, v + t * dv);
    }
    before = gap;
  }
  return null;
}

/* The part of a stretch of t in which at + t * rate lies from 0 to most. */
function overlap(stretch, at, rate, most) {
  if (Math.abs(rate) < 0.000001) return at < 0 || at > most ? new Array(1, 0) : stretch;
  var a = -at / rate, b = (most - at) / rate;
  return new Array(Math.max(stretch[0], Math.min(a, b)), Math.min(stretch[1], Math.max(a, b)));
}

function onLattice(u, v) {
  var columns = xStore.whichChoice;
  var i = Math.max(0, Math.min(columns - 2, Math.floor(u)));
  var k = Math.max(0, Math.min(zStore.whichChoice - 2, Math.floor(v)));
  var n = k * columns + i, a = u - i, b = v - k;
  var y = (1 - b) * ((1 - a) * height(n) + a * height(n + 1))
    + b * ((1 - a) * height(n + columns) + a * height(n + columns + 1));
  return new SFVec3f(u * xStepStore.offset, y, v * zStepStore.offset);
}

function height(n) {
  var heights = heightStore.keyValue;
  return n < heights.length ? scaleStore.offset * heights[n] : 0;
}

/* The panel stands half way from the point that was hit to the viewer, and half as large, so that it looks
   as if it stood beside that point, but nothing of the surface comes before it. */
function layOut() {
  if (text() == '') return;
  var size = 0.5 * sizeStore.offset, position = textStore.description;
  var side = position == 'LEFT' ? -1 : position == 'RIGHT' ? 1 : 0;
  var rise = side != 0 ? 0 : position == 'BOTTOM' ? -1 : 1;
  showPanel(hit.add(viewer.position_changed.subtract(hit).multiply(0.5)),
    new SFVec3f(side * (halfWidth() + 1) * size, rise * (halfHeight() + 1) * size, 0), size);
}

// include ../parts/panel.js
