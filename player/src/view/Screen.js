// Draws frames on the canvas: smooth ones at rest, and while something moves as coarse ones as it takes to keep up.

import {
  BufferAttribute, BufferGeometry, Camera, GLSL3, LinearFilter, Mesh, RawShaderMaterial, Scene, WebGLRenderTarget,
} from 'three';

const SAMPLES = 4; // of a pixel at rest
const COARSE = 0.5; // of the canvas's width and height
const LATE = 33; // milliseconds from asking for a frame to its turn: the one before is not drawn yet
const TOLERATED = 3; // late frames on end

const COPY_VERTEX = `
in vec3 position;
out vec2 place;
void main() {
  place = 0.5 * position.xy + 0.5;
  gl_Position = vec4(position, 1.0);
}`;
const COPY_FRAGMENT = `
precision highp float;
uniform sampler2D picture;
in vec2 place;
out vec4 color;
void main() { color = vec4(texture(picture, place).rgb, 1.0); }`;

export class Screen {
  constructor(renderer) {
    this.renderer = renderer;
    this.targets = new Map(); // by the number of samples
    this.copying = new Scene();
    const corners = new BufferGeometry();
    corners.setAttribute('position', new BufferAttribute(new Float32Array([-1, -1, 0, 3, -1, 0, -1, 3, 0]), 3));
    const copy = new Mesh(corners, new RawShaderMaterial({
      glslVersion: GLSL3, vertexShader: COPY_VERTEX, fragmentShader: COPY_FRAGMENT,
      uniforms: { picture: { value: null } }, depthTest: false, depthWrite: false,
    }));
    copy.frustumCulled = false;
    this.copy = copy;
    this.copying.add(copy);
    this.reset();
  }

  /** As for another world or another size: whether frames come late is not known. */
  reset() {
    this.late = 0;
  }

  get isSlow() { return this.late >= TOLERATED; }

  /** Takes in how long a frame waited for its turn, in milliseconds, while something moves. */
  waited(time) {
    if (!this.isSlow) this.late = time > LATE ? this.late + 1 : 0;
  }

  /** Draws a frame with render(target, width, height), sizes in pixels. */
  draw(isMoving, width, height, render) {
    if (isMoving && !this.isSlow) {
      render(null, width, height);
      return;
    }
    const target = isMoving ? this.target(0, Math.ceil(COARSE * width), Math.ceil(COARSE * height))
      : this.target(SAMPLES, width, height);
    render(target, target.width, target.height);
    this.copy.material.uniforms.picture.value = target.texture;
    this.renderer.render(this.copying, new Camera());
  }

  target(samples, width, height) {
    if (!this.targets.has(samples)) {
      this.targets.set(samples, new WebGLRenderTarget(width, height, {
        samples, magFilter: LinearFilter, generateMipmaps: false,
      }));
    }
    const target = this.targets.get(samples);
    target.setSize(width, height);
    return target;
  }

  dispose() {
    for (const target of this.targets.values()) target.dispose();
    this.copy.geometry.dispose();
    this.copy.material.dispose();
  }
}
