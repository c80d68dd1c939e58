// Lets one part of a chart stand out: those that are named like it, but for numbers, are faded.

const FADED = 0.78; // how far towards the background

export class Highlight {
  constructor(world) {
    this.world = world;
    this.node = null;
  }

  /** @param {?Node} node  null: nothing is faded */
  set(node) {
    if (node === this.node) return;
    this.node = node;
    const kind = stem(node);
    const { r, g, b } = this.world.sky.color;
    this.walk(this.world.content, (shape, names) => {
      const isOther = node !== null && names.some((other) => other !== node && stem(other) === kind);
      for (const { material } of shape.looks) {
        material.uniforms.veil.value.set(r, g, b, isOther ? FADED : 0);
      }
    });
    this.world.invalidate();
  }

  /** Calls task(shape, nodes) with the named nodes that each shape stands in. */
  walk(object, task, names = []) {
    const { node, given, shape } = object.userData;
    if (shape) {
      task(shape, names);
      return;
    }
    const named = [given, node].filter((each) => each?.name);
    const inner = named.length > 0 ? [...names, ...named] : names;
    for (const child of object.children) this.walk(child, task, inner);
  }
}

function stem(node) {
  return node === null ? '' : `${node.typeName} ${node.name.replace(/\d+$/, '')}`;
}
