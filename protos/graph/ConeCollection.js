// Draws the cones of qm4_ConeCollection and tells which of them is clicked.

function initialize() { draw(); }

function set_size(value, time) { draw(); }

function set_coneRotation(value, time) { draw(); }

function set_coneLocations(value, time) { draw(); }

function over(isOver, time) {
  if (textStore.description != '') Browser.setDescription(isOver ? textStore.description : '');
}

function click(value, time) {
  var locations = locationStore.keyValue, hit = pointer.hitPoint_changed;
  var nearest = -1, least = 0;
  for (var i = 0; i < locations.length; ++i) {
    var distance = hit.subtract(locations[i]).length();
    if (nearest < 0 || distance < least) {
      nearest = i;
      least = distance;
    }
  }
  if (nearest >= 0) mouseClickedIndex = nearest;
}

/* All cones are copies of one: its tip, then the corners of its base. */
function draw() {
  var sides = 20, corners = sides + 1;
  var cone = coneCorners(sides), locations = locationStore.keyValue;
  var count = radiusStore.offset > 0 && heightStore.offset > 0 ? locations.length : 0;
  var newPoints = new MFVec3f(), newIndex = new MFInt32();
  var p = 0, n = 0, i, k;
  newPoints.length = count * corners;
  newIndex.length = count * (5 * sides + 1);
  for (i = 0; i < count; ++i) {
    var tip = i * corners;
    for (k = 0; k < corners; ++k) newPoints[p++] = locations[i].add(cone[k]);
    for (k = 0; k < sides; ++k) {
      newIndex[n++] = tip;
      newIndex[n++] = tip + 1 + k;
      newIndex[n++] = tip + 1 + (k + 1) % sides;
      newIndex[n++] = -1;
    }
    for (k = sides; k > 0; --k) newIndex[n++] = tip + k;
    newIndex[n++] = -1;
  }
  points = newPoints;
  index = newIndex;
}

function coneCorners(sides) {
  var radius = radiusStore.offset, height = heightStore.offset, turn = rotationStore.rotation;
  var corners = new Array();
  corners[0] = turn.multVec(new SFVec3f(0, height / 2, 0));
  for (var k = 0; k < sides; ++k) {
    var angle = 2 * Math.PI * k / sides;
    corners[k + 1] = turn.multVec(
      new SFVec3f(radius * Math.sin(angle), -height / 2, radius * Math.cos(angle)));
  }
  return corners;
}
