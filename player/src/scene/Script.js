// A Script of a PROTO body, whose functions were compiled into the player, and its life: initialize, an event
// at a time, eventsProcessed (ISO/IEC 14772-1, 4.12 and annex C.4).

export class Script {
  /** make(host, Browser) gives the script's functions by name; host is this. */
  constructor(node, make) {
    this.node = node;
    this.scene = node.scene;
    this.outputs = new Set();
    this.functions = make(this, this.scene.browser);
    for (const [name, { type, access }] of node.type.fields) {
      const run = access === 'eventIn' ? this.functions[name] : undefined;
      if (run !== undefined) {
        node.field(name).listen((value) => {
          this.call(() => run(this.scene.values.toScript(type, value), this.scene.events.time));
          if (this.functions.eventsProcessed !== undefined) this.scene.events.receivers.add(this);
        });
      }
    }
  }

  initialize() {
    if (this.functions.initialize !== undefined) this.call(() => this.functions.initialize());
  }

  eventsProcessed() { this.call(() => this.functions.eventsProcessed()); }

  /** Runs one of the functions, then sends the last value of each eventOut that it has set. */
  call(run) {
    try {
      run();
    } catch (error) {
      this.scene.warn(`A script of ${this.node.name || 'a PROTO'} failed: ${error.message}`);
    }
    const outputs = [...this.outputs];
    this.outputs.clear();
    for (const field of outputs) this.scene.events.send(field, field.value);
  }

  // What the compiled functions call for the fields of the Script: to read one, to set an eventOut, to keep
  // a new value of a field.

  get(name) { return this.scene.values.toScript(this.node.type.fields.get(name).type, this.node.get(name)); }

  send(name, value) {
    const field = this.node.field(name);
    field.value = this.scene.values.fromScript(field.type, value);
    this.outputs.add(field);
    return value;
  }

  keep(name, value) {
    const field = this.node.field(name);
    field.value = this.scene.values.fromScript(field.type, value);
    return value;
  }
}
