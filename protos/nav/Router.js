// Loads the URL that qm4_Router is asked for.

function set_linkIndex(index, time) {
  var links = urlStore.parameter;
  if (!enabledStore.autoOffset || index < 0 || index >= links.length || links[index] == '') return;
  Browser.loadURL(new MFString(located(links[index])), loadStore.parameter);
}

function located(link) {
  return isRelative(link) ? loadStore.description + link : link;
}

function isRelative(link) {
  for (var i = 0; i < link.length; ++i) {
    var c = link.charAt(i);
    if (c == ':') return false;
    if (c == '/' || c == '#') return i > 0;
    if (c == '?') return true;
  }
  return true;
}
