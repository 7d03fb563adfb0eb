// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The studio's wall: a vertical gradient with a glow behind the model. The grain of one grey level
// keeps the slow gradient free of bands.
uniform mediump vec3 above;
uniform mediump vec3 below;
uniform mediump vec3 glow;
uniform mediump float aspect;
varying highp vec2 place;

void main()
{
    mediump vec3 color = mix(below, above, smoothstep(0.0, 1.0, place.y));
    highp vec2 away = (place - vec2(0.5, 0.56)) * vec2(aspect, 1.0);
    color += glow * exp(-dot(away, away) * 3.2);
    highp float grain = fract(sin(dot(gl_FragCoord.xy, vec2(12.9898, 78.233))) * 43758.5453);
    gl_FragColor = vec4(color + (grain - 0.5) / 255.0, 1.0);
}
