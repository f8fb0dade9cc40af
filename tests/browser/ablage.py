"""Was bleibt: Dateien sichern und laden, ein voller oder verweigerter Speicher, der Wechsel zu einer neuen Fassung."""
import hashlib
import json
import pathlib
import shutil
import tempfile
import threading

import server
import treiber
from spiel import Spiel

CHARAKTER = "Käthe\r\nDie Süße\r\nBlau\r\n 147 \r\n".encode("cp1252")
BESTEN = "Ärmel\r\n 4711 \r\n".encode("cp1252")


def erwarte(ist, soll, was):
    if ist != soll:
        raise AssertionError(f"{was} ist {ist!r}, erwartet {soll!r}")


def bediene(ordner):
    auskunft = server.Server(str(ordner), 0)
    threading.Thread(target=auskunft.serve_forever, daemon=True).start()
    return auskunft, f"http://localhost:{auskunft.server_port}/"


def melde(browser, muster):
    """Wartet auf einen Zettel oder eine Meldung mit diesem Text."""
    suche = "return [...document.querySelectorAll('.zettel, .blatt .meldung')].some(e => e.innerText.includes(arguments[0]))"
    treiber.warte(lambda: browser.skript(suche, muster), f"{browser.name}: '{muster}'")


def lade(browser, **dateien):
    """Als hätte der Spieler die Dateien auf dem Blatt gewählt."""
    browser.skript("""
        const korb = new DataTransfer();
        for (const [name, bytes] of arguments[0]) korb.items.add(new File([new Uint8Array(bytes)], name));
        const wahl = document.querySelector("#dateien input");
        wahl.files = korb.files;
        wahl.dispatchEvent(new Event("change"));
    """, [[name, list(inhalt)] for name, inhalt in dateien.items()])


def gesicherte(browser):
    """Was "Alle sichern" hinausgibt: Name -> Bytes."""
    browser.skript("""
        window.gesichert = {};
        const klick = HTMLAnchorElement.prototype.click;
        HTMLAnchorElement.prototype.click = function () {
          fetch(this.href).then(a => a.arrayBuffer()).then(b => window.gesichert[this.download] = [...new Uint8Array(b)]);
        };
        [...document.querySelectorAll("#dateien button")].find(b => b.innerText === "Alle sichern").click();
    """)
    treiber.warte(lambda: len(browser.skript("return window.gesichert")) == 2, "zwei gesicherte Dateien")
    return {name: bytes(inhalt) for name, inhalt in browser.skript("return window.gesichert").items()}


def dateien(bau):
    """Dieselben Bytes hinein, ins Spiel, in den Speicher und hinaus; Fremdes wird abgelehnt."""
    auskunft, url = bediene(bau / "seite")
    with auskunft, treiber.Browser("firefox") as browser:
        Spiel(browser, url)
        browser.skript("document.getElementById('dateien-zettel').click()")
        lade(browser, **{"Käthe.cha": CHARAKTER, "besten.sav": BESTEN, "brief.cha": b"kein Charakter"})
        melde(browser, "Geladen: Käthe.cha, besten.sav")
        melde(browser, '"brief.cha" ist weder ein Charakter')
        spiel = Spiel(browser, url)
        spiel.drücke("Menu.Spieln")
        spiel.warte(lambda s: "Käthe.cha" in s["Menu2.File1"]["text"], "der geladene Charakter")
        browser.skript("document.getElementById('dateien-zettel').click()")
        erwarte(gesicherte(browser), {"Käthe.cha": CHARAKTER, "besten.sav": BESTEN}, "das Gesicherte")
        lade(browser, **{"Käthe.cha": CHARAKTER.replace(b"Blau", b"Rot")})
        melde(browser, "Käthe.cha gibt es schon und ist anders.")


def speicher(bau):
    """Kein Speicher, ein voller: ein Satz, und das Spiel behält, was es hat, bis es sich wieder sichern lässt."""
    auskunft, url = bediene(bau / "seite")
    with auskunft, treiber.Browser("chromium") as browser:
        def befehl(name, **worte):
            browser.leitung.rufe("POST", "/goog/cdp/execute", {"cmd": name, "params": worte})
        spiel = Spiel(browser, url)
        # Der Speicher des Browsers nimmt nichts mehr an.
        browser.skript("""
            window.nimmAn = IDBObjectStore.prototype.put;
            IDBObjectStore.prototype.put = () => { throw new DOMException("voll", "QuotaExceededError"); };
        """)
        spiel.melde_an("Anna")
        melde(browser, "Der Speicher des Browsers ist voll")
        browser.skript("IDBObjectStore.prototype.put = window.nimmAn")
        befehl("Page.addScriptToEvaluateOnNewDocument", source="""
            Object.defineProperty(window, "indexedDB", {get() { throw new DOMException("nein", "SecurityError"); }})""")
        Spiel(browser, url)
        melde(browser, "lässt Velmo nichts behalten")


def neue_fassung(alt, neu, titel, stimmt=True):
    """Eine Fassung mit anderem Titel; stimmt sie nicht, ist ihre Seite nicht die, deren Prüfsumme der Dienst kennt."""
    shutil.copytree(alt, neu)
    for gepackt in neu.glob("*.br"):
        gepackt.unlink()
    seite, dienst = neu / "index.html", neu / "dienst.js"
    seite.write_text(seite.read_text().replace("<title>Velmo</title>", f"<title>{titel}</title>"))
    kopf, rest = dienst.read_text().split("\n", 1)
    fassung = json.loads(kopf.removeprefix("const FASSUNG = ").removesuffix(";"))
    fassung["name"] = hashlib.sha256(titel.encode()).hexdigest()[:10]
    fassung["kern"]["index.html"] = hashlib.sha256(seite.read_bytes()).hexdigest() if stimmt else "0" * 64
    dienst.write_text(f"const FASSUNG = {json.dumps(fassung)};\n{rest}")


def fassungen(bau):
    """Eine neue Fassung kommt ganz, beim nächsten Beginn; eine halbe gar nicht."""
    with tempfile.TemporaryDirectory() as ordner:
        hier = pathlib.Path(ordner) / "seite"
        hier.symlink_to((bau / "seite").resolve())
        neue_fassung(hier, pathlib.Path(ordner) / "halb", "Halb", stimmt=False)
        neue_fassung(hier, pathlib.Path(ordner) / "neu", "Neu")
        auskunft, url = bediene(hier)
        with auskunft, treiber.Browser("chromium") as browser:
            dienst = "await navigator.serviceWorker.getRegistration()"
            vorräte = "(await caches.keys()).join()"
            def tausche(wohin):
                hier.unlink()
                hier.symlink_to(pathlib.Path(ordner) / wohin)
                Spiel(browser, url)  # zeigt noch die alte und holt im Stillen
                return browser.skript("return document.title")
            Spiel(browser, url)
            treiber.warte(lambda: browser.skript("return Boolean(navigator.serviceWorker.controller)"), "der Dienst")
            erwarte(tausche("halb"), "Velmo", "der Titel neben einer halben Fassung")
            treiber.warte(lambda: browser.versprechen(f"({dienst}).installing === null"), "das Scheitern der halben")
            Spiel(browser, url)
            erwarte(browser.skript("return document.title"), "Velmo", "der Titel nach einer halben Fassung")
            alter = browser.versprechen(vorräte)
            erwarte(tausche("neu"), "Velmo", "der Titel, während die neue Fassung kommt")
            treiber.warte(lambda: browser.versprechen(vorräte) != alter, "der Vorrat der neuen Fassung")
            # Die alte Seite meldet sich, während die neue kommt: der alte Dienst räumt sie nicht fort.
            browser.skript("""
                const datei = performance.getEntries().find(e => e.name.endsWith("/fassung.js")).name;
                navigator.serviceWorker.controller.postMessage(datei.split("/").slice(-2).join("/"));""")
            treiber.warte(lambda: browser.versprechen(f"({dienst}).installing === null"), "die neue Fassung", 60)
            Spiel(browser, url)
            erwarte(browser.skript("return document.title"), "Neu", "der Titel beim nächsten Beginn")
