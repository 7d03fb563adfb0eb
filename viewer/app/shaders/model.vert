// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

attribute highp vec3 position;
attribute highp vec3 normal;
attribute mediump vec3 color;
attribute mediump float gloss;
uniform highp mat4 viewProjection;
varying highp vec3 at;
varying highp vec3 facing;
varying mediump vec3 albedo;
varying mediump float polish;

void main()
{
    at = position;
    facing = normal;
    albedo = color;
    polish = gloss;
    gl_Position = viewProjection * vec4(position, 1.0);
}
