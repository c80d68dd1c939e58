// Makes the rows of qm4_Legend.

function initialize() { draw(); }

function set_keyAppearances(value, time) {
  keyAppearances = value;
  keyAppearances_changed = value;
  draw();
}

function set_entryTexts(value, time) { draw(); }

function set_keyStyle(value, time) { draw(); }

function set_size(value, time) { draw(); }

function draw() {
  var texts = textStore.parameter;
  var height = heightStore.offset;
  var count = height > 0 ? Math.max(keyAppearances.length, texts.length) : 0;
  var drawn = new MFNode();
  for (var i = 0; i < count; ++i) {
    var row = drawn.length;
    if (i < keyAppearances.length) drawn[row++] = key(i, height);
    if (i < texts.length) drawn[row++] = label(texts[i], i, height);
  }
  rows = drawn;
}

function key(i, height) {
  var size = 0.7 * height;
  var shape = styleStore.description == 'SPHERE'
    ? 'Sphere { radius ' + size / 2 + ' }'
    : 'Box { size ' + size + ' ' + size + ' ' + size + ' }';
  var node = placed(0.5 * height, i, 'geometry ' + shape, height);
  node.children[0].appearance = keyAppearances[i];
  return node;
}

function label(text, i, height) {
  var style = 'FontStyle { family "SANS" justify [ "BEGIN" "MIDDLE" ] size ' + height + ' }';
  var node = placed(1.2 * height, i, 'geometry Text { fontStyle ' + style + ' }', height);
  node.children[0].appearance = textAppearance;
  node.children[0].geometry.string = new MFString(text);
  return node;
}

function placed(x, i, shapeFields, height) {
  var y = i * (height + gapStore.offset) + height / 2;
  return Browser.createVrmlFromString(
    'Transform { translation ' + x + ' ' + y + ' 0 children Shape { ' + shapeFields + ' } }')[0];
}
