// Keeps the state of qm4_CheckBox.

function initialize() {
  size(sizeStore.offset);
  mark(onStore.autoOffset);
}

function set_boxSize(value, time) { size(value); }

function set_isOn(value, time) { mark(value); }

function click(value, time) {
  var on = !onStore.autoOffset;
  on_changed = on;
  value_changed = on;
}

function size(value) { scale_changed = new SFVec3f(value, value, value); }

function mark(on) { tick_changed = on ? 0 : -1; }
