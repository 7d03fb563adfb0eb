// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// The floor is the plane y = 0 around the model.
attribute highp vec2 corner;
uniform highp mat4 viewProjection;
uniform highp float extent;
varying highp vec2 ground;

void main()
{
    ground = corner * extent;
    gl_Position = viewProjection * vec4(ground.x, 0.0, ground.y, 1.0);
}
