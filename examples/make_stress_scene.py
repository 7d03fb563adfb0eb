#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Writes stress_1000.json: the seat plan of a theatre, one overlay a seat, 1,000 seats.

The plan is the same with every run, so that pictures and measurements can be compared. Another
number of rows and seats gives a scene of another size:

    make_stress_scene.py [rows [seats [file]]]
"""

import json
import math
import pathlib
import random
import sys

STALLS, CIRCLE, BALCONY = "#3f7f93", "#7a5fa0", "#9a7440"
SOLD, KEPT = "#59616e", "#f2b45a"


def place(row, seat, rows, seats):
    """Rows are arcs around the stage, which lies below the lower edge of the view."""
    along = (seat + 0.5) / seats - 0.5
    aisle = math.copysign(0.012, along) if abs(along) < 0.34 else math.copysign(0.03, along)
    depth = (row + 0.5) / rows
    x = 0.5 + (along + aisle) * 0.9
    y = 0.06 + 0.76 * depth + 0.10 * (1.0 - (2.0 * along) ** 2)
    return [round(x, 4), round(y, 4)]


def seat_overlay(row, seat, rows, seats, chance):
    section = STALLS if row < rows * 0.56 else CIRCLE if row < rows * 0.8 else BALCONY
    state = chance.random()
    overlay = {"kind": "overlay", "name": f"Seat {row + 1}-{seat + 1}"}
    if state > 0.97:
        overlay.update(type="image", image="images/mark.svg")
    else:
        overlay.update(
            text=f"{seat + 1:02}",
            font="DejaVu Sans Mono",
            fontColor="#14181f" if state > 0.9 else "#c4ccd8" if state > 0.45 else "#ffffff",
            backgroundColor=KEPT if state > 0.9 else SOLD if state > 0.45 else section,
            backgroundTransparency="#202020" if state > 0.9 else "#606060",
        )
    overlay.update(sizeType="relative", size=0.017, position=place(row, seat, rows, seats))
    if state > 0.995:
        overlay["enabled"] = False
    return overlay


def make(rows, seats):
    chance = random.Random(1000)
    return [
        {
            "kind": "group",
            "name": f"Row {row + 1}",
            "children": [seat_overlay(row, seat, rows, seats, chance) for seat in range(seats)],
        }
        for row in range(rows)
    ]


def main():
    rows = int(sys.argv[1]) if len(sys.argv) > 1 else 25
    seats = int(sys.argv[2]) if len(sys.argv) > 2 else 40
    path = pathlib.Path(sys.argv[3] if len(sys.argv) > 3
                        else pathlib.Path(__file__).parent / "stress_1000.json")
    scene = {"format": "overlay-scene", "version": 1, "overlays": make(rows, seats)}
    path.write_text(json.dumps(scene, indent=1) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
