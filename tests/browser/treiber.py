"""Drei wirkliche Browser, gesteuert mit denselben Worten: Chromium und WebKitGTK über ihren W3C-Treiber, Firefox über
Marionette, seine eigene Leitung (Debian hat keinen Treiber dafür)."""
import base64
import http.client
import json
import os
import pathlib
import shutil
import socket
import subprocess
import tempfile
import time

GEDULD = 30  # s, bis eine Bedingung gelten muss
STARTGEDULD = 120  # s, bis ein Browser antworten muss: auf zwei Kernen starten drei zugleich


def freier_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def warte(bedingung, was, geduld=GEDULD):
    """Bis die Bedingung gilt; gibt ihren Wert."""
    bis = time.monotonic() + geduld
    while not (wert := bedingung()):
        if time.monotonic() > bis:
            raise TimeoutError(f"{was} blieb aus ({geduld} s)")
        time.sleep(0.05)
    return wert


class Fehler(Exception):
    """Was ein Browser ablehnt."""


class W3C:
    """Die Leitung zu einem Treiber nach dem Standard."""

    def __init__(self, port, fähigkeiten):
        self.port, self.pfad = port, "/session"
        antwort = self.rufe("POST", "", {"capabilities": {"alwaysMatch": fähigkeiten}})
        self.pfad = "/session/" + antwort["sessionId"]

    def rufe(self, art, ort, worte=None):
        leitung = http.client.HTTPConnection("127.0.0.1", self.port, timeout=4 * GEDULD)
        leitung.request(art, self.pfad + ort, None if worte is None else json.dumps(worte),
                        {"Content-Type": "application/json"})
        wert = json.loads(leitung.getresponse().read())["value"]
        leitung.close()
        if isinstance(wert, dict) and "error" in wert:
            raise Fehler(f"{wert['error']}: {wert.get('message', '')}")
        return wert

    WEGE = {"Navigate": "/url", "Refresh": "/refresh", "ExecuteScript": "/execute/sync",
            "ExecuteAsyncScript": "/execute/async", "PerformActions": "/actions", "SetWindowRect": "/window/rect",
            "SetTimeouts": "/timeouts"}

    def befehl(self, name, worte):
        return self.rufe("POST", self.WEGE[name], worte)

    def bild(self):
        return self.rufe("GET", "/screenshot")

    def beende(self):
        self.rufe("DELETE", "")


class Marionette:
    """Die Leitung zu Firefox: Länge, Doppelpunkt, JSON."""

    def __init__(self, port):
        self.leitung = warte(lambda: self.verbinde(port), "Firefox", STARTGEDULD)
        self.rest, self.nummer = b"", 0
        self.nimm()  # sein Gruß
        self.befehl("NewSession", {"capabilities": {"alwaysMatch": {}}})

    @staticmethod
    def verbinde(port):
        try:
            return socket.create_connection(("127.0.0.1", port), timeout=4 * GEDULD)
        except OSError:
            return None

    def nimm(self):
        while b":" not in self.rest:
            self.rest += self.leitung.recv(1 << 16)
        länge, _, self.rest = self.rest.partition(b":")
        while len(self.rest) < int(länge):
            self.rest += self.leitung.recv(1 << 20)
        wort, self.rest = self.rest[:int(länge)], self.rest[int(länge):]
        return json.loads(wort)

    def befehl(self, name, worte):
        self.nummer += 1
        wort = json.dumps([0, self.nummer, "WebDriver:" + name, worte]).encode()
        self.leitung.sendall(str(len(wort)).encode() + b":" + wort)
        _, _, fehler, wert = self.nimm()
        if fehler:
            raise Fehler(f"{fehler['error']}: {fehler['message']}")
        return wert.get("value") if isinstance(wert, dict) and set(wert) == {"value"} else wert

    def bild(self):
        return self.befehl("TakeScreenshot", {"full": False})

    def beende(self):
        self.leitung.close()


class Browser:
    """Ein Browser mit leerem Gedächtnis, dessen Seite so viele Punkte groß ist."""

    def __init__(self, name, breite=800, höhe=600, telefon=False):
        self.name = name
        self.heim = pathlib.Path(tempfile.mkdtemp(prefix="velmo-browser-"))
        self.ablauf = None
        self.protokoll = open(self.heim / "protokoll", "wb")
        try:
            self.leitung = getattr(self, "öffne_" + name)(breite, höhe, telefon)
            self.leitung.befehl("SetTimeouts", {"script": 2000 * GEDULD})
            if not (telefon and name == "chromium"):
                self.passe_an(breite, höhe)
        except BaseException:
            self.schließe()
            raise

    def starte(self, *worte, **umgebung):
        umgebung = os.environ | {"HOME": str(self.heim), "LIBGL_ALWAYS_SOFTWARE": "1", "LC_ALL": "C.UTF-8"} | umgebung
        self.ablauf = subprocess.Popen(worte, env=umgebung, stdin=subprocess.DEVNULL, stdout=self.protokoll,
                                       stderr=self.protokoll, start_new_session=True)

    def öffne_chromium(self, breite, höhe, telefon):
        port = freier_port()
        self.starte("chromedriver", f"--port={port}")
        worte = ["--headless=new", "--no-sandbox", "--disable-gpu", "--force-device-scale-factor=1",
                 f"--user-data-dir={self.heim}/profil", f"--window-size={breite},{höhe}"]
        wahl = {"args": worte}
        if telefon:
            wahl["mobileEmulation"] = {"deviceMetrics": {"width": breite, "height": höhe, "pixelRatio": 3, "touch": True}}
        return warte(lambda: self.versuche(W3C, port, {"goog:chromeOptions": wahl}), "chromedriver", STARTGEDULD)

    def öffne_webkit(self, breite, höhe, telefon):
        port = freier_port()
        self.starte("xvfb-run", "-a", "-s", "-screen 0 1920x1400x24", "WebKitWebDriver", f"--port={port}",
                    WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS="1", GDK_BACKEND="x11")
        programm = next(pathlib.Path("/usr/lib").glob("*/webkit2gtk-4.*/MiniBrowser"))
        wahl = {"webkitgtk:browserOptions": {"binary": str(programm), "args": ["--automation"]}}
        return warte(lambda: self.versuche(W3C, port, wahl), "WebKitWebDriver", STARTGEDULD)

    def öffne_firefox(self, breite, höhe, telefon):
        port = freier_port()
        profil = self.heim / "profil"
        profil.mkdir()
        vorgaben = {"marionette.port": port, "browser.shell.checkDefaultBrowser": False, "media.autoplay.default": 0,
                    "datareporting.policy.dataSubmissionEnabled": False, "dom.w3c_touch_events.enabled": 1,
                    "layout.css.devPixelsPerPx": "3.0" if telefon else "1.0", "app.update.enabled": False,
                    "browser.aboutwelcome.enabled": False}
        if telefon:  # nur ein Finger, der nicht schwebt
            vorgaben |= {"ui.primaryPointerCapabilities": 1, "ui.allPointerCapabilities": 1}
        (profil / "user.js").write_text("".join(f"user_pref({json.dumps(n)}, {json.dumps(w)});\n"
                                                for n, w in vorgaben.items()))
        self.starte("firefox-esr", "--headless", "--marionette", "--no-remote", "--profile", str(profil),
                    f"--width={breite}", f"--height={höhe}")
        return Marionette(port)

    @staticmethod
    def versuche(leitung, *worte):
        try:
            return leitung(*worte)
        except (OSError, http.client.HTTPException):
            return None

    def passe_an(self, breite, höhe):
        """Zieht das Fenster, bis die Seite darin so groß ist."""
        for _ in range(5):
            b, h, außen_b, außen_h = self.skript("return [innerWidth, innerHeight, outerWidth, outerHeight]")
            if (b, h) == (breite, höhe):
                return
            self.leitung.befehl("SetWindowRect", {"width": außen_b + breite - b, "height": außen_h + höhe - h})
            time.sleep(0.3)
        raise Fehler(f"{self.name}: die Seite wird nicht {breite} x {höhe}")

    def öffne(self, url):
        self.leitung.befehl("Navigate", {"url": url})

    def lade_neu(self):
        self.leitung.befehl("Refresh", {})

    def skript(self, text, *worte):
        return self.leitung.befehl("ExecuteScript", {"script": text, "args": list(worte)})

    def versprechen(self, text, *worte):
        """Wartet das Versprechen ab, das der Ausdruck gibt; $ ist die Liste der Worte."""
        mantel = ("const fertig = arguments[arguments.length - 1], $ = [...arguments].slice(0, -1);"
                  f"Promise.resolve((async () => ({text}))()).then(w => fertig([w]), f => fertig([null, String(f)]));")
        wert, *fehler = self.leitung.befehl("ExecuteAsyncScript", {"script": mantel, "args": list(worte)})
        if fehler:
            raise Fehler(fehler[0])
        return wert

    def devtools(self, befehl, **worte):
        """Ein Befehl, den nur Chromium kennt."""
        return self.leitung.rufe("POST", "/goog/cdp/execute", {"cmd": befehl, "params": worte})

    def bild(self):
        """Die Seite als PNG."""
        return base64.b64decode(self.leitung.bild())

    def zeige_hin(self, *schritte, art="mouse"):
        """Ein Zeiger: ("hin", x, y[, ms]), ("drück"[, taste]), ("lös"[, taste]), ("ruh", ms); die rechte Taste ist 2."""
        folge = []
        for wort, *rest in schritte:
            if wort == "hin":
                folge.append({"type": "pointerMove", "x": round(rest[0]), "y": round(rest[1]),
                              "duration": rest[2] if len(rest) > 2 else 0, "origin": "viewport"})
            elif wort == "ruh":
                folge.append({"type": "pause", "duration": rest[0]})
            else:
                folge.append({"type": {"drück": "pointerDown", "lös": "pointerUp"}[wort], "button": rest[0] if rest else 0})
        self.leitung.befehl("PerformActions", {"actions": [
            {"type": "pointer", "id": art, "parameters": {"pointerType": art}, "actions": folge}]})

    def drücke_rechts(self, x, y):
        if self.name != "webkit":
            return self.zeige_hin(("hin", x, y), ("drück", 2), ("ruh", 50), ("lös", 2))
        # Sein Treiber hielte die Taste von da an gedrückt.
        return self.skript("""
            const [x, y] = arguments, wo = document.elementFromPoint(x, y);
            for (const [art, buttons] of [["pointerdown", 2], ["pointerup", 0]])
              wo.dispatchEvent(new PointerEvent(art, {clientX: x, clientY: y, button: 2, buttons, pointerId: 1,
                pointerType: "mouse", isPrimary: true, bubbles: true, cancelable: true}));
        """, x, y)

    def tippe(self, text):
        tasten = [{"type": art, "value": z} for z in text for art in ("keyDown", "keyUp")]
        self.leitung.befehl("PerformActions", {"actions": [{"type": "key", "id": "tasten", "actions": tasten}]})

    def schließe(self):
        try:
            if hasattr(self, "leitung"):
                self.leitung.beende()
        except (OSError, Fehler, http.client.HTTPException):
            pass
        if self.ablauf:
            try:
                os.killpg(self.ablauf.pid, 15)
                self.ablauf.wait(5)
            except (ProcessLookupError, subprocess.TimeoutExpired):
                os.killpg(self.ablauf.pid, 9)
        self.protokoll.close()
        shutil.rmtree(self.heim, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.schließe()
