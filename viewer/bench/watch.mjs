// Runs in a page that is measured, ahead of its own scripts: notes every frame that WebGL draws.

// After each animation callback that drew something, the picture is finished and read: { time, hash,
// vertices } goes into window.frames_, and window.quiet counts the tenths of a second without another
// picture while the page answers.
export function watch() {
  window.frames_ = [];
  window.quiet = 0;
  const seen = [];
  let drawn = 0;
  let context;
  let pixels;

  const CALLS = {
    drawArrays: (_, __, count) => count,
    drawElements: (_, count) => count,
    drawArraysInstanced: (_, __, count, instances) => count * instances,
    drawElementsInstanced: (_, count, __, ___, instances) => count * instances,
  };
  for (const { prototype } of [WebGLRenderingContext, WebGL2RenderingContext]) {
    for (const [name, count] of Object.entries(CALLS)) {
      const draw = prototype[name];
      if (!draw) continue;
      prototype[name] = function (...args) {
        drawn += count(...args);
        context = this;
        return draw.apply(this, args);
      };
    }
  }

  function note() {
    const { drawingBufferWidth: width, drawingBufferHeight: height } = context;
    if (pixels?.length !== width * height) pixels = new Uint32Array(width * height);
    const bound = context.getParameter(context.FRAMEBUFFER_BINDING);
    context.bindFramebuffer(context.FRAMEBUFFER, null);
    context.readPixels(0, 0, width, height, context.RGBA, context.UNSIGNED_BYTE,
      new Uint8Array(pixels.buffer));
    context.bindFramebuffer(context.FRAMEBUFFER, bound);
    let hash = 0;
    let isPlain = true;
    for (let i = 0; i < pixels.length; i += 7) {
      hash = (Math.imul(hash, 31) + pixels[i]) | 0;
      if (pixels[i] !== pixels[0]) isPlain = false;
    }
    const frame = { time: performance.now(), hash, vertices: drawn, isPlain };
    drawn = 0;
    window.frames_.push(frame);
    if (seen.at(-1)?.hash !== hash) {
      seen.push(frame);
      window.quiet = 0;
    }
  }

  const request = window.requestAnimationFrame.bind(window);
  window.requestAnimationFrame = (callback) => request((time) => {
    callback(time);
    if (drawn) note();
  });
  setInterval(() => { ++window.quiet; }, 100);

  window.isShown = () => seen.some(({ isPlain }) => !isPlain);
  window.times = (isMoving) => {
    const whole = Math.max(...window.frames_.slice(-10).map(({ vertices }) => vertices));
    const final = isMoving
      ? seen.find(({ vertices, isPlain }) => !isPlain && vertices >= 0.9 * whole)
      : seen.at(-1);
    return { first: seen.find(({ isPlain }) => !isPlain).time, final: final.time };
  };
}
