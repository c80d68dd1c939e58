// Events and their cascades: what is sent goes along ROUTEs, first come first served, all at one time; no
// field sends more than one event in a cascade, which ends loops (ISO/IEC 14772-1, 4.10.3).

export class Events {
  constructor() {
    this.queue = [];
    this.stamp = 0;
    this.isRunning = false;
    this.time = 0; // of the cascade, in seconds
    this.changed = false;
    this.receivers = new Set(); // Scripts that are owed a call of eventsProcessed
  }

  /** Runs act and the cascade of events that it sends; within a cascade, act alone. */
  cascade(time, act) {
    if (this.isRunning) {
      act();
      return;
    }
    this.isRunning = true;
    this.time = time;
    ++this.stamp;
    try {
      act();
      this.drain();
    } finally {
      this.isRunning = false;
      this.queue.length = 0;
      this.receivers.clear();
    }
  }

  drain() {
    do {
      for (let n = 0; n < this.queue.length; ++n) {
        const { field, value, isSent } = this.queue[n];
        if (isSent) this.spread(field);
        else this.accept(field, value);
      }
      this.queue.length = 0;
      const receivers = [...this.receivers];
      this.receivers.clear();
      for (const script of receivers) script.eventsProcessed();
    } while (this.queue.length > 0 || this.receivers.size > 0);
  }

  /** A node sends an event. Sent twice before it is on its way, it is one event, with the later value. */
  send(field, value) {
    field.value = value;
    this.changed = true;
    if (field.isQueued || (field.listeners === null && field.routes === null)) return;
    field.isQueued = true;
    this.queue.push({ field, value, isSent: true });
  }

  /** A field receives an event when its turn comes. */
  post(field, value) { this.queue.push({ field, value, isSent: false }); }

  /** A field receives an event now. */
  accept(field, value) {
    field.value = value;
    this.changed = true;
    this.spread(field);
  }

  spread(field) {
    field.isQueued = false;
    field.tell();
    if (field.routes === null || field.stamp === this.stamp) return;
    field.stamp = this.stamp;
    for (const target of field.routes) this.post(target, field.value);
  }
}
