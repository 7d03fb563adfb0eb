// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// A rectangle over the whole view; `corner` runs from -1 to 1.
attribute highp vec2 corner;
varying highp vec2 place;

void main()
{
    place = corner * 0.5 + 0.5;
    gl_Position = vec4(corner, 0.0, 1.0);
}
