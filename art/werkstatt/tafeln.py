"""Die Tafeln des Spiels, wie tafeln.cpp sie ausgibt, und was auf dem Brett aus ihnen folgt. Orte in Twips."""
import json
import subprocess

from befehl import WURZEL, brauche

BAUORDNER = WURZEL / "build-werkstatt"


def lies():
    brauche("g++", "cmake", "ninja-build")
    for befehl in (["-S", WURZEL, "-B", BAUORDNER, "-G", "Ninja", "-DVELMO_FENSTER=OFF"],
                   ["--build", BAUORDNER, "--target", "tafeln"]):
        subprocess.run(["cmake", *befehl], check=True, stdout=subprocess.DEVNULL)
    return json.loads(subprocess.run([BAUORDNER / "tafeln"], check=True, capture_output=True).stdout)


TAFELN = lies()
FELDER = {f["nummer"]: f for f in TAFELN["felder"]}
PLÄTZE = {e["nummer"]: e for e in TAFELN["eingänge"]}
STUFEN = {s["bild"].lower(): s for s in TAFELN["stufen"]}
HOTELS = {h["name"]: h for h in TAFELN["hotels"]}
WAGEN = TAFELN["wagen"]

# Bank und Rathaus sind Steuerelemente der Brettform, keine Zeilen einer Tafel.
BANK = (5040, 4200, 1008, 756)
RATHAUS = (5544, 600, 468, 528)
BRETT = TAFELN["brett"]["ort"]
_, _, WAGEN_B, WAGEN_H = WAGEN[0]["ort"]

# Wegpunkte der Straße nach einem Feld, wo die Mitten der Felder allein sie nicht führen
ZWISCHEN = {30: [(612, 184), (648, 196)]}
FAHRBAHN = 40               # Breite mit Bordsteinen


def punkte(rechteck):
    """Rechteck der Tafeln in Entwurfspunkten."""
    return tuple(w / 12 for w in rechteck)


def mitte(feld):
    """Mitte eines Feldes in Entwurfspunkten."""
    l, o = FELDER[feld]["ort"]
    return (l + WAGEN_B / 2) / 12, (o + WAGEN_H / 2) / 12


def straßenpunkte():
    """Die Mitte der Straße in Entwurfspunkten, von Feld zu Feld."""
    return [p for f in FELDER for p in [mitte(f)] + ZWISCHEN.get(f, [])]
