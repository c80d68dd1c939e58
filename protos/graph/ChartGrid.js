// Draws the walls and the lines of qm4_ChartGrid.

function initialize() { draw(); }

function set_count(value, time) { draw(); }

function set_spacing(value, time) { draw(); }

function draw() {
  var nx = xCount.whichChoice, ny = yCount.whichChoice, nz = zCount.whichChoice;
  var dx = xStep.offset, dy = yStep.offset, dz = zStep.offset;
  if (nx < 1 || ny < 1 || nz < 1 || !(dx > 0 && dy > 0 && dz > 0)) nx = ny = nz = 0;
  drawWalls(dx * (nx - 1), dy * (ny - 1), dz * (nz - 1), nx > 0);
  drawLines(nx, ny, nz, dx, dy, dz);
}

function drawWalls(x, y, z, visible) {
  var o = -0.002 * Math.max(x, y, z);
  wallPoints = new MFVec3f(
    new SFVec3f(o, o, o), new SFVec3f(x, o, o), new SFVec3f(x, o, z), new SFVec3f(o, o, z),
    new SFVec3f(o, y, o), new SFVec3f(x, y, o), new SFVec3f(o, y, z));
  wallIndex = visible
    ? new MFInt32(0, 3, 2, 1, -1, 0, 1, 5, 4, -1, 0, 4, 6, 3, -1)
    : new MFInt32();
}

/* Each line bends once, where two walls meet. */
function drawLines(nx, ny, nz, dx, dy, dz) {
  var x = dx * (nx - 1), y = dy * (ny - 1), z = dz * (nz - 1);
  var points = new MFVec3f(), index = new MFInt32();
  var i, n = 0;
  points.length = 3 * (nx + ny + nz);
  for (i = 0; i < nx; ++i) {
    points[n++] = new SFVec3f(i * dx, 0, z);
    points[n++] = new SFVec3f(i * dx, 0, 0);
    points[n++] = new SFVec3f(i * dx, y, 0);
  }
  for (i = 0; i < ny; ++i) {
    points[n++] = new SFVec3f(x, i * dy, 0);
    points[n++] = new SFVec3f(0, i * dy, 0);
    points[n++] = new SFVec3f(0, i * dy, z);
  }
  for (i = 0; i < nz; ++i) {
    points[n++] = new SFVec3f(x, 0, i * dz);
    points[n++] = new SFVec3f(0, 0, i * dz);
    points[n++] = new SFVec3f(0, y, i * dz);
  }
  index.length = n / 3 * 4;
  for (i = 0; i < index.length; ++i) index[i] = i % 4 == 3 ? -1 : i - Math.floor(i / 4);
  linePoints = points;
  lineIndex = index;
}
