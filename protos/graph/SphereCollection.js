// Makes the balls or the cloud of qm4_SphereCollection.

var FEW = 100;
var count = -1, cloud = null, isAsked = false;

function initialize() { draw(); }

function set_colors(value, time) { draw(); }

function set_sizes(value, time) { draw(); }

function set_locations(value, time) {
  if (value.length != count) draw();
  else if (!isCloudy()) for (var i = 0; i < count; ++i) spheres[i].translation = value[i];
}

function isCloudy() { return count > FEW && Browser.getName() == 'X_ITE'; }

function draw() {
  count = places.point.length;
  if (!isCloudy()) drawBalls();
  else if (cloud != null) drawCloud();
  else if (!isAsked) Browser.createX3DFromString(cloudWorld).then(keepCloud);
  isAsked = isCloudy();
}

function keepCloud(world) {
  cloud = world.rootNodes;
  cloud[0].geometry.coord = places;
  draw();
}

function drawCloud() {
  var field = new MFColor(), looks = new MFFloat(), white = new SFColor(1, 1, 1);
  var colors = colorStore.keyValue, radii = radiusStore.keyValue;
  var transparencies = transparencyStore.keyValue;
  var isClear = false;
  field.length = count;
  looks.length = 2 * count;
  for (var i = 0; i < count; ++i) {
    field[i] = i < colors.length ? colors[i] : white;
    looks[2 * i] = i < radii.length ? radii[i] : 0.1;
    looks[2 * i + 1] = i < transparencies.length ? 1 - transparencies[i] : 1;
    if (looks[2 * i + 1] < 1) isClear = true;
  }
  cloud[0].geometry.color.color = field;
  cloud[0].geometry.attrib[0].value = looks;
  spheres = isClear ? cloud : new MFNode(cloud[0]);
}

/* All balls are made of one mesh, and those that look alike of one shape. */
function drawBalls() {
  var locations = places.point, radii = radiusStore.keyValue;
  var text = new Array(), shapes = new Object();
  var appearance = 'appearance Appearance { material Material { ';
  var geometry = '} } geometry DEF Ball ' + ball(locations.length);
  for (var i = 0; i < locations.length; ++i) {
    var radius = i < radii.length ? radii[i] : 0.1, shape = '';
    if (radius > 0) {
      var look = lookOf(i);
      shape = 'scale ' + radius + ' ' + radius + ' ' + radius + ' children ';
      if (shapes[look]) {
        shape += 'USE ' + shapes[look];
      } else {
        shapes[look] = 'Shape' + i;
        shape += 'DEF ' + shapes[look] + ' Shape { ' + appearance + look + geometry + ' }';
        geometry = '} } geometry USE Ball';
      }
    }
    text[i] = 'Transform { translation ' + locations[i] + ' ' + shape + ' }';
  }
  spheres = Browser.createVrmlFromString(text.join(' '));
}

function lookOf(i) {
  var colors = colorStore.keyValue, transparencies = transparencyStore.keyValue;
  var look = 'diffuseColor ' + (i < colors.length ? colors[i] : '1 1 1');
  if (i < transparencies.length) look += ' transparency ' + transparencies[i];
  return look + ' shininess 0.4 specularColor 0.3 0.3 0.3 ';
}

/* An octahedron of radius 1, each of its faces cut up into triangles: 36, 16 or, when there are many
   balls, 4. */
function ball(count) {
  var parts = count <= 64 ? 6 : count <= 256 ? 4 : 2;
  var points = new Array(), index = new Array();
  for (var octant = 0; octant < 8; ++octant) {
    var x = new SFVec3f(octant & 1 ? -1 : 1, 0, 0), y = new SFVec3f(0, octant & 2 ? -1 : 1, 0);
    var z = new SFVec3f(0, 0, octant & 4 ? -1 : 1);
    if (x.x * y.y * z.z > 0) addFace(points, index, parts, x, y, z);
    else addFace(points, index, parts, x, z, y);
  }
  var list = '[ ' + points.join(', ') + ' ]';
  return 'IndexedFaceSet { coord Coordinate { point ' + list + ' } normal Normal { vector ' + list
    + ' } coordIndex [ ' + index.join(' ') + ' ] }';
}

function addFace(points, index, parts, a, b, c) {
  for (var row = 0; row <= parts; ++row) {
    for (var k = 0; k <= row; ++k) {
      var n = points.length, above = n - row;
      if (k > 0) index.push(n - 1, n, above - 1, -1);
      if (k > 0 && k < row) index.push(n, above, above - 1, -1);
      points[n] = a.multiply(parts - row).add(b.multiply(row - k)).add(c.multiply(k)).normalize();
    }
  }
}
