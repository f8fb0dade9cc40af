"""Ein Telefon: ein Finger meldet an, kauft, baut und setzt einen Eingang. Was sich drücken lässt, ist selbst groß genug
für ihn, oder sein Knopf in der Leiste neben dem Brett ist es."""
import threading

import server
import treiber
from spiel import Spiel

QUER, HOCH = (740, 360), (360, 740)  # CSS-Bildpunkte
FINGER = 40

# Je Drückbares der vordersten Form: sein Ort und der seines Knopfs in der Leiste; in einer Liste drückt man Zeilen.
DRÜCKBARES = """
const ort = (e, hoch) => {
  const r = e.getBoundingClientRect(), bis = Math.min(r.bottom, innerHeight);
  return {x: r.x + r.width / 2, y: (r.y + bis) / 2, maß: Math.min(r.width, hoch ?? bis - r.y)};
};
const leiste = [...document.querySelectorAll("#leisten button")], alle = {};
const formen = [...document.querySelectorAll("[data-form]:not([hidden], [inert])")]
  .filter((f) => !f.querySelector(".inhalt").style.clipPath).sort((a, b) => a.style.zIndex - b.style.zIndex);
for (const e of formen.at(-1)?.querySelectorAll("[data-name]:not([hidden], [aria-hidden], [aria-disabled])") ?? []) {
  if (!e.matches("button, [role=button], .feld:not(.textfläche)")) continue;
  const heißt = e.getAttribute("aria-label"), feld = e.matches(".feld");
  const knopf = leiste.find((k) => (feld ? k.innerText.startsWith(heißt + ": ") : k.innerText === heißt));
  const zeile = e.matches(".liste") ? e.firstElementChild?.offsetHeight : undefined;
  alle[e.dataset.name] = {zahl: e.dataset.zahl === knopf?.dataset.zahl && e.dataset.zahl, orte: [ort(e, zeile), ...(knopf ? [ort(knopf)] : [])]};
}
return alle;
"""
KASTEN = """
return [...document.querySelectorAll("dialog[open] :is(button, input)")].map((e) => {
  const r = e.getBoundingClientRect();
  return {text: e.innerText, x: r.x + r.width / 2, y: r.y + r.height / 2, maß: Math.min(r.width, r.height)};
});
"""
GEWÄHLT = "return document.querySelector(`[data-name='${arguments[0]}'] [aria-selected=true]`)?.innerText"


def erwarte(ist, soll, was):
    if ist != soll:
        raise AssertionError(f"{was} ist {ist!r}, erwartet {soll!r}")


def groß_genug(e):
    return next((ort for ort in e["orte"] if ort["maß"] >= FINGER), None)


class Telefon(Spiel):
    def drückbares(self):
        return self.browser.skript(DRÜCKBARES)

    def prüfe_größe(self, wo, nur=lambda name, e: True):
        """Wartet, bis alles groß genug ist; nennt sonst, was zu klein ist."""
        def zu_kleines():
            alle = self.drückbares().items()
            return [name for name, e in alle if nur(name, e) and not groß_genug(e)] if alle else ["nichts"]
        try:
            treiber.warte(lambda: not zu_kleines(), "", 10)
        except TimeoutError:
            raise AssertionError(f"{self.browser.name}, {wo}: zu klein für einen Finger: {zu_kleines()}") from None

    def drücke(self, name):
        """Drückt, wo es groß genug ist."""
        def ort():
            e = self.kann(self.stand(), name) and self.drückbares().get(name.split(".")[1])
            return e and groß_genug(e)
        wo = treiber.warte(ort, f"{self.browser.name}: {name} für einen Finger")
        self.berühre(wo["x"], wo["y"])

    def drücke_im_kasten(self, text):
        alle = treiber.warte(lambda: (k := self.browser.skript(KASTEN)) and any(e["text"] == text for e in k) and k,
                             f"{self.browser.name}: '{text}' zur Wahl")
        erwarte([e["text"] for e in alle if e["maß"] < FINGER], [], "was im Kasten zu klein ist")
        wo = next(e for e in alle if e["text"] == text)
        self.berühre(wo["x"], wo["y"])
        treiber.warte(lambda: not self.browser.skript(KASTEN), "das Ende des Kastens")

    def melde_an(self, name):
        """Alles auf der Anmeldung aus der Leiste."""
        self.prüfe_größe("Menü")
        self.drücke("Menu.Spieln")
        self.warte(lambda s: self.vorn() == "Menu2", "die Anmeldung")
        self.prüfe_größe("Anmeldung")
        self.drücke("Menu2.Text1")
        treiber.warte(lambda: self.browser.skript(KASTEN), "die Frage nach dem Namen")
        self.browser.tippe(name)
        self.drücke_im_kasten("OK")
        self.drücke("Menu2.List2")
        self.drücke_im_kasten("2")
        self.drücke("Menu2.Command4")
        self.warte(lambda s: f"{name}.cha" in s["Menu2.File1"]["text"], "der gespeicherte Charakter")
        self.prüfe_größe("Anmeldung mit Charakter")
        self.drücke("Menu2.File1")
        self.drücke_im_kasten(f"{name}.cha")
        treiber.warte(lambda: self.browser.skript(GEWÄHLT, "File1") == f"{name}.cha", "der gewählte Charakter")
        erwarte(self.browser.skript(GEWÄHLT, "List2"), "2", "die Zahl der Gegner")
        self.drücke("Menu2.Command2")
        self.warte_aufs_brett()

    def kaufe_und_baue(self):
        """Bis ein Eingang zu setzen ist."""
        self.prüfe_größe("Brett")
        self.fahre(7)
        self.warte(lambda s: "geldfeld.SSCommand2" in s, "der Landkauf")
        self.prüfe_größe("Landkauf")
        self.drücke("geldfeld.SSCommand2")
        self.zahle(1000, 1000, 1000)
        erwarte(self.geld(), 9000, "das Geld nach dem Kauf von L'Étoile")
        for feld, form in ((16, "Bauphase"), (5, "eingang")):
            self.fahre(feld)
            self.warte(lambda s: f"{form}.SSCommand6" in s, form)
            self.prüfe_größe(form)
            self.drücke(f"{form}.SSCommand6")

    def setze_eingang(self):
        """Aus der Leiste genommen und zurückgelegt; dann gezogen, und der Finger trifft beide Enden nur beinahe."""
        platz = lambda name, e: name.startswith("Image") and name != "Imagee"
        self.prüfe_größe("Eingang", lambda name, e: not platz(name, e))
        self.drücke("Form1.Imagee")
        self.prüfe_größe("Eingangsplätze", platz)
        plätze = {name: e for name, e in self.drückbares().items() if platz(name, e)}
        erwarte([name for name, e in plätze.items() if not e["zahl"]], [], "Plätze ohne dieselbe Zahl auf dem Brett und in der Leiste")
        self.browser.skript("[...document.querySelectorAll('#leisten button')].at(-1).click()")
        self.prüfe_größe("zurückgelegter Eingang", lambda name, e: not platz(name, e))
        von, nach = (self.stand()[name] for name in ("Form1.Imagee", "Form1.Image46"))
        self.browser.zeige_hin(("hin", von["x"] - 12, von["y"] - 14), ("drück",), ("ruh", 100), ("hin", 400, 150, 200),
                               ("hin", nach["x"] + 4, nach["y"] - 18, 200), ("ruh", 100), ("lös",), art="touch")
        self.warte(lambda s: s["Form1.toteinG"]["text"] == "1", "der gezogene Eingang")


def prüfe_zoom(browser):
    """Weder zwei rasche Drücke noch zwei Finger vergrößern die Seite."""
    def finger(art, *weiten):
        browser.devtools("Input.dispatchTouchEvent", type=art,
                         touchPoints=[{"x": 200 + w, "y": 120, "id": i} for i, w in enumerate(weiten)])
    for _ in range(2):
        finger("touchStart", 0)
        finger("touchEnd")
    finger("touchStart", -20, 20)
    for weit in range(25, 100, 5):
        finger("touchMove", -weit, weit)
    finger("touchEnd")
    erwarte(browser.versprechen("await new Promise(requestAnimationFrame) && visualViewport.scale"), 1, "die Vergrößerung")


def prüfe_hoch(spiel):
    """Aufrecht gehalten bittet die Seite, das Gerät zu drehen, und hat ihre Leiste unter der Bühne."""
    hinweis = "return document.getElementById('drehen').checkVisibility()"
    erwarte(spiel.browser.skript(hinweis), True, "der Hinweis zu drehen am aufrechten Telefon")
    spiel.prüfe_größe("aufrecht")
    bühne, leiste = spiel.browser.skript("""
        return [...document.querySelectorAll("#anzeige, #leisten")].map((e) => e.getBoundingClientRect().toJSON())""")
    erwarte([round(bühne["left"]), round(bühne["right"])], [0, HOCH[0]], "die Kanten der Bühne am aufrechten Telefon")
    erwarte([leiste["top"] >= bühne["bottom"] - 1, leiste["bottom"]], [True, HOCH[1]], "die Leiste unter ihr")
    spiel.browser.devtools("Emulation.setDeviceMetricsOverride", width=QUER[0], height=QUER[1], deviceScaleFactor=3, mobile=True)
    treiber.warte(lambda: not spiel.browser.skript(hinweis), "das Ende des Hinweises am quer gehaltenen Telefon")


def prüfe(bau, name):
    chromium = name == "chromium"  # nur er lässt sich drehen
    with server.Server(str(bau / "seite"), 0) as auskunft, treiber.Browser(name, *(HOCH if chromium else QUER), telefon=True) as browser:
        threading.Thread(target=auskunft.serve_forever, daemon=True).start()
        spiel = Telefon(browser, f"http://localhost:{auskunft.server_port}/", "touch")
        if chromium:
            prüfe_hoch(spiel)
            prüfe_zoom(browser)
        spiel.melde_an("Änne")
        spiel.kaufe_und_baue()
        spiel.setze_eingang()
        auskunft.shutdown()
