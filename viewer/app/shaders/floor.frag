// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A pool of light, a fine grid that fades with the distance, and soft shadows under the pieces.
#ifdef GL_ES
#extension GL_OES_standard_derivatives : enable
#endif

const int FootCount = 4;
uniform highp vec3 feet[FootCount];
uniform highp float extent;
varying highp vec2 ground;

// How much of the pixel at `at` is covered by lines of the grid with this spacing; `width` is the
// pixel's extent on the floor. Where lines would crowd, they fade.
highp float lineAt(highp vec2 at, highp float spacing, highp vec2 width)
{
    highp vec2 off = abs(fract(at / spacing + 0.5) - 0.5) * spacing;
    highp vec2 cover = clamp(1.2 - off / width, 0.0, 1.0) * min(vec2(1.0), spacing / (width * 8.0));
    return max(cover.x, cover.y);
}

void main()
{
    highp vec2 width = fwidth(ground);
    highp float radius = length(ground);
    highp float fade = 1.0 - smoothstep(0.1, 0.95, radius / extent);

    highp float lines = 0.055 * lineAt(ground, 0.5, width) + 0.075 * lineAt(ground, 2.5, width);
    highp float pool = 0.10 * exp(-radius * radius * 0.10);

    highp float light = 1.0;
    for (int i = 0; i < FootCount; ++i) {
        highp vec2 away = ground - feet[i].xy;
        highp float near = length(away) / feet[i].z;
        light *= 1.0 - 0.72 * exp(-near * near * 1.1);
        // The key light stands to the left: a faint long shadow leans to the right.
        highp vec2 leaning = away - vec2(0.9, -0.25) * feet[i].z;
        light *= 1.0 - 0.30 * exp(-dot(leaning, leaning) / (feet[i].z * feet[i].z * 2.4));
    }
    highp float bright = pool + lines * light;
    highp float dark = 1.0 - light;
    // Light is added and shadow covers, in one premultiplied colour.
    gl_FragColor = vec4(vec3(0.92, 0.96, 1.0) * bright * fade, dark * fade);
}
