// The values of a series, along x and y; of a long row those that can be told apart.

/* Longer rows have levels of detail: a stretch that is seen narrower than so much of its distance (about two
   pixels) is drawn by its lowest and its highest value. */
var MANY = 1024, NARROW = 0.002;

/* Where the row is seen from, in its own frame; nobody knows at first. */
var eye = null;

/* A value that is missing or no number is 0. A single one becomes two, the given share of the spacing to
   either side of it. */
function readValues(x, y, spacing, share) {
  var count = Math.max(0, Math.min(countStore.whichChoice, 32767));
  var heights = heightStore.keyValue, all = new Array(), i, n = 0;
  for (i = 0; i < count; ++i) {
    all[i] = i < heights.length ? heights[i] : 0;
    if (all[i] - all[i] != 0) all[i] = 0;
  }
  isLong = count > MANY;
  if (count == 1) {
    x.push(-share * spacing, share * spacing);
    y.push(all[0], all[0]);
  }
  for (i = 0; count > 1 && i < count;) {
    var size = stretch(i, count, spacing), last = Math.min(i + size, count) - 1, low = i, high = i;
    for (var k = i; k <= last; ++k) {
      if (all[k] < all[low]) low = k;
      if (all[k] > all[high]) high = k;
    }
    if (i == 0 || size == 1) add(i, all[i]);
    if (size > 1) {
      /* Evenly spaced, so that what rises steadily stays straight. */
      add(i + 0.25 * (last - i), all[Math.min(low, high)]);
      if (low != high) add(i + 0.75 * (last - i), all[Math.max(low, high)]);
      if (last == count - 1) add(last, all[last]);
    }
    i = last + 1;
  }
  function add(at, height) {
    if (n > 0 && at * spacing <= x[n - 1]) return;
    x[n] = at * spacing;
    y[n++] = height;
  }
}

/* How many values from i on are drawn by two: a power of two, so that few change when the eye moves. */
function stretch(i, count, spacing) {
  if (count <= MANY) return 1;
  var width = (count - 1) * spacing * NARROW;
  if (eye != null) {
    var away = i * spacing - eye.x;
    width = NARROW * Math.sqrt(away * away + eye.y * eye.y + eye.z * eye.z);
  }
  var size = 1;
  while (2 * size * spacing <= width && i % (2 * size) == 0) size *= 2;
  return size;
}

/* The row is drawn anew when the viewer has moved by a quarter of the way to it. */
function set_viewer(position, time) {
  var right = (Math.min(countStore.whichChoice, 32767) - 1) * spacingOf();
  var aside = Math.max(0, -position.x, position.x - right);
  var near = Math.sqrt(aside * aside + position.y * position.y + position.z * position.z);
  if (eye != null && position.subtract(eye).length() <= 0.25 * near) return;
  eye = new SFVec3f(position.x, position.y, position.z);
  draw();
}
