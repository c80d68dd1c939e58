// The values of a series, along x and y.

/* A value that is missing or no number is 0. A single one becomes two, the given share of the spacing to
   either side of it. */
function readValues(x, y, spacing, share) {
  var count = Math.min(countStore.whichChoice, 32767);
  var heights = heightStore.keyValue;
  for (var i = 0; i < count; ++i) {
    x[i] = i * spacing;
    y[i] = i < heights.length ? heights[i] : 0;
    if (y[i] - y[i] != 0) y[i] = 0;
  }
  if (count == 1) {
    x[0] = -share * spacing;
    x[1] = share * spacing;
    y[1] = y[0];
  }
}
