// The lights that reach a part of the scene, as the programs want them: in the frame of the eye.

import { Vector3 } from 'three';

const LIGHT_FIELDS = ['on', 'color', 'intensity', 'ambientIntensity', 'location', 'attenuation', 'radius',
  'direction', 'cutOffAngle', 'beamWidth'];

const place = new Vector3(), aim = new Vector3();

export class Lights {
  /** @param {?Lights} above  those of the group above, which reach here, too */
  constructor(above = null) {
    this.above = above;
    this.own = [];
    this.below = new Set();
    above?.below.add(this);
    this.materials = new Set();
    this.hasHeadlight = false;
    this.uniforms = {
      lightPlace: { value: null }, lightColor: { value: null }, lightFalloff: { value: null },
      lightAim: { value: null }, lightBeam: { value: null },
    };
    this.resize();
  }

  /** @param {Object3D} frame  what the light's place is relative to; returns what takes it away again */
  add(node, frame, invalidate) {
    const entry = { node, frame, stops: [] };
    for (const name of LIGHT_FIELDS) {
      const field = node.field(name);
      if (field) entry.stops.push(field.listen(invalidate));
    }
    this.own.push(entry);
    this.resize();
    return () => {
      for (const stop of entry.stops) stop();
      this.own.splice(this.own.indexOf(entry), 1);
      this.resize();
    };
  }

  /** One light more where the eye is, straight ahead. */
  set headlight(isOn) {
    if (isOn === this.hasHeadlight) return;
    this.hasHeadlight = isOn;
    this.resize();
  }

  get all() {
    return this.above ? [...this.above.all, ...this.own] : this.own;
  }

  get isHeadlit() {
    return this.above ? this.above.isHeadlit : this.hasHeadlight;
  }

  /** What programs lit by these lights are compiled with. */
  get defines() {
    const isSpot = ({ node }) => node.typeName === 'SpotLight';
    return { LIGHTS: this.count, ...(this.all.some(isSpot) ? { SPOTS: '' } : {}) };
  }

  resize() {
    this.count = this.all.length + (this.isHeadlit ? 1 : 0);
    for (const [name, uniform] of Object.entries(this.uniforms)) {
      uniform.value = new Float32Array((name === 'lightBeam' ? 1 : 4) * this.count);
    }
    for (const material of this.materials) {
      delete material.defines.SPOTS;
      Object.assign(material.defines, this.defines);
      material.needsUpdate = true;
    }
    for (const lights of this.below) lights.resize();
  }

  light(material) {
    Object.assign(material.uniforms, this.uniforms);
    Object.assign(material.defines, this.defines);
    this.materials.add(material);
  }

  /** To be called before each frame. */
  update(camera) {
    const { lightPlace, lightColor, lightFalloff, lightAim, lightBeam } = this.uniforms;
    let n = 0;
    for (const { node, frame } of this.all) {
      const color = node.get('color'), intensity = node.get('on') ? node.get('intensity') : 0;
      const isDirectional = node.typeName === 'DirectionalLight';
      if (isDirectional) {
        place.copy(node.get('direction')).transformDirection(frame.matrixWorld).negate()
          .transformDirection(camera.matrixWorldInverse);
      } else {
        place.copy(node.get('location')).applyMatrix4(frame.matrixWorld).applyMatrix4(camera.matrixWorldInverse);
        const { x, y, z } = node.get('attenuation');
        lightFalloff.value.set([x, y, z, node.get('radius') * frame.matrixWorld.getMaxScaleOnAxis()], 4 * n);
      }
      lightPlace.value.set([place.x, place.y, place.z, isDirectional ? 0 : 1], 4 * n);
      const ambient = intensity > 0 ? node.get('ambientIntensity') / intensity : 0;
      lightColor.value.set([color.r * intensity, color.g * intensity, color.b * intensity, ambient], 4 * n);
      lightBeam.value[n] = -1;
      if (node.typeName === 'SpotLight') {
        aim.copy(node.get('direction')).transformDirection(frame.matrixWorld)
          .transformDirection(camera.matrixWorldInverse);
        lightAim.value.set([aim.x, aim.y, aim.z, node.get('cutOffAngle')], 4 * n);
        lightBeam.value[n] = node.get('beamWidth');
      }
      ++n;
    }
    if (this.isHeadlit) {
      lightPlace.value.set([0, 0, 1, 0], 4 * n);
      lightColor.value.set([1, 1, 1, 0], 4 * n);
      lightBeam.value[n] = -1;
    }
    for (const lights of this.below) lights.update(camera);
  }

  dispose() {
    this.above?.below.delete(this);
  }
}
