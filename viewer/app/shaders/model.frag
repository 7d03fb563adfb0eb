// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Three lights of a photo studio: a warm key from the left, a cool fill from the right and a rim from
// behind; two soft boxes and the room mirror in what is polished.
uniform highp vec3 eye;
varying highp vec3 at;
varying highp vec3 facing;
varying mediump vec3 albedo;
varying mediump float polish;

const mediump vec3 KeyDirection = vec3(-0.55, 0.68, 0.48);
const mediump vec3 FillDirection = vec3(0.83, 0.28, 0.48);
const mediump vec3 RimDirection = vec3(0.30, 0.46, -0.83);

mediump float boxAt(highp vec3 ray, highp vec3 direction, highp vec2 halfSize, highp float soft)
{
    highp vec3 side = normalize(cross(vec3(0.0, 1.0, 0.0), direction));
    highp vec3 up = cross(direction, side);
    highp float front = dot(ray, direction);
    highp vec2 hit = vec2(dot(ray, side), dot(ray, up)) / max(front, 0.05);
    highp vec2 inside = smoothstep(-halfSize - soft, -halfSize, hit)
        * (1.0 - smoothstep(halfSize, halfSize + soft, hit));
    return inside.x * inside.y * step(0.05, front);
}

mediump vec3 room(highp vec3 ray)
{
    mediump vec3 wall = mix(vec3(0.05, 0.055, 0.065), vec3(0.16, 0.18, 0.21), ray.y * 0.5 + 0.5);
    mediump vec3 key = vec3(3.1, 2.9, 2.6) * boxAt(ray, KeyDirection, vec2(0.26, 0.46), 0.05);
    mediump vec3 fill = vec3(0.75, 0.95, 1.2) * boxAt(ray, FillDirection, vec2(0.16, 0.7), 0.12);
    return wall + key + fill;
}

void main()
{
    highp vec3 toEye = normalize(eye - at);
    highp vec3 n = normalize(facing);

    mediump float key = max(dot(n, KeyDirection), 0.0);
    mediump float fill = max(dot(n, FillDirection) * 0.8 + 0.2, 0.0);
    mediump float rim = pow(max(dot(n, RimDirection), 0.0), 2.0);
    mediump vec3 diffuse = key * vec3(1.34, 1.22, 1.05) + fill * vec3(0.13, 0.17, 0.24)
        + rim * vec3(0.40, 0.44, 0.5);
    mediump vec3 ambient = mix(vec3(0.07, 0.065, 0.06), vec3(0.15, 0.17, 0.20), n.y * 0.5 + 0.5);

    mediump float grazing = pow(1.0 - max(dot(n, toEye), 0.0), 5.0);
    mediump float mirror = mix(0.04, 0.9, grazing) * polish;
    mediump vec3 halfway = normalize(KeyDirection + toEye);
    mediump float sheen = pow(max(dot(n, halfway), 0.0), mix(12.0, 60.0, polish)) * 0.14;
    mediump vec3 light = albedo * (diffuse + ambient)
        + room(reflect(-toEye, n)) * mirror + vec3(1.0, 0.95, 0.88) * sheen;

    // Bright light rolls off instead of clipping; then to the display's curve.
    light = light * (1.0 + light * 0.12) / (1.0 + light * 0.62);
    gl_FragColor = vec4(pow(light, vec3(1.0 / 2.2)), 1.0);
}
