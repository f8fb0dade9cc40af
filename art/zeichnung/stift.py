"""Gemeinsames Werkzeug der Zeichnungen: Palette, Papier, Holz, Schatten, Ausgabe.

Eine Zeichnung ist ein SVG-Text in Bildpunkten der fertigen Größe (ein Drittel der Twips).
"""
import math
import os
import random
import subprocess
import sys
import tempfile

HIER = os.path.dirname(os.path.abspath(__file__))
BILDER = os.path.normpath(os.path.join(HIER, "..", "..", "bilder"))

# Palette der Insel: Holz, Papier, Tinte, Messing, Himmel, Meer, Laub, Dach
PAPIER, PAPIER_TIEF, TINTE = "#f6ead0", "#e4cfa4", "#4a3320"
MESSING, MESSING_HELL, MESSING_TIEF = "#d9a441", "#ffe3a0", "#8c5e1c"

SCHRIFT = "URW Gothic"          # klar, rund: Zahlen und Schilder
SCHRIFT_EDEL = "URW Bookman"    # Überschriften, Noten


def grundfilter():
    """Filter, die jede Zeichnung mitführt."""
    return """
<filter id="weich" x="-30%" y="-30%" width="160%" height="160%"><feGaussianBlur stdDeviation="4"/></filter>
<filter id="sehrweich" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="12"/></filter>
<filter id="schatten" x="-30%" y="-30%" width="160%" height="160%">
 <feGaussianBlur in="SourceAlpha" stdDeviation="5"/><feOffset dx="3" dy="5" result="o"/><feFlood flood-color="#2a1608" flood-opacity="0.55"/><feComposite in2="o" operator="in"/><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="schattengross" x="-20%" y="-20%" width="140%" height="140%">
 <feGaussianBlur in="SourceAlpha" stdDeviation="18"/><feOffset dx="10" dy="16" result="o"/><feFlood flood-color="#1c0e04" flood-opacity="0.6"/><feComposite in2="o" operator="in"/><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="korn" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
 <feTurbulence type="fractalNoise" baseFrequency="0.55" numOctaves="3" seed="4"/>
 <feColorMatrix values="0 0 0 0 0.28  0 0 0 0 0.18  0 0 0 0 0.08  0.9 0.5 0 0 -0.52"/>
 <feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="faser" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
 <feTurbulence type="fractalNoise" baseFrequency="0.012 0.02" numOctaves="5" seed="11"/>
 <feColorMatrix values="0 0 0 0 0.45  0 0 0 0 0.30  0 0 0 0 0.12  1.1 0 0 0 -0.42"/>
 <feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="maserung" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
 <feTurbulence type="fractalNoise" baseFrequency="0.0022 0.055" numOctaves="4" seed="7"/>
 <feColorMatrix values="0 0 0 0 0.20  0 0 0 0 0.09  0 0 0 0 0.02  2.6 0 0 0 -0.95"/>
 <feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="maserungfein" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
 <feTurbulence type="fractalNoise" baseFrequency="0.006 0.35" numOctaves="3" seed="21"/>
 <feColorMatrix values="0 0 0 0 0.16  0 0 0 0 0.07  0 0 0 0 0.02  1.9 0 0 0 -0.80"/>
 <feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="praegung" x="-10%" y="-10%" width="120%" height="120%" color-interpolation-filters="sRGB">
 <feGaussianBlur in="SourceAlpha" stdDeviation="2.2" result="a"/>
 <feDiffuseLighting in="a" surfaceScale="5" diffuseConstant="1.05" lighting-color="#fff6e6" result="d">
  <feDistantLight azimuth="225" elevation="52"/></feDiffuseLighting>
 <feComposite in="SourceGraphic" in2="d" operator="arithmetic" k1="1.12" k2="0.10" k3="0" k4="0" result="l"/>
 <feSpecularLighting in="a" surfaceScale="5" specularConstant="0.5" specularExponent="22" lighting-color="#fff2d0" result="s">
  <feDistantLight azimuth="225" elevation="48"/></feSpecularLighting>
 <feComposite in="s" in2="SourceAlpha" operator="in" result="s2"/>
 <feComposite in="l" in2="s2" operator="arithmetic" k2="1" k3="0.55"/>
 <feComposite in2="SourceAlpha" operator="in"/></filter>
"""


def svg(b, h, inhalt, defs=""):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            f'width="{b}" height="{h}" viewBox="0 0 {b} {h}"><defs>{grundfilter()}{defs}</defs>{inhalt}</svg>')


def ausgeben(pfad, text, breite=None, hoehe=None):
    """Zeichnet nach bilder/<pfad>; die Endung entscheidet: png mit Durchsicht oder jpg mit Güte 90."""
    ziel = os.path.join(BILDER, pfad)
    os.makedirs(os.path.dirname(ziel), exist_ok=True)
    groesse = (["-w", str(breite)] if breite else []) + (["-h", str(hoehe)] if hoehe else [])
    with tempfile.TemporaryDirectory() as d:
        quelle, roh = os.path.join(d, "q.svg"), os.path.join(d, "q.png")
        with open(quelle, "w", encoding="utf-8") as f:
            f.write(text)
        subprocess.run(["rsvg-convert", "--unlimited", *groesse, "-o", roh, quelle], check=True)
        if ziel.endswith(".jpg"):
            subprocess.run(["convert", roh, "-background", "#6b4423", "-flatten", "-quality", "90", ziel], check=True)
        else:
            subprocess.run(["convert", roh, "-strip", "-define", "png:compression-level=9", ziel], check=True)
    print(os.path.relpath(ziel, BILDER))


def verlauf(name, farben, x1=0, y1=0, x2=0, y2=1):
    """Linearer Verlauf; farben: Folge von (Ort, Farbe) oder (Ort, Farbe, Deckkraft)."""
    s = "".join(f'<stop offset="{f[0]}" stop-color="{f[1]}" stop-opacity="{f[2] if len(f) > 2 else 1}"/>' for f in farben)
    return f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">{s}</linearGradient>'


def kugel(name, farben, cx=0.36, cy=0.3, r=0.75):
    """Runder Verlauf, Licht von links oben."""
    s = "".join(f'<stop offset="{f[0]}" stop-color="{f[1]}" stop-opacity="{f[2] if len(f) > 2 else 1}"/>' for f in farben)
    return f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}" fx="{cx}" fy="{cy}">{s}</radialGradient>'


def kurve(punkte, zu=False):
    """Glatte Kurve (Catmull-Rom) durch die Punkte als Pfadtext."""
    n = len(punkte)
    def p(i):
        return punkte[i % n] if zu else punkte[min(max(i, 0), n - 1)]
    s = f"M{punkte[0][0]:.2f} {punkte[0][1]:.2f}"
    for i in range(n if zu else n - 1):
        a, b, c, d = p(i - 1), p(i), p(i + 1), p(i + 2)
        s += (f"C{b[0] + (c[0] - a[0]) / 6:.2f} {b[1] + (c[1] - a[1]) / 6:.2f} "
              f"{c[0] - (d[0] - b[0]) / 6:.2f} {c[1] - (d[1] - b[1]) / 6:.2f} {c[0]:.2f} {c[1]:.2f}")
    return s + ("Z" if zu else "")


def mischen(a, b, t):
    """Farbe zwischen a und b (#rrggbb)."""
    za = [int(a[i:i + 2], 16) for i in (1, 3, 5)]
    zb = [int(b[i:i + 2], 16) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(x + (y - x) * t):02x}" for x, y in zip(za, zb))
