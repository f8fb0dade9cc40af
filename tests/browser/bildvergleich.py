"""Die Seite neben dem Fenster: dieselben Augenblicke, einmal von Chromium gezeigt und einmal vom Schaukasten. Kanten der
Buchstaben dürfen anders geglättet sein, mehr nicht."""
import io
import pathlib
import subprocess
import tempfile
import threading

import numpy
from PIL import Image

import server
import treiber
from spiel import Spiel

ZELLE = 4       # Punkte des Entwurfs: so weit mitteln sich Kanten heraus
DEUTLICH = 26   # von 255: eine Zelle, die mehr abweicht, ist anders
SPIELRAUM = 0.012  # Anteil der Zellen, die anders sein dürfen
VOLLER_TEXT = {"hilfe": 0.023}  # so viele, wo fast alles Schrift ist: jede Zeile rückt auf ganze Bildpunkte
FAKTOREN = (1, 2)

# Wie die Seite und wie der Schaukasten zu dem Augenblick kommen, einer nach dem anderen.
AUGENBLICKE = {
    "menü": (lambda s: None, "menü"),
    "hilfe": (lambda s: s.drücke("Menu.Hilfe"), "klick Menu.Hilfe / ruhe"),
    "über": (lambda s: (s.drücke("frmHilfe.Command1"), s.drücke("Menu.Über")),
             "klick frmHilfe.Command1 / ruhe / klick Menu.Über / ruhe"),
    "bestenliste": (lambda s: (s.drücke("Überf.OK"), s.drücke("Menu.Spiel")),
                    "klick Überf.OK / ruhe / klick Menu.Spiel / ruhe"),
    "anmeldung": (lambda s: (s.drücke("HoF.SSCommand1"), s.drücke("Menu.Spieln"), s.drücke("Menu2.Picture1")),
                  "klick HoF.SSCommand1 / ruhe / klick Menu.Spieln / ruhe / klick Menu2.Picture1"),
    "brett": (lambda s: (s.drücke("Menu2.Command2"), s.warte_aufs_brett()), "klick Menu2.Command2 / ruhe"),
    "landkauf": (lambda s: (s.fahre(7), s.warte(lambda w: s.kann(w, "geldfeld.SSCommand2"), "der Landkauf")),
                 'antwort "vorr" "8" / rechts Form1.Label1 / ruhe'),
    "bezahlen": (lambda s: s.drücke("geldfeld.SSCommand2"), "klick geldfeld.SSCommand2 / ruhe"),
    "umtausch": (lambda s: s.drücke("Form1.SSCommand2"), "klick Form1.SSCommand2 / ruhe"),
    "besitzkarten": (lambda s: (s.drücke("Exchange.Command2"), s.drücke("Form1.Command2")),
                     "klick Exchange.Command2 / ruhe / klick Form1.Command2 / ruhe"),
}


def anteil_anders(seite, fenster, faktor):
    """Anteil der Zellen, deren Mittel deutlich abweicht; die Bilder sind gleich groß."""
    weite = ZELLE * faktor
    def zellen(bild):
        punkte = numpy.asarray(bild.convert("RGB"), dtype=float)
        h, b = (n - n % weite for n in punkte.shape[:2])
        return punkte[:h, :b].reshape(h // weite, weite, b // weite, weite, 3).mean(axis=(1, 3))
    if seite.size != fenster.size:
        return 1.0
    return float((abs(zellen(seite) - zellen(fenster)).max(axis=2) > DEUTLICH).mean())


def bilder_des_fensters(schaukasten, ordner, faktor):
    # In die Ecke der Anzeige zeigt der Zeiger auf nichts.
    szene = pathlib.Path(ordner) / "augenblicke.szene"
    szene.write_text("".join(f"{weg}\nmaus Form1.Label1 -108 -108\nbild {name}\n" for name, (_, weg) in AUGENBLICKE.items()))
    subprocess.run([schaukasten, "--faktor", str(faktor), "--ziel", ordner, szene], check=True, stdout=subprocess.DEVNULL)
    return {name: Image.open(pathlib.Path(ordner) / f"{name}.png") for name in AUGENBLICKE}


def bilder_der_seite(url, faktor):
    bilder = {}
    with treiber.Browser("chromium", 800 * faktor, 600 * faktor) as browser:
        spiel = Spiel(browser, url)
        browser.skript("document.getElementById('dateien-zettel').hidden = true")
        for name, (geh, _) in AUGENBLICKE.items():
            geh(spiel)
            bilder[name] = Image.open(io.BytesIO(spiel.ruhiges_bild()))
    return bilder


def prüfe(bau):
    schaukasten = pathlib.Path(bau).resolve().parent / "build/schaukasten"
    zu_anders = []
    with server.Server(str(bau / "seite"), 0) as auskunft, tempfile.TemporaryDirectory() as ordner:
        threading.Thread(target=auskunft.serve_forever, daemon=True).start()
        for faktor in FAKTOREN:
            fenster = bilder_des_fensters(schaukasten, ordner, faktor)
            seite = bilder_der_seite(f"http://localhost:{auskunft.server_port}/", faktor)
            for name in AUGENBLICKE:
                anders = anteil_anders(seite[name], fenster[name], faktor)
                print(f"bilder: {name} x{faktor}: {anders:.2%} anders")
                if anders > VOLLER_TEXT.get(name, SPIELRAUM):
                    zu_anders.append(f"{name} x{faktor}")
                    for wer, bild in (("seite", seite[name]), ("fenster", fenster[name])):
                        bild.save(bau / f"anders-{name}-{faktor}-{wer}.png")
        auskunft.shutdown()
    if zu_anders:
        raise AssertionError("zu anders: " + ", ".join(zu_anders))
