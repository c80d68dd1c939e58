// The text of a popup's panel and its measures, in units of a line of text.

function text() {
  var texts = textStore.parameter;
  return pointed >= 0 && pointed < texts.length ? texts[pointed] : '';
}

function lines() { return text().split(String.fromCharCode(10)); }

/* In units of textHeight. The font is not known here, but few texts are wider than 0.55 of their
   height a character. */
function halfWidth() {
  var all = lines(), longest = 0;
  for (var i = 0; i < all.length; ++i) longest = Math.max(longest, all[i].length);
  return 0.275 * longest + 0.5;
}

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
