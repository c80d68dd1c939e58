// The values of a chart that pop up: which there are, which one is pointed at, and how to point at one
// without a pointer. All that the player knows of the bodies of the popup PROTOs is here.

const POPUPS = {
  qm4_PopupStrip: { sensor: 'StripPointer', texts: 'popupTexts', place: stripPlace },
  qm4_PopupSurface: { sensor: 'Pointer', texts: 'popupText', place: surfacePlace },
};

function stripPlace(node, index) {
  const height = node.get('pointHeights')[index] ?? 0;
  return { x: index * node.get('pointSpacing'), y: height, z: node.get('stripDepth') / 2.1 };
}

function surfacePlace(node, index) {
  const columns = node.get('xDimension');
  return {
    x: (index % columns) * node.get('xSpacing'),
    y: (node.get('height')[index] ?? 0) * node.get('frameScale'),
    z: Math.floor(index / columns) * node.get('zSpacing'),
  };
}

/** The popups of a scene in the order of its text: {node, name, texts}; name is the DEF name of the toggle
 *  that they stand behind, or ''. tell({popup, index, text}) is called when a value comes to be pointed at,
 *  tell(null) when none is any more. */
export function popupsOf(scene, tell) {
  const popups = [];
  const visit = (node, name) => {
    if (node.typeName in POPUPS) popups.push(popupOf(node, name, popups.length, tell));
    const inner = node.typeName === 'qm4_ContentToggle' ? 'contents' : 'children';
    const next = node.typeName === 'qm4_ContentToggle' ? node.name : name;
    for (const child of node.get(inner) ?? []) visit(child, next);
  };
  for (const node of scene.roots) visit(node, '');
  return popups;
}

function popupOf(node, name, n, tell) {
  const { names } = node, { texts } = POPUPS[node.typeName];
  const say = () => {
    const index = names.get('Host').get('pointed'), text = node.get(texts)[index] ?? '';
    tell(text !== '' ? { popup: n, name, index, text } : null, n);
  };
  names.get('Host').field('shown').listen(say);
  return { node, name, get texts() { return node.get(texts); } };
}

/** Points at value index of a popup as a pointer would; -1 takes the pointer away. */
export function pointAt({ node }, index) {
  const { sensor, place } = POPUPS[node.typeName], { scene } = node;
  const touch = node.names.get(sensor);
  scene.act(() => {
    scene.events.send(touch.field('isOver'), index >= 0);
    if (index >= 0) scene.events.send(touch.field('hitPoint_changed'), place(node, index));
  });
}
