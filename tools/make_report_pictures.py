#!/usr/bin/env python3
"""Draws the banner pictures at the head of the report pages (data/pages/*.jpg).

Each banner is 400x80: a coloured band, a simple pictogram drawn from lines and shapes on the
left, and the page's word in DejaVu Sans Bold. Everything is drawn here with ImageMagick's
`convert`; no outside picture is used. Run it from anywhere; it rewrites the ten JPEGs:

    tools/make_report_pictures.py [output folder]
"""
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "..", "data", "pages")
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf"
W, H = 400, 80

# Pictograms, drawn in white inside a 60x60 box whose top left is (10, 10).
PLATE = "circle 40,40 40,14 circle 40,40 40,32"
PICTOS = {
    # a plate with a fork and a knife
    "nutrition": ["fill none stroke white stroke-width 4 " + PLATE,
                  "stroke white stroke-width 3 line 14,18 14,62 line 66,18 66,62"],
    # a runner: head, body, arms, legs
    "training": ["fill white stroke none circle 46,18 46,12",
                 "fill none stroke white stroke-width 5 line 44,26 36,46 line 36,46 48,60 line 36,46 24,60 "
                 "line 42,30 54,38 line 42,30 28,34"],
    # a dumbbell
    "gymsheets": ["fill white stroke none rectangle 14,28 22,52 rectangle 24,22 32,58 rectangle 48,22 56,58 "
                  "rectangle 58,28 66,52 rectangle 32,37 48,43"],
    # a scale: platform and dial
    "WeighIn": ["fill none stroke white stroke-width 4 roundrectangle 12,14 68,66 6,6",
                "fill none stroke white stroke-width 3 circle 40,34 40,22 line 40,34 48,27"],
    # a heart with a pulse line
    "wellness": ["fill white stroke none path 'M 40,64 L 16,38 A 12,12 0 0,1 40,22 A 12,12 0 0,1 64,38 Z'",
                 "fill none stroke '#2a6f97' stroke-width 3 polyline 18,40 30,40 35,30 41,50 46,40 62,40"],
    # a bar chart
    "totals": ["fill white stroke none rectangle 14,46 24,64 rectangle 29,34 39,64 rectangle 44,24 54,64 "
               "rectangle 59,14 69,64"],
    # a person's bust
    "athleteinfo": ["fill white stroke none circle 40,26 40,14",
                    "fill white stroke none path 'M 18,66 A 22,22 0 0,1 62,66 Z'"],
    # a clipboard with lines
    "workouts": ["fill none stroke white stroke-width 4 roundrectangle 16,14 64,68 4,4",
                 "fill white stroke none rectangle 30,10 50,18",
                 "stroke white stroke-width 3 line 24,30 56,30 line 24,42 56,42 line 24,54 48,54"],
    # a cooking pot with steam
    "recipes": ["fill white stroke none rectangle 16,38 64,64 rectangle 10,36 70,40",
                "fill none stroke white stroke-width 3 path 'M 28,30 Q 24,24 28,18' path 'M 40,30 Q 36,24 40,18' "
                "path 'M 52,30 Q 48,24 52,18'"],
    # a shopping cart
    "shopping": ["fill none stroke white stroke-width 4 polyline 10,18 20,18 28,50 62,50 68,28 24,28",
                 "fill white stroke none circle 32,60 32,55 circle 58,60 58,55"],
}

BANNERS = [  # file, word, band colour
    ("nutrition", "Nutrition", "#3d8b40"),
    ("training", "Training", "#c0562f"),
    ("gymsheets", "Strength", "#5b4a8a"),
    ("WeighIn", "Weigh In", "#2f6f8f"),
    ("wellness", "Wellness", "#2a6f97"),
    ("totals", "Totals", "#7a5b2e"),
    ("athleteinfo", "Athlete", "#44617b"),
    ("workouts", "Workouts", "#6b3f69"),
    ("recipes", "Recipes", "#a2672a"),
    ("shopping", "Shopping", "#35806d"),
]


def draw(name, word, colour):
    target = os.path.join(OUT, name + ".jpg")
    cmd = ["convert", "-size", f"{W}x{H}", f"xc:{colour}",
           # a lighter stripe along the bottom edge
           "-fill", "#ffffff40", "-draw", f"rectangle 0,{H - 6} {W},{H}"]
    for d in PICTOS[name]:
        cmd += ["-draw", d]
    cmd += ["-font", FONT, "-pointsize", "34", "-fill", "white", "-gravity", "West",
            "-annotate", "+96+0", word, "-quality", "90", "-strip", target]
    subprocess.run(cmd, check=True)
    return target


def main():
    os.makedirs(OUT, exist_ok=True)
    for name, word, colour in BANNERS:
        print(draw(name, word, colour))


if __name__ == "__main__":
    main()
