// Shows the panel of qm4_PopupStrip at the value that the pointer is on.

function set_overStrip(over, time) { overStrip = over; }

function set_stripHit(point, time) {
  var i = Math.floor(point.x / spacingStore.offset + 0.5);
  i = Math.max(0, Math.min(countStore.whichChoice - 1, i));
  if (i == pointed) return;
  pointed = i;
  layOut();
}

function set_overPanel(over, time) { overPanel = over; }

/* To the left and right of what belongs to the value, the panel gives way to what it covers. */
function set_panelHit(point, time) {
  overPanel = Math.abs(panelX(halfWidth()) + point.x * sizeStore.offset) < reach();
}

function set_size(value, time) { layOut(); }

function set_heights(value, time) { layOut(); }

function set_alignment(value, time) { layOut(); }

function set_popupTexts(value, time) { layOut(); }

/* Not before: the pointer leaves the strip and comes upon the panel at one and the same time. */
function eventsProcessed() {
  if (!overStrip && !overPanel) pointed = -1;
  var next = text() == '' ? -1 : 0;
  if (next == shown) return;
  shown = next;
  choice = next;
}

function layOut() {
  if (text() == '') return;
  var size = sizeStore.offset, depth = depthStore.offset, heights = heightStore.keyValue;
  var width = halfWidth(), height = 0.5 * lines().length + 0.3;
  place = new SFVec3f(
    pointed * spacingStore.offset, pointed < heights.length ? heights[pointed] : 0, depth / 2.1);
  frameTranslation = new SFVec3f(panelX(width), panelY(height), depth + width * size);
  frameScale = new SFVec3f(size, size, size);
  panelPoints = rectangles(width, height, 0.08);
  panelText = strings(lines());
}

/* Where the middle of the panel is, seen from the value. */
function panelX(halfWidth) {
  var distance = reach() + halfWidth * sizeStore.offset;
  if (alignmentStore.description == 'LEFT') return -distance;
  return alignmentStore.description == 'RIGHT' ? distance : 0;
}

function panelY(halfHeight) {
  var distance = radiusStore.offset + (halfHeight + 0.3) * sizeStore.offset;
  if (alignmentStore.description == 'BOTTOM') return -distance;
  return panelX(0) == 0 ? distance : 0;
}

/* Seen from anywhere, what belongs to a value is not wider to either side than this. */
function reach() {
  var x = 0.5 * spacingStore.offset, z = 0.5 * depthStore.offset;
  return Math.sqrt(x * x + z * z);
}

// include ../parts/panel.js
