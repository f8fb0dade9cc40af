"""Legt die Baustufen zum Ansehen auf das Brett: python3 art/hotels/probe.py ZIEL.png [--aus ORDNER] [--fein N] [--nur NAME ...]

Hinten steht, was weiter oben fußt; fehlt das Brettbild, liegt eine grüne Fläche darunter.
"""
import argparse
import os
import re
import subprocess

WURZEL = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
lese = argparse.ArgumentParser()
lese.add_argument("ziel")
lese.add_argument("--aus", default=os.path.join(WURZEL, "bilder"))
lese.add_argument("--fein", type=float, default=2)
lese.add_argument("--brett", default=os.path.join(WURZEL, "bilder", "formen", "form1", "picture1.jpg"))
lese.add_argument("--nur", nargs="*", default=[])
args = lese.parse_args()

with open(os.path.join(WURZEL, "model", "Hoteltafel.h"), encoding="utf-8") as f:
    stufen = re.findall(r'S::\w+,\s*"(\w+)",\s*\{(-?\d+), (\d+), (\d+), (\d+)\}', f.read())
groß = "%dx%d!" % (741 * args.fein, 427 * args.fein)
befehl = ["convert"] + ([args.brett, "-resize", groß] if os.path.exists(args.brett) else ["-size", groß[:-1], "xc:#93b561"])
for name, *ort in sorted(stufen, key=lambda s: int(s[2]) + int(s[4])):
    bild = os.path.join(args.aus, "formen", "form1", name.lower() + ".png")
    if os.path.exists(bild) and (not args.nur or any(name.lower().startswith(n) for n in args.nur)):
        l, o, b, h = (int(w) / 12 * args.fein for w in ort)
        befehl += ["(", bild, "-resize", "%dx%d!" % (round(b), round(h)), ")", "-geometry", "%+d%+d" % (round(l), round(o)), "-composite"]
subprocess.run(befehl + [args.ziel], check=True)
