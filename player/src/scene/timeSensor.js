// The clock of animations (ISO/IEC 14772-1, 4.6.9 and 6.50).

/** Sends what a TimeSensor has to say at a time, in seconds. */
export function tick(node, now) {
  const { events } = node.scene;
  const isActive = node.get('isActive');
  const start = isActive ? node.startedAt : node.get('startTime');
  const interval = isActive ? node.interval : node.get('cycleInterval');
  const stop = node.get('stopTime'), loop = node.get('loop');
  const isStopped = stop > start && now >= stop, isOver = !loop && now >= start + interval;
  if (!isActive) {
    if (!node.get('enabled') || now < start || isOver || isStopped || !(interval > 0)) return;
    node.startedAt = start;
    node.interval = interval;
    node.cycle = -1;
    events.send(node.field('isActive'), true);
  } else if (!node.get('enabled')) {
    events.send(node.field('isActive'), false);
    return;
  }
  const ends = isStopped || isOver;
  const at = !ends ? now : isStopped ? Math.min(stop, loop ? stop : start + interval) : start + interval;
  const cycles = (at - start) / interval, whole = Math.floor(cycles);
  const fraction = cycles === whole && cycles > 0 ? 1 : cycles - whole;
  const cycle = fraction === 1 ? whole - 1 : whole;
  if (cycle !== node.cycle) {
    node.cycle = cycle;
    events.send(node.field('cycleTime'), start + cycle * interval);
  }
  events.send(node.field('fraction_changed'), fraction);
  events.send(node.field('time'), at);
  if (ends) events.send(node.field('isActive'), false);
}
