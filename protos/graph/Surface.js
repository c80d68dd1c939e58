// Makes the grid of qm4_Surface.

var grid = null, made = '';

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function set_solid(value, time) { draw(); }

function set_dimension(value, time) { draw(); }

function set_height(value, time) {
  if (grid != null) grid.set_height = exactly(value, xStore.whichChoice * zStore.whichChoice);
}

function draw() {
  var columns = xStore.whichChoice, rows = zStore.whichChoice;
  var dx = xStepStore.offset, dz = zStepStore.offset;
  var fields = ' xDimension ' + columns + ' xSpacing ' + dx
    + ' zDimension ' + rows + ' zSpacing ' + dz
    + ' creaseAngle ' + Math.max(0, creaseStore.offset)
    + ' solid ' + (creaseStore.autoOffset ? 'TRUE' : 'FALSE');
  if (!(columns > 1 && rows > 1 && dx > 0 && dz > 0)) fields = '';
  if (fields == made) return;
  made = fields;
  grid = null;
  if (fields != '') {
    var heights = exactly(heightStore.keyValue, columns * rows);
    grid = Browser.createVrmlFromString('ElevationGrid {' + fields + ' height ' + heights + ' }')[0];
  }
  sheet = grid;
}

function exactly(heights, count) {
  if (heights.length == count) return heights;
  var field = new MFFloat();
  field.length = count;
  for (var i = 0; i < count; ++i) field[i] = i < heights.length ? heights[i] : 0;
  return field;
}
