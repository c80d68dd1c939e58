// The stacks of Viewpoints, Backgrounds and NavigationInfos, the topmost of which are bound (ISO/IEC
// 14772-1, 4.6.10).

const TYPES = ['Viewpoint', 'Background', 'NavigationInfo'];

export class Bindings {
  constructor(scene) {
    this.scene = scene;
    this.all = new Map(TYPES.map((type) => [type, []]));
    this.stacks = new Map(TYPES.map((type) => [type, []]));
  }

  add(node) { this.all.get(node.typeName)?.push(node); }

  /** Binds the first of each type. */
  bindFirst() {
    for (const [first] of this.all.values()) if (first !== undefined) this.set(first, true);
  }

  bound(type) { return this.stacks.get(type)?.at(-1) ?? null; }

  set(node, isBound) {
    const { events } = this.scene;
    const stack = this.stacks.get(node.typeName), before = stack.at(-1) ?? null;
    const rest = stack.filter((other) => other !== node);
    if (isBound) rest.push(node);
    this.stacks.set(node.typeName, rest);
    const after = rest.at(-1) ?? null;
    if (after === before) return;
    if (before !== null) events.send(before.field('isBound'), false);
    if (after !== null) {
      events.send(after.field('isBound'), true);
      if (after.typeName === 'Viewpoint') events.send(after.field('bindTime'), events.time);
    }
    events.changed = true;
    this.scene.notify('bound', { type: node.typeName, node: after });
  }
}
