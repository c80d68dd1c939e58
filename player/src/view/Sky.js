// The Background behind the scene: one colour, or bands of colours of sky and ground.

import { BufferAttribute, BufferGeometry, GLSL3, Matrix4, Mesh, RawShaderMaterial } from 'three';
import { SKY_FRAGMENT, SKY_VERTEX } from './shaders.js';

const FIELDS = ['skyColor', 'skyAngle', 'groundColor', 'groundAngle'];

export class Sky {
  constructor(parent, changed) {
    this.parent = parent;
    this.changed = changed;
    this.stops = [];
    this.mesh = null;
    this.color = { r: 0, g: 0, b: 0 }; // that the picture is cleared with
    this.toWorld = { value: new Matrix4() };
  }

  /** Shows a Background, or black. */
  set(node) {
    for (const stop of this.stops) stop();
    this.stops = node === null ? [] : FIELDS.map((name) => node.field(name).listen(() => this.show(node)));
    this.show(node);
  }

  show(node) {
    this.clear();
    const sky = bands(node, 'sky'), ground = bands(node, 'ground');
    this.color = { r: sky[0], g: sky[1], b: sky[2] };
    if (sky.length > 4 || ground.length > 4) this.build(sky, ground);
    this.changed();
  }

  build(sky, ground) {
    const geometry = new BufferGeometry();
    geometry.setAttribute('position', new BufferAttribute(new Float32Array([-1, -1, 0, 3, -1, 0, -1, 3, 0]), 3));
    const material = new RawShaderMaterial({
      glslVersion: GLSL3, vertexShader: SKY_VERTEX, fragmentShader: SKY_FRAGMENT, depthTest: false, depthWrite: false,
      defines: { SKY: sky.length / 4, GROUND: ground.length / 4 },
      uniforms: {
        sky: { value: new Float32Array(sky) }, ground: { value: new Float32Array(ground) }, toWorld: this.toWorld,
      },
    });
    this.mesh = new Mesh(geometry, material);
    this.mesh.frustumCulled = false;
    this.mesh.matrixAutoUpdate = false;
    this.mesh.renderOrder = -1;
    this.parent.add(this.mesh);
  }

  clear() {
    if (this.mesh === null) return;
    this.mesh.removeFromParent();
    this.mesh.geometry.dispose();
    this.mesh.material.dispose();
    this.mesh = null;
  }

  dispose() {
    for (const stop of this.stops) stop();
    this.clear();
  }
}

/** Four numbers a band: its colour, and the angle at which it is reached. */
function bands(node, name) {
  const colors = node?.get(`${name}Color`) ?? [], angles = node?.get(`${name}Angle`) ?? [];
  const list = [];
  for (let n = 0; 3 * n + 2 < colors.length; ++n) {
    list.push(colors[3 * n], colors[3 * n + 1], colors[3 * n + 2], n === 0 ? 0 : angles[n - 1] ?? Math.PI);
  }
  return list.length > 0 ? list : [0, 0, 0, 0];
}
