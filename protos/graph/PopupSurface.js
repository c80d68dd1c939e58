// Draws the sheets of qm4_PopupSurface that answer the pointer.

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function set_dimension(value, time) { draw(); }

function set_height(value, time) { draw(); }

function draw() {
  var columns = xStore.whichChoice, rows = zStore.whichChoice;
  if (!(columns > 1 && rows > 1 && xStepStore.offset > 0 && zStepStore.offset > 0)) {
    points = new MFVec3f();
    index = new MFInt32();
    return;
  }
  var x = stations(columns), z = stations(rows);
  points = sheetPoints(x, z);
  index = faces(x.length, z.length);
}

/* Every lattice point along an axis, or every second, third, ...; the last one always. */
function stations(count) {
  var stride = Math.ceil((count - 1) / 32), list = new Array();
  for (var i = 0; i < count - 1; i += stride) list[list.length] = i;
  list[list.length] = count - 1;
  return list;
}

/* The upper sheet, then the lower one: above and below all heights up to the next stations. */
function sheetPoints(x, z) {
  var field = new MFVec3f(), Point = SFVec3f, count = x.length * z.length, n = 0;
  var depth = Math.max(0.04, depthStore.offset), heights = plain();
  field.length = 2 * count;
  for (var k = 0; k < z.length; ++k) {
    for (var i = 0; i < x.length; ++i) {
      var range = rangeAbout(heights, x, i, z, k);
      var px = x[i] * xStepStore.offset, pz = z[k] * zStepStore.offset;
      field[n] = new Point(px, range[1] + depth, pz);
      field[count + n] = new Point(px, range[0] - depth, pz);
      ++n;
    }
  }
  return field;
}

function plain() {
  var given = heightStore.keyValue, count = xStore.whichChoice * zStore.whichChoice;
  var list = new Array(), scale = scaleStore.offset, most = Math.min(count, given.length);
  for (var n = 0; n < count; ++n) list[n] = n < most ? scale * given[n] : 0;
  return list;
}

/* The lowest and the highest point nearer to station (i, k) than to the ones after the next. */
function rangeAbout(heights, x, i, z, k) {
  var columns = xStore.whichChoice, low = heights[z[k] * columns + x[i]], high = low;
  for (var v = after(z, k - 1); v < before(z, k + 1); ++v) {
    for (var u = after(x, i - 1); u < before(x, i + 1); ++u) {
      var height = heights[v * columns + u];
      if (height < low) low = height;
      if (height > high) high = height;
    }
  }
  return new Array(low, high);
}

function after(list, i) { return i < 0 ? 0 : list[i] + 1; }

function before(list, i) { return i < list.length ? list[i] : list[i - 1] + 1; }

/* Of both sheets, seen from outside, and of the strip between their edges. */
function faces(columns, rows) {
  var field = new MFInt32(), below = columns * rows, n = 0;
  var around = 2 * (columns + rows - 2);
  field.length = 16 * (columns - 1) * (rows - 1) + 8 * around;
  function add(a, b, c, d) {
    field[n++] = a;
    field[n++] = b;
    field[n++] = c;
    field[n++] = -1;
    field[n++] = a;
    field[n++] = c;
    field[n++] = d;
    field[n++] = -1;
  }
  for (var k = 0; k < rows - 1; ++k) {
    for (var i = 0; i < columns - 1; ++i) {
      var a = k * columns + i, b = a + columns;
      add(a, b, b + 1, a + 1);
      add(below + a, below + a + 1, below + b + 1, below + b);
    }
  }
  for (var m = 0; m < around; ++m) {
    var here = onEdge(m, columns, rows), next = onEdge((m + 1) % around, columns, rows);
    add(below + here, here, next, below + next);
  }
  return field;
}

/* Along the first row, the last column, and back. */
function onEdge(m, columns, rows) {
  var right = columns - 1, front = rows - 1, around = 2 * (right + front);
  var i = Math.max(0, Math.min(m, right, around - front - m));
  return Math.max(0, Math.min(m - right, front, around - m)) * columns + i;
}
