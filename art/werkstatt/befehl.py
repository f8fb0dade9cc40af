"""Der eine Befehl: findet zu jeder Datei in art/liste ihr Skript und lässt sie machen.

Ein Skript ist ein Modul mit einer Routine `mache(datei)`. Es schreibt nach `ziel(datei)` und zeichnet so fein,
wie AUFTRAG es verlangt. Braucht es Blender, so läuft derselbe Befehl in Blender weiter (siehe bühne.py).
"""
import argparse
import importlib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ART = Path(__file__).resolve().parents[1]
WURZEL = ART.parent
PROBE = WURZEL / "build" / "art"             # wohin ein Versuch schreibt
ZWISCHEN = WURZEL / "build" / "zwischen"     # Bilder, aus denen andere werden
FEIN = 4                                     # Bildpunkte je Entwurfspunkt der fertigen Bilder
VORSCHAU = 2
AUFTRAG = argparse.Namespace(ziel=PROBE, fein=FEIN, proben=None, vorschau=False)


def lese(argumente):
    lese = argparse.ArgumentParser(prog="art/machen", description="Macht Bilder, Klänge und Film neu.", epilog=(
        "Ohne --ziel entsteht alles in build/art; `--ziel .` im Wurzelordner ersetzt die ausgelieferten Dateien."))
    lese.add_argument("dateien", nargs="*", metavar="DATEI", help="Datei oder Ordner aus art/liste; sonst alles")
    lese.add_argument("--vorschau", action="store_true", help="halb so fein, wenige Proben")
    lese.add_argument("--ziel", type=Path, default=PROBE, metavar="ORDNER", help="sonst build/art")
    lese.add_argument("--fein", type=float, help=f"Bildpunkte je Entwurfspunkt, sonst {FEIN}")
    lese.add_argument("--proben", type=int, help="Lichtproben je Bildpunkt, sonst was das Skript verlangt")
    lese.add_argument("--skript", help=argparse.SUPPRESS)
    auftrag = lese.parse_args(argumente)
    auftrag.ziel = auftrag.ziel.resolve()
    if auftrag.ziel == WURZEL and not auftrag.skript and (auftrag.vorschau or auftrag.fein or auftrag.proben):
        lese.error("ausgeliefert wird nur in voller Güte")
    auftrag.fein = auftrag.fein or (VORSCHAU if auftrag.vorschau else FEIN)
    vars(AUFTRAG).update(vars(auftrag))


def liste():
    """Datei -> Skript, aus art/liste; was später steht, wird später gemacht."""
    zeilen = (ART / "liste").read_text(encoding="utf-8").splitlines()
    return dict(z.rsplit(maxsplit=1) for z in zeilen if z and not z.startswith("#"))


def gemeint(wort, alle):
    """Die Dateien, die ein Wort der Zeile nennt: eine Datei, ein Ordner oder ein Skript."""
    pfade = os.path.normpath(wort), os.path.relpath(wort, WURZEL)      # vom Wurzelordner aus oder von hier
    dateien = [d for d, skript in alle.items() for pfad in pfade
               if any((name + "/").startswith(pfad + "/") for name in (d, "art/" + skript))]
    return dateien or sys.exit(f"{wort}: davon weiß art/liste nichts")


def haupt(argumente):
    lese(argumente)
    if AUFTRAG.skript:
        return laufe(AUFTRAG.skript, AUFTRAG.dateien)
    alle = liste()
    dateien = {d for wort in AUFTRAG.dateien for d in gemeint(wort, alle)} or set(alle)
    for skript in dict.fromkeys(alle.values()):
        eigene = [d for d in alle if alle[d] == skript and d in dateien]
        if eigene:
            print(f"art/{skript}: {len(eigene)} Dateien nach {AUFTRAG.ziel}", flush=True)
            starte(skript, eigene)


def wie():
    """Der Auftrag als Schalter."""
    return ["--ziel", str(AUFTRAG.ziel), "--fein", str(AUFTRAG.fein), *(["--vorschau"] if AUFTRAG.vorschau else []),
            *(["--proben", str(AUFTRAG.proben)] if AUFTRAG.proben else [])]


def starte(skript, dateien, auftrag=None):
    """Jedes Skript läuft in einem eigenen Vorgang: Blender und die Speicher der Bilder vertragen nur eine Szene."""
    subprocess.run([sys.executable, ART / "machen", "--skript", skript, *(auftrag or wie()), *dateien], check=True)


def laufe(skript, dateien):
    if not skript.endswith(".py"):
        return laufe_programm(ART / skript, dateien)
    mache = importlib.import_module(skript.removesuffix(".py").replace("/", ".")).mache
    for datei in dateien:
        mache(datei)
        print(" ", datei, file=sys.stderr, flush=True)


def laufe_programm(programm, dateien):
    """Ein Programm macht alles auf einmal in einen Ordner; ans Ziel kommt, was verlangt ist."""
    brauche("python3-numpy")
    with tempfile.TemporaryDirectory() as ordner:
        subprocess.run([programm, ordner], check=True)
        for datei in dateien:
            shutil.copy(Path(ordner) / Path(datei).name, ziel(datei))


def ziel(datei):
    """Wohin die Datei kommt; ihr Ordner ist danach da."""
    pfad = AUFTRAG.ziel / datei
    pfad.parent.mkdir(parents=True, exist_ok=True)
    return str(pfad)


def vorhanden(datei):
    """Die Datei dieses Auftrags, sonst die ausgelieferte."""
    return str(next(o / datei for o in (AUFTRAG.ziel, WURZEL) if (o / datei).exists()))


def proben(fertig):
    return AUFTRAG.proben or (min(16, fertig) if AUFTRAG.vorschau else fertig)


def maß():
    """Verhältnis der verlangten zur fertigen Feinheit."""
    return AUFTRAG.fein / FEIN


def zwischen(skript, datei, außer=()):
    """Ein Bild, aus dem ein anderes wird. Es bleibt liegen und gilt, bis sich in art/ etwas außer `außer` ändert."""
    ordner = ZWISCHEN / f"{AUFTRAG.fein:g}-{AUFTRAG.proben or ('v' if AUFTRAG.vorschau else 'f')}"
    pfad = ordner / datei
    quellen = max(p.stat().st_mtime for p in ART.rglob("*.py") if p.name not in außer)
    if not pfad.exists() or pfad.stat().st_mtime < quellen:
        starte(skript, [datei], ["--ziel", str(ordner), *wie()[2:]])
    return str(pfad)


def brauche(*pakete):
    """Installiert, was fehlt, oder sagt, was zu installieren ist."""
    hole = '. ./.ci/bauen.sh; holePakete "$@"'
    if subprocess.run(["sh", "-euc", hole, "sh", *pakete], cwd=WURZEL).returncode:
        sys.exit(1)


def rufe(*wort):
    return subprocess.run([str(w) for w in wort], check=True, capture_output=True).stdout


def als_jpeg(roh, datei, *mehr, güte=90):
    """PNG -> JPEG der ausgelieferten Güte."""
    rufe("convert", roh, *mehr, "-strip", "-quality", güte, ziel(datei))
