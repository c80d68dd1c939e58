// The course of a band through its values.

/* The way from value i to the next: its direction, and its length. */
function course(x, y, i) {
  var way = new Object();
  way.x = x[i + 1] - x[i];
  way.y = y[i + 1] - y[i];
  way.length = Math.sqrt(way.x * way.x + way.y * way.y);
  way.x /= way.length;
  way.y /= way.length;
  return way;
}
