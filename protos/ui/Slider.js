// Moves the knob of qm4_Slider in whole steps.

function initialize() {
  value = inRange(value);
  layOut();
}

function set_value(wanted, time) { change(wanted); }

function set_length(wanted, time) { layOut(); }

function set_radius(wanted, time) { layOut(); }

function set_minValue(wanted, time) {
  change(value);
  layOut();
}

function set_maxValue(wanted, time) {
  change(value);
  layOut();
}

function set_drag(position, time) {
  change(minStore.whichChoice + Math.round(position.y / barLength() * stepCount()));
}

function set_dragging(active, time) {
  dragging = active;
  if (!active) placeKnob();
}

function change(wanted) {
  var next = inRange(wanted);
  if (next == value) return;
  value = next;
  placeKnob();
  value_changed = next;
}

function layOut() {
  var thickness = 0.4 * knobRadius();
  barTranslation = new SFVec3f(0, barLength() / 2, 0);
  barScale = new SFVec3f(thickness, barLength(), thickness);
  knobScale = new SFVec3f(knobRadius(), knobRadius(), knobRadius());
  maxPosition = new SFVec2f(0, barLength());
  placeKnob();
}

/* During a drag the sensor keeps the offset it started from. */
function placeKnob() {
  var y = stepCount() == 0 ? 0 : (value - minStore.whichChoice) / stepCount() * barLength();
  knobTranslation = new SFVec3f(0, y, 0);
  if (!dragging) offset = new SFVec3f(0, y, 0);
}

function inRange(wanted) {
  return Math.max(minStore.whichChoice, Math.min(minStore.whichChoice + stepCount(), wanted));
}

function stepCount() { return Math.max(0, maxStore.whichChoice - minStore.whichChoice); }

function barLength() { return Math.max(0.001, lengthStore.offset); }

function knobRadius() { return Math.max(0.001, radiusStore.offset); }
