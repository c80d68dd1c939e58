// A popup's panel: made when it is first shown, it faces the viewer and is laid out in units of a line of
// its text.

var panel = null, frame = null, panelText = '', openFor = -1;

/* The text of the value that is pointed to, or an empty one. */
function text() {
  var texts = textStore.parameter;
  return pointed >= 0 && pointed < texts.length ? texts[pointed] : '';
}

function lines() { return text().split(String.fromCharCode(10)); }

/* Half the size of the panel. The font is not known here, but few texts are wider than 0.55 of their height
   a character. */
function halfWidth() {
  var all = lines(), longest = 0;
  for (var i = 0; i < all.length; ++i) longest = Math.max(longest, all[i].length);
  return 0.275 * longest + 0.5;
}

function halfHeight() { return 0.5 * lines().length + 0.3; }

/* Puts the panel at a place, shifted from there as the viewer sees it (x to his right, z towards him), with
   lines of a height. */
function showPanel(place, shift, height) {
  if (panel == null) makePanel();
  panel.choice[0].translation = place;
  frame.translation = shift;
  frame.scale = new SFVec3f(height, height, height);
  if (openFor == pointed && panelText == text()) return;
  if (panelText != text()) {
    panelText = text();
    frame.children[0].geometry.coord.point = rectangles(halfWidth(), halfHeight(), 0.08);
    frame.children[2].children[0].geometry.string = strings(lines());
  }
  panel.whichChoice = 0;
  openFor = pointed;
  shown = pointed;
}

function hidePanel() {
  if (openFor < 0) return;
  panel.whichChoice = -1;
  openFor = -1;
  shown = -1;
}

/* The panel's face, its border and its text. */
function makePanel() {
  var made = Browser.createVrmlFromString(
    'Switch { choice Transform { children Billboard { axisOfRotation 0 0 0 children Transform { children [ '
    + 'Shape { geometry IndexedFaceSet { coord DEF P Coordinate { } coordIndex [ 0 1 2 3 -1 ] } } '
    + 'Shape { geometry IndexedFaceSet { coord USE P '
    + 'coordIndex [ 4 5 1 0 -1 5 6 2 1 -1 6 7 3 2 -1 7 4 0 3 -1 ] } } '
    + 'Transform { translation 0 0 0.05 children Shape { geometry Text { '
    + 'fontStyle FontStyle { family "SANS" justify [ "MIDDLE" "MIDDLE" ] } } } } ] } } } }');
  panel = made[0];
  frame = panel.choice[0].children[0].children[0];
  frame.children[0].appearance = faceAppearance;
  frame.children[1].appearance = borderAppearance;
  frame.children[2].children[0].appearance = textAppearance;
  home.addChildren = made;
}

/* The corners of the face, then those of the border. */
function rectangles(x, y, border) {
  var u = x + border, v = y + border;
  return new MFVec3f(
    new SFVec3f(-x, -y, 0), new SFVec3f(x, -y, 0), new SFVec3f(x, y, 0), new SFVec3f(-x, y, 0),
    new SFVec3f(-u, -v, 0), new SFVec3f(u, -v, 0), new SFVec3f(u, v, 0), new SFVec3f(-u, v, 0));
}

function strings(list) {
  var field = new MFString();
  for (var i = 0; i < list.length; ++i) field[i] = list[i];
  return field;
}
