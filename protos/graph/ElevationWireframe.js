// Draws the lines of qm4_ElevationWireframe.

function initialize() {
  drawPoints();
  drawLines();
}

function set_dimension(value, time) { initialize(); }

function set_spacing(value, time) { initialize(); }

function set_height(value, time) { drawPoints(); }

function isVisible() {
  return xStore.whichChoice > 1 && zStore.whichChoice > 1
    && xStepStore.offset > 0 && zStepStore.offset > 0;
}

function drawPoints() {
  var columns = isVisible() ? xStore.whichChoice : 0, rows = zStore.whichChoice;
  var dx = xStepStore.offset, dz = zStepStore.offset;
  var heights = heightStore.keyValue, given = heights.length;
  var field = new MFVec3f(), Point = SFVec3f, n = 0;
  if (columns > 0) field.length = columns * rows;
  for (var k = 0; n < columns * rows; ++k) {
    for (var i = 0; i < columns; ++i) {
      field[n] = new Point(i * dx, n < given ? heights[n] : 0, k * dz);
      ++n;
    }
  }
  points = field;
}

// Which of so many rows or columns have a line.
function lined(count) {
  var stride = Math.ceil(count / 128), chosen = [], i;
  for (i = 0; i < count - 1; i += stride) chosen[chosen.length] = i;
  if (count > 0) chosen[chosen.length] = count - 1;
  return chosen;
}

function drawLines() {
  var columns = isVisible() ? xStore.whichChoice : 0, rows = columns > 0 ? zStore.whichChoice : 0;
  var across = lined(rows), along = lined(columns), field = new MFInt32(), n = 0, i, k;
  field.length = across.length * (columns + 1) + along.length * (rows + 1);
  for (k = 0; k < across.length; ++k) {
    for (i = 0; i < columns; ++i) field[n++] = across[k] * columns + i;
    field[n++] = -1;
  }
  for (i = 0; i < along.length; ++i) {
    for (k = 0; k < rows; ++k) field[n++] = k * columns + along[i];
    field[n++] = -1;
  }
  index = field;
}
