// Switches the contents of qm4_ContentToggle.

function initialize() { choose(existStore.autoOffset); }

function set_contentsExist(exist, time) { choose(exist); }

function choose(exist) { choice_changed = exist ? 0 : -1; }
