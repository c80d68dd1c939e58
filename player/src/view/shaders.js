// The GLSL programs that draw worlds: the standard's lighting, balls, and the background's sky.

/** Lighting as in the standard's 4.14, in the frame of the eye. LIGHTS is their number; a light's place has
 *  w = 0 where the light comes from one direction, which is then the way towards it. */
const LIGHTING = `
#if LIGHTS > 0
uniform vec4 lightPlace[LIGHTS];   // w: 1 where it is a place
uniform vec4 lightColor[LIGHTS];   // colour by intensity; a: ambient intensity by intensity's inverse
uniform vec4 lightFalloff[LIGHTS]; // attenuation; a: radius
#ifdef SPOTS
uniform vec4 lightAim[LIGHTS];     // direction; a: cutOffAngle
uniform float lightBeam[LIGHTS];   // beamWidth; below 0: no spot
#endif
#endif
uniform float ambient;
uniform vec4 specular;             // a: exponent
uniform bool parallel;

// What reaches the front and the back of a face: light for the diffuse colour, and glare.
void light(vec3 at, vec3 normal, out vec3 front, out vec3 back, out vec3 glare, out vec3 backGlare) {
  front = vec3(0.0);
  back = vec3(0.0);
  glare = vec3(0.0);
  backGlare = vec3(0.0);
#if LIGHTS > 0
#ifdef SPECULAR
  vec3 toEye = parallel ? vec3(0.0, 0.0, 1.0) : normalize(-at);
#endif
  for (int i = 0; i < LIGHTS; ++i) {
    vec3 way = lightPlace[i].xyz - at * lightPlace[i].w;
    float far = length(way);
    way /= far;
    vec3 tint = lightColor[i].rgb;
    if (lightPlace[i].w > 0.0) {
      vec4 falloff = lightFalloff[i];
      tint *= step(far, falloff.a) / max(1.0, falloff.x + far * (falloff.y + far * falloff.z));
    }
#ifdef SPOTS
    if (lightBeam[i] >= 0.0) {
      float angle = acos(clamp(-dot(way, lightAim[i].xyz), -1.0, 1.0)), edge = lightAim[i].a;
      tint *= clamp((angle - edge) / min(lightBeam[i] - edge, -0.0001), 0.0, 1.0);
    }
#endif
    float slope = dot(normal, way), always = lightColor[i].a * ambient;
    front += tint * (always + max(slope, 0.0));
#ifdef TWO_SIDED
    back += tint * (always + max(-slope, 0.0));
#endif
#ifdef SPECULAR
    float shine = dot(normal, normalize(way + toEye));
    glare += tint * specular.rgb * pow(max(shine, 0.0), specular.a);
#ifdef TWO_SIDED
    backGlare += tint * specular.rgb * pow(max(-shine, 0.0), specular.a);
#endif
#endif
  }
#endif
}
`;

const FRONT = `
precision highp float;
precision highp int;
#ifdef FLAT
#define SHADE flat
#else
#define SHADE smooth
#endif
`;

/** Faces, lines, points and texts. LIT faces have a normal and are lit at their vertices: light at every pixel
 *  costs four times as much where pixels are drawn in software. FLAT ones have the light of the last vertex of
 *  each triangle. */
export const SHAPE_VERTEX = `${FRONT}
uniform mat4 modelViewMatrix, projectionMatrix;
uniform mat3 normalMatrix;
uniform vec3 diffuse, emissive;
uniform float pointSize;
in vec3 position;
#ifdef COLOR
in vec3 color;
#ifdef FLAT_COLOR
flat out vec3 baseColor;
#else
out vec3 baseColor;
#endif
#endif
#ifdef MAPPED
uniform mat3 mapFrame;
in vec2 uv;
out vec2 mapPlace;
#endif
#ifdef FOG
out float eyeDistance;
#endif
#ifdef LIT
in vec3 normal;
${LIGHTING}
SHADE out vec3 frontLight;
#ifdef TWO_SIDED
SHADE out vec3 backLight;
#endif
#ifdef SPECULAR
SHADE out vec3 frontGlare, backGlare;
#endif
#endif

void main() {
  vec4 at = modelViewMatrix * vec4(position, 1.0);
  gl_Position = projectionMatrix * at;
  gl_PointSize = pointSize;
#ifdef COLOR
  baseColor = color;
#endif
#ifdef MAPPED
  mapPlace = (mapFrame * vec3(uv, 1.0)).xy;
#endif
#ifdef FOG
  eyeDistance = length(at.xyz);
#endif
#ifdef LIT
  vec3 n = normalize(normalMatrix * normal);
  vec3 other, glare, otherGlare;
  light(at.xyz, n, frontLight, other, glare, otherGlare);
#ifdef TWO_SIDED
  backLight = other;
#endif
#ifdef SPECULAR
  frontGlare = glare;
  backGlare = otherGlare;
#endif
#endif
}
`;

export const SHAPE_FRAGMENT = `${FRONT}
uniform vec3 diffuse, emissive;
uniform float opacity;
uniform vec4 veil; // what is faded goes towards this colour, by a
#ifdef COLOR
#ifdef FLAT_COLOR
flat in vec3 baseColor;
#else
in vec3 baseColor;
#endif
#endif
#ifdef MAPPED
uniform sampler2D map;
in vec2 mapPlace;
#endif
#ifdef FOG
uniform vec4 fogColor; // a: visibilityRange
in float eyeDistance;
#endif
#ifdef LIT
SHADE in vec3 frontLight;
#ifdef TWO_SIDED
SHADE in vec3 backLight;
#endif
#ifdef SPECULAR
SHADE in vec3 frontGlare, backGlare;
#endif
#endif
out vec4 fragment;

void main() {
#ifdef COLOR
  vec4 base = vec4(baseColor, opacity);
#else
  vec4 base = vec4(diffuse, opacity);
#endif
#ifdef TEXT
  base.a *= texture(map, mapPlace).r;
  if (base.a < 0.01) discard;
#elif defined(MAPPED)
  vec4 texel = texture(map, mapPlace);
#ifdef MAP_GREY
  base *= texel;
#else
  base = vec4(texel.rgb, opacity * texel.a);
#endif
  if (base.a < 0.004) discard;
#endif
#ifdef LIT
#ifdef TWO_SIDED
  vec3 shade = base.rgb * (gl_FrontFacing ? frontLight : backLight) + emissive;
#else
  vec3 shade = base.rgb * frontLight + emissive;
#endif
#ifdef SPECULAR
  shade += gl_FrontFacing ? frontGlare : backGlare;
#endif
#else
  vec3 shade = base.rgb;
#endif
#ifdef FOG
  shade = mix(fogColor.rgb, shade, clamp(1.0 - eyeDistance / fogColor.a, 0.0, 1.0));
#endif
  fragment = vec4(mix(shade, veil.rgb, veil.a) * base.a, base.a);
}
`;

/** Balls as squares of pixels. The way to each light is that from a ball's centre. The depth is that of the
 *  point nearest to the eye, so that walls do not cut a ball. */
export const BALL_VERTEX = `${FRONT}
uniform mat4 modelViewMatrix, projectionMatrix;
uniform float screenHeight; // in pixels
uniform bool transparent, parallel;
#if LIGHTS > 0
uniform vec4 lightPlace[LIGHTS], lightFalloff[LIGHTS];
flat out vec4 way[LIGHTS]; // of length 1; a: how much of the light is left
#endif
in vec3 position;
in vec4 ballColor;
in float ballRadius;
flat out vec4 color;
flat out float radius; // in pixels

void main() {
  vec3 centre = (modelViewMatrix * vec4(position, 1.0)).xyz;
  float size = ballRadius * length(modelViewMatrix[0].xyz), far = length(centre);
  gl_Position = projectionMatrix * vec4(centre, 1.0);
  radius = size / gl_Position.w * projectionMatrix[1][1] * screenHeight / 2.0;
  gl_PointSize = 2.0 * radius + 1.0;
  vec3 nearest = parallel ? centre + vec3(0.0, 0.0, size) : centre * (1.0 - min(size / far, 0.99));
  vec4 front = projectionMatrix * vec4(nearest, 1.0);
  gl_Position.z = front.z / front.w * gl_Position.w;
  color = ballColor;
#if LIGHTS > 0
  for (int i = 0; i < LIGHTS; ++i) {
    vec3 path = lightPlace[i].xyz - centre * lightPlace[i].w;
    float distance = length(path), rest = 1.0;
    if (lightPlace[i].w > 0.0) {
      vec4 falloff = lightFalloff[i];
      rest = step(distance, falloff.a) / max(1.0, falloff.x + distance * (falloff.y + distance * falloff.z));
    }
    way[i] = vec4(path / distance, rest);
  }
#endif
  if (radius <= 0.0 || transparent != (color.a < 1.0)) gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
}
`;

export const BALL_FRAGMENT = `${FRONT}
#if LIGHTS > 0
uniform vec4 lightColor[LIGHTS];
flat in vec4 way[LIGHTS];
#endif
uniform float ambient;
uniform vec4 specular; // a: exponent
uniform vec4 veil;
flat in vec4 color;
flat in float radius;
out vec4 fragment;

void main() {
  vec2 at = (gl_PointCoord - 0.5) * (2.0 + 1.0 / radius);
  float square = dot(at, at);
  float coverage = min((1.0 - sqrt(square)) * radius + 0.5, 1.0);
  if (coverage <= 0.0) discard;
  vec3 normal = vec3(at.x, -at.y, sqrt(max(1.0 - square, 0.0)));
  vec3 sum = vec3(0.0), glare = vec3(0.0);
#if LIGHTS > 0
  for (int i = 0; i < LIGHTS; ++i) {
    vec3 tint = lightColor[i].rgb * way[i].a;
    sum += tint * (lightColor[i].a * ambient + max(dot(normal, way[i].xyz), 0.0));
#ifdef SPECULAR
    vec3 middle = normalize(way[i].xyz + vec3(0.0, 0.0, 1.0));
    glare += tint * pow(max(dot(normal, middle), 0.0), specular.a);
#endif
  }
#endif
  float alpha = color.a * coverage;
  fragment = vec4(mix(sum * color.rgb + glare * specular.rgb, veil.rgb, veil.a) * alpha, alpha);
}
`;

/** Sky and ground: bands of colour by the angle from straight up, drawn behind everything. */
export const SKY_VERTEX = `${FRONT}
uniform mat4 toWorld; // from the corners of the screen to directions
in vec3 position;
out vec3 direction;

void main() {
  gl_Position = vec4(position.xy, 1.0, 1.0);
  direction = (toWorld * vec4(position.xy, 1.0, 1.0)).xyz;
}
`;

export const SKY_FRAGMENT = `${FRONT}
uniform vec4 sky[SKY];       // colour; a: angle from straight up
uniform vec4 ground[GROUND]; // colour; a: angle from straight down
in vec3 direction;
out vec4 fragment;

void main() {
  float angle = acos(clamp(normalize(direction).y, -1.0, 1.0)), below = 3.14159265 - angle;
  vec3 color = sky[0].rgb;
  for (int i = 1; i < SKY; ++i) {
    color = mix(color, sky[i].rgb, clamp((angle - sky[i - 1].a) / max(sky[i].a - sky[i - 1].a, 0.00001), 0.0, 1.0));
  }
  if (GROUND > 1 && below < ground[GROUND - 1].a) {
    color = ground[0].rgb;
    for (int i = 1; i < GROUND; ++i) {
      float part = (below - ground[i - 1].a) / max(ground[i].a - ground[i - 1].a, 0.00001);
      color = mix(color, ground[i].rgb, clamp(part, 0.0, 1.0));
    }
  }
  fragment = vec4(color, 1.0);
}
`;
