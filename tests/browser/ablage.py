"""Was bleibt: Dateien sichern und laden, ein voller oder verweigerter Speicher, der Wechsel zu einer neuen Fassung."""
import hashlib
import json
import os
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


def bediene(ordner, art=server.Auskunft):
    auskunft = server.Server(str(ordner), 0, art)
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


ANDERES_DING = "0123456789"  # der Abdruck, den das erste Bild in einer neuen Fassung trägt
AUSGEDIENT = f"bilder/ausgedient.{ANDERES_DING}.webp"  # gehört zu keiner Fassung


def neue_fassung(alt, neu, titel, stimmt=True):
    """Eine Fassung mit anderem Titel, anderem Kern und einem anderen Bild; gibt ihren Namen und das Bild, wie es hieß und
    heißt. Stimmt sie nicht, ist ihre Seite nicht die, deren Prüfsumme der Dienst kennt."""
    shutil.copytree(alt, neu)
    for gepackt in neu.glob("*.br"):
        gepackt.unlink()
    name = hashlib.sha256(titel.encode()).hexdigest()[:10]
    kern = next(neu.glob("kern-*"))
    kern.rename(neu / f"kern-{name}")
    seite, dienst = neu / "index.html", neu / "dienst.js"
    seite.write_text(seite.read_text().replace("<title>Velmo</title>", f"<title>{titel}</title>")
                     .replace(kern.name, f"kern-{name}"))
    kopf, rest = dienst.read_text().replace(kern.name, f"kern-{name}").split("\n", 1)
    fassung = json.loads(kopf.removeprefix("const FASSUNG = ").removesuffix(";"))
    fassung["name"] = name
    fassung["kern"]["index.html"] = hashlib.sha256(seite.read_bytes()).hexdigest() if stimmt else "0" * 64
    vorher = fassung["dinge"][0]
    stamm, _, art = vorher.rsplit(".", 2)
    nachher = fassung["dinge"][0] = f"{stamm}.{ANDERES_DING}.{art}"
    shutil.copy(neu / vorher, neu / nachher)
    dienst.write_text(f"const FASSUNG = {json.dumps(fassung)};\n{rest}")
    return name, vorher, nachher


class Zögernde(server.Auskunft):
    """Gibt das Manifest erst, wenn das Tor offen ist: so lange ist eine Fassung unterwegs."""
    tor = threading.Event()

    def do_GET(self):
        if self.path.endswith("webmanifest"):
            self.tor.wait()
        super().do_GET()


# Was die Vorräte des Browsers haben: die Namen der Fassungen, die geltende und die Dinge.
VORRÄTE = """{
  kerne: (await caches.keys()).filter(n => n.startsWith("velmo-kern-")).map(n => n.slice("velmo-kern-".length)),
  gilt: (await (await caches.match("fassung", {cacheName: "velmo-geltung"}))?.json())?.kernvorrat.slice("velmo-kern-".length),
  dinge: (await (await caches.open("velmo-dinge")).keys()).map(a => new URL(a.url).pathname.slice(1)),
}"""
# Die Seite nennt dem Dienst eine ihrer Dateien, wie es jede tut, die steht; der hat dann Zeit, aufzuräumen.
MELDE_SEITE = """(async () => {
  const datei = performance.getEntries().find(e => e.name.endsWith("/fassung.js")).name;
  navigator.serviceWorker.controller.postMessage(datei.split("/").slice(-2).join("/"));
  await new Promise(f => setTimeout(f, 1000));
})()"""
# Fragt selbst nach einer neuen Fassung; wahr, wenn deren Dienst ganz da ist.
VERSUCHE = """await (async () => {
  const anmeldung = await navigator.serviceWorker.getRegistration();
  await anmeldung.update();
  for (let neuer; (neuer = anmeldung.installing);) await new Promise(f => neuer.addEventListener("statechange", f, {once: true}));
  return Boolean(anmeldung.waiting);
})()"""


def fassungen(bau):
    """Eine neue Fassung kommt ganz, beim nächsten Beginn; eine halbe gar nicht."""
    with tempfile.TemporaryDirectory() as ordner:
        hier = pathlib.Path(ordner) / "seite"
        hier.symlink_to((bau / "seite").resolve())
        neue_fassung(hier, pathlib.Path(ordner) / "halb", "Halb", stimmt=False)
        neu, vorher, nachher = neue_fassung(hier, pathlib.Path(ordner) / "neu", "Neu")
        auskunft, url = bediene(hier, Zögernde)
        with auskunft, treiber.Browser("chromium") as browser:
            def tausche(wohin):
                neue = pathlib.Path(ordner) / wohin
                for datei in ("index.html", "dienst.js"):
                    os.utime(neue / datei)  # der Browser fragt nur nach Jüngerem, auf die Sekunde
                hier.unlink()
                hier.symlink_to(neue)
                Spiel(browser, url)  # zeigt noch die alte und holt im Stillen
                return browser.skript("return document.title")
            def vorräte():
                return browser.versprechen(VORRÄTE)
            Zögernde.tor.set()
            Spiel(browser, url)
            treiber.warte(lambda: browser.skript("return Boolean(navigator.serviceWorker.controller)"), "der Dienst")
            browser.versprechen("(await fetch($[0])).status", vorher)
            treiber.warte(lambda: vorher in vorräte()["dinge"], "ein Ding im Vorrat")
            alte = vorräte()
            erwarte(tausche("halb"), "Velmo", "der Titel neben einer halben Fassung")
            erwarte(browser.versprechen(VERSUCHE), False, "der Dienst einer halben Fassung")
            erwarte(vorräte()["gilt"], alte["gilt"], "die Fassung, die neben einer halben gilt")
            Spiel(browser, url)
            erwarte(browser.skript("return document.title"), "Velmo", "der Titel nach einer halben Fassung")
            Zögernde.tor.clear()
            erwarte(tausche("neu"), "Velmo", "der Titel, während die neue Fassung kommt")
            treiber.warte(lambda: neu in vorräte()["kerne"], "der Vorrat der neuen Fassung")
            browser.versprechen(MELDE_SEITE)
            Zögernde.tor.set()
            treiber.warte(lambda: vorräte()["gilt"] == neu, "die neue Fassung", 60)
            browser.versprechen(MELDE_SEITE)
            erwarte(vorräte()["kerne"], [*alte["kerne"], neu], "die Fassungen, solange die alte Seite steht")
            erwarte(nachher in vorräte()["dinge"], True, "das geänderte Ding kam mit")
            browser.versprechen('(await caches.open("velmo-dinge")).put($[0], new Response("alt"))', AUSGEDIENT)
            Spiel(browser, url)
            erwarte(browser.skript("return document.title"), "Neu", "der Titel beim nächsten Beginn")
            treiber.warte(lambda: vorräte()["kerne"] == [neu] and AUSGEDIENT not in vorräte()["dinge"],
                          "das Ende der alten Fassung")
