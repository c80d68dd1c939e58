// Makes the grid of qm4_Surface.

/* Larger lattices are drawn by so many points each way at most as long as the viewer is far, and their
   normals are given: browsers spend long on those. */
var MANY = 160;
var grid = null, made = '', isNear = false;

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function set_solid(value, time) { draw(); }

function set_dimension(value, time) { draw(); }

function set_near(value, time) {
  isNear = value;
  draw();
}

function set_height(value, time) { if (grid != null) fill(); }

function draw() {
  var columns = stations(xStore.whichChoice), rows = stations(zStore.whichChoice);
  var width = xStepStore.offset * (xStore.whichChoice - 1), depth = zStepStore.offset * (zStore.whichChoice - 1);
  var fields = ' xDimension ' + columns + ' xSpacing ' + width / (columns - 1)
    + ' zDimension ' + rows + ' zSpacing ' + depth / (rows - 1)
    + ' creaseAngle ' + Math.max(0, creaseStore.offset)
    + ' solid ' + (creaseStore.autoOffset ? 'TRUE' : 'FALSE')
    + (isLarge() ? ' normal Normal { }' : '');
  if (!(columns > 1 && rows > 1 && width > 0 && depth > 0)) fields = '';
  watch(width, depth);
  if (fields == made) return;
  made = fields;
  grid = null;
  if (fields != '') {
    grid = Browser.createVrmlFromString('ElevationGrid {' + fields + ' }')[0];
    fill();
  }
  sheet.geometry = grid;
}

/* Near is nearer than three quarters of the larger side. */
function watch(width, depth) {
  var reach = 1.5 * Math.max(width, depth);
  nearness.enabled = isLarge() && width > 0 && depth > 0;
  nearness.center = new SFVec3f(0.5 * width, 0, 0.5 * depth);
  nearness.size = new SFVec3f(width + reach, width + depth + reach, depth + reach);
}

function isLarge() { return Math.max(xStore.whichChoice, zStore.whichChoice) > MANY; }

/* How many of so many points along an axis are drawn. */
function stations(count) {
  return isNear || count <= MANY ? count : Math.ceil((count - 1) / Math.ceil((count - 1) / (MANY - 1))) + 1;
}

function fill() {
  var columns = stations(xStore.whichChoice), rows = stations(zStore.whichChoice);
  var heights = plain(), field = new MFFloat();
  if (columns < xStore.whichChoice || rows < zStore.whichChoice) heights = thinned(heights, columns, rows);
  if (isLarge()) grid.normal.vector = normals(heights, columns, rows);
  field.length = heights.length;
  for (var n = 0; n < heights.length; ++n) field[n] = heights[n];
  grid.set_height = field;
}

function plain() {
  var given = heightStore.keyValue, most = given.length;
  var count = xStore.whichChoice * zStore.whichChoice, list = new Array();
  for (var n = 0; n < count; ++n) {
    list[n] = n < most ? given[n] : 0;
    if (list[n] - list[n] != 0) list[n] = 0;
  }
  return list;
}

/* The heights at fewer points. One that is higher, or lower, in the stretch that a point stands for than at
   any point beside it takes its place: no peak is lost. */
function thinned(heights, columns, rows) {
  var across = places(xStore.whichChoice, columns), along = places(zStore.whichChoice, rows);
  var list = new Array(), width = xStore.whichChoice, n = 0, i, k;
  function at(u, v) {
    return heights[along[Math.max(0, Math.min(rows - 1, v))] * width + across[Math.max(0, Math.min(columns - 1, u))]];
  }
  for (k = 0; k < rows; ++k) {
    for (i = 0; i < columns; ++i) {
      var own = at(i, k), low = own, high = own;
      for (var z = begin(along, k); z < begin(along, k + 1); ++z) {
        for (var x = begin(across, i); x < begin(across, i + 1); ++x) {
          var height = heights[z * width + x];
          if (height < low) low = height;
          if (height > high) high = height;
        }
      }
      var a = at(i - 1, k), b = at(i + 1, k), c = at(i, k - 1), d = at(i, k + 1);
      list[n++] = high > Math.max(own, a, b, c, d) ? high : low < Math.min(own, a, b, c, d) ? low : own;
    }
  }
  return list;
}

/* Which of the lattice's points stand nearest to the fewer ones. */
function places(count, fewer) {
  var list = new Array();
  for (var i = 0; i < fewer; ++i) list[i] = Math.round(i * (count - 1) / (fewer - 1));
  return list;
}

/* Where the stretch of a point begins: half way from the one before; after the last, behind its end. */
function begin(list, i) {
  if (i == 0) return 0;
  return i == list.length ? list[i - 1] + 1 : Math.ceil((list[i - 1] + list[i]) / 2);
}

/* Upwards, across the slope between the points on either side. */
function normals(heights, columns, rows) {
  var field = new MFVec3f(), Vector = SFVec3f, n = 0;
  var dx = xStepStore.offset * (xStore.whichChoice - 1) / (columns - 1);
  var dz = zStepStore.offset * (zStore.whichChoice - 1) / (rows - 1);
  field.length = heights.length;
  for (var k = 0; k < rows; ++k) {
    var back = k > 0 ? columns : 0, front = k < rows - 1 ? columns : 0;
    for (var i = 0; i < columns; ++i) {
      var left = i > 0 ? 1 : 0, right = i < columns - 1 ? 1 : 0;
      var x = (heights[n - left] - heights[n + right]) / ((left + right) * dx);
      var z = (heights[n - back] - heights[n + front]) / ((back + front) / columns * dz);
      var size = Math.sqrt(x * x + z * z + 1);
      field[n++] = new Vector(x / size, 1 / size, z / size);
    }
  }
  return field;
}
