// What the legend of a chart says: its entries, and which part of the chart the check box of each shows.

/** The entries of all legends of a scene from the top: {text, color, box, toggle}; color is the key's or null,
 *  box and toggle are the nodes of the check box beside it and of what it shows and hides, or null. */
export function legendOf(scene) {
  const legends = [], boxes = [];
  const visit = (node, y) => {
    const at = y + (node.typeName === 'Transform' ? node.get('translation').y : 0);
    if (node.typeName === 'qm4_Legend') legends.push({ node, y: at });
    if (node.typeName === 'qm4_CheckBox') boxes.push({ node, y: at });
    const inner = node.typeName === 'qm4_ContentToggle' ? 'contents' : 'children';
    for (const child of node.field(inner)?.value ?? []) visit(child, at);
  };
  for (const node of scene.roots) visit(node, 0);
  return legends.flatMap(({ node, y }) => entriesOf(node, y, boxes, scene));
}

/** Check boxes stand beside their entries, which count from the bottom. */
function entriesOf(legend, y, boxes, scene) {
  const step = legend.get('textHeight') + legend.get('entryGap');
  const toggles = [...scene.names.values()].filter(({ typeName }) => typeName === 'qm4_ContentToggle');
  const keys = legend.get('keyAppearances');
  return legend.get('entryTexts').map((text, i) => {
    const box = boxes.find((each) => Math.abs(each.y - y - i * step) < step / 4)?.node ?? null;
    const color = keys[i]?.get('material')?.get('diffuseColor') ?? null;
    const shown = box?.field('value_changed').routes ?? [];
    const toggle = toggles.find((node) => shown.includes(node.field('contentsExist'))) ?? null;
    return { text, color, box, toggle };
  }).reverse();
}
