// The look of a Shape: its Appearance and Material as a program with its values.

import {
  DataTexture, DoubleSide, FrontSide, GLSL3, LinearFilter, LinearMipmapLinearFilter, ClampToEdgeWrapping,
  Matrix3, RawShaderMaterial, RepeatWrapping, RGBAFormat, UnsignedByteType, Vector4, Color,
} from 'three';
import { BALL_FRAGMENT, BALL_VERTEX, SHAPE_FRAGMENT, SHAPE_VERTEX } from './shaders.js';

const WHITE = { r: 1, g: 1, b: 1 };
const MATERIAL_FIELDS = ['ambientIntensity', 'diffuseColor', 'emissiveColor', 'shininess', 'specularColor',
  'transparency'];

/** Calls `changed` when anything that the look depends on changes; returns what ends it. */
export function followLook(shape, changed) {
  const stops = [];
  const follow = (node, names) => {
    for (const name of names) stops.push(node.field(name).listen(changed));
  };
  follow(shape, ['appearance']);
  const appearance = shape.get('appearance');
  if (appearance) {
    follow(appearance, ['material', 'texture', 'textureTransform']);
    const material = appearance.get('material');
    if (material) follow(material, MATERIAL_FIELDS);
    const texture = appearance.get('texture');
    if (texture?.field('image')) follow(texture, ['image']);
    const frame = appearance.get('textureTransform');
    if (frame) follow(frame, ['center', 'rotation', 'scale', 'translation']);
  }
  return () => {
    for (const stop of stops) stop();
  };
}

/** Whether a shape with this look is to be seen at all: what is wholly transparent can only be pointed at. */
export function isVisible(shape) {
  const material = shape.get('appearance')?.get('material');
  return !material || material.get('transparency') < 1;
}

export class Look {
  /** @param {object} traits  of the geometry: isLit, isFlat, hasColor, hasFlatColor, isSolid, isText, isBalls
   *  @param {object} shared  values of all programs: parallel, screenHeight, pointSize, fogColor */
  constructor(traits, lights, shared) {
    this.traits = traits;
    this.lights = lights;
    this.material = new RawShaderMaterial({
      glslVersion: GLSL3,
      premultipliedAlpha: true,
      forceSinglePass: true,
      vertexShader: traits.isBalls ? BALL_VERTEX : SHAPE_VERTEX,
      fragmentShader: traits.isBalls ? BALL_FRAGMENT : SHAPE_FRAGMENT,
    });
    Object.assign(this.material.uniforms, {
      ...shared,
      diffuse: { value: new Color() },
      emissive: { value: new Color() },
      opacity: { value: 1 },
      ambient: { value: 0 },
      specular: { value: new Vector4() },
      veil: { value: new Vector4(0, 0, 0, 0) },
      map: { value: null },
      mapFrame: { value: new Matrix3() },
    });
    this.texture = null;
    lights.light(this.material);
  }

  /** Takes over the fields of the shape's Appearance. */
  update(shape, hasFog) {
    const { traits, material, material: { uniforms } } = this;
    const appearance = shape.get('appearance'), source = appearance?.get('material') ?? null;
    this.updateTexture(appearance);

    const isLit = traits.isLit && source !== null;
    const transparency = source ? source.get('transparency') : 0;
    const plain = source === null ? WHITE : source.get(isLit ? 'diffuseColor' : 'emissiveColor');
    const emissive = source?.get('emissiveColor') ?? WHITE;
    uniforms.diffuse.value.setRGB(plain.r, plain.g, plain.b);
    uniforms.emissive.value.setRGB(emissive.r, emissive.g, emissive.b);
    uniforms.opacity.value = 1 - transparency;
    uniforms.ambient.value = source?.get('ambientIntensity') ?? 0;
    const glare = source?.get('specularColor') ?? { r: 0, g: 0, b: 0 };
    uniforms.specular.value.set(glare.r, glare.g, glare.b, 128 * (source?.get('shininess') ?? 0));

    const isMapped = traits.isText || (this.texture !== null && traits.hasMap);
    this.define({
      LIT: isLit,
      FLAT: isLit && traits.isFlat,
      SPECULAR: (isLit || traits.isBalls) && glare.r + glare.g + glare.b > 0,
      TWO_SIDED: isLit && !traits.isSolid,
      COLOR: traits.hasColor,
      FLAT_COLOR: traits.hasFlatColor,
      MAPPED: isMapped,
      MAP_GREY: isMapped && this.isGrey,
      TEXT: traits.isText,
      FOG: hasFog,
    });
    material.side = traits.isSolid ? FrontSide : DoubleSide;
    const isClear = uniforms.transparent?.value ?? (transparency > 0 || (isMapped && this.hasAlpha));
    material.transparent = traits.isText || isClear;
    material.depthWrite = !material.transparent;
  }

  define(wanted) {
    const { defines } = this.material;
    for (const [name, isWanted] of Object.entries(wanted)) {
      if (Boolean(isWanted) === (name in defines)) continue;
      if (isWanted) defines[name] = '';
      else delete defines[name];
      this.material.needsUpdate = true;
    }
  }

  updateTexture(appearance) {
    const node = appearance?.get('texture') ?? null;
    const image = node?.get('image') ?? null;
    if (this.image !== image) {
      this.texture?.dispose();
      this.image = image;
      this.texture = image && image.width > 0 && image.height > 0 ? textureOf(image) : null;
      this.isGrey = image !== null && image.components < 3;
      this.hasAlpha = image !== null && image.components % 2 === 0;
    }
    if (this.texture === null) return;
    this.texture.wrapS = node.get('repeatS') ? RepeatWrapping : ClampToEdgeWrapping;
    this.texture.wrapT = node.get('repeatT') ? RepeatWrapping : ClampToEdgeWrapping;
    const { uniforms } = this.material;
    uniforms.map.value = this.texture;
    const frame = appearance.get('textureTransform');
    if (!frame) {
      uniforms.mapFrame.value.identity();
      return;
    }
    const move = frame.get('translation'), scale = frame.get('scale'), center = frame.get('center');
    const angle = frame.get('rotation'), cos = Math.cos(angle), sin = Math.sin(angle);
    // As in the standard: moved, turned and scaled about the centre, in this order.
    const x = move.x + center.x, y = move.y + center.y;
    const of = (u, v) => [scale.x * (cos * u - sin * v), scale.y * (sin * u + cos * v)];
    const [ux, uy] = of(1, 0), [vx, vy] = of(0, 1), [ox, oy] = of(x - 0, y - 0);
    uniforms.mapFrame.value.set(ux, vx, ox - center.x, uy, vy, oy - center.y, 0, 0, 1);
  }

  dispose() {
    this.texture?.dispose();
    this.lights.materials.delete(this.material);
    this.material.dispose();
  }
}

function textureOf({ width, height, components, pixels }) {
  const data = new Uint8Array(4 * width * height);
  const isGrey = components < 3;
  for (let n = 0, from = 0, to = 0; n < width * height; ++n, from += components, to += 4) {
    data[to] = pixels[from];
    data[to + 1] = pixels[isGrey ? from : from + 1];
    data[to + 2] = pixels[isGrey ? from : from + 2];
    data[to + 3] = components % 2 === 0 ? pixels[from + components - 1] : 255;
  }
  const texture = new DataTexture(data, width, height, RGBAFormat, UnsignedByteType);
  texture.magFilter = LinearFilter;
  texture.minFilter = LinearMipmapLinearFilter;
  texture.generateMipmaps = true;
  texture.anisotropy = 4;
  texture.needsUpdate = true;
  return texture;
}
