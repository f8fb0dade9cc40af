"""Ein Spiel auf der wirklichen Seite: was ein Spieler sieht und wo er drückt, steht in ihren Elementen."""
import time

import treiber

# Je sichtbares Steuerelement "Form.Name": Mitte seines obersten Stücks, ob es gesperrt ist, ob ein Druck es träfe, Text.
STAND = """
if (window.misslungenes?.length) throw new Error(window.misslungenes.join(" | "));
const alle = {};
for (const form of document.querySelectorAll("[data-form]:not([hidden])"))
  for (const e of form.querySelectorAll("[data-name]:not([hidden])")) {
    const r = e.getBoundingClientRect();
    const x = r.x + r.width / 2, y = r.y + Math.min(r.height, 2 * (innerHeight - r.y)) / 2;
    alle[form.dataset.form + "." + e.dataset.name] = {
      x, y, frei: document.elementFromPoint(x, y)?.closest("[data-form]") === form && !form.inert,
      gesperrt: Boolean(e.disabled) || e.classList.contains("gesperrt") || form.inert,
      text: (e.value ?? e.innerText).trim(),
    };
  }
return alle;
"""
# Was auf der Seite misslingt, lässt die Prüfung scheitern; was kurz vorn stand, weiß sie auch danach.
MERKE_FEHLER = """
window.misslungenes = [];
addEventListener("error", (e) => misslungenes.push(e.message));
addEventListener("unhandledrejection", (e) => misslungenes.push(String(e.reason)));
window.vorngewesene = new Set();
new MutationObserver(() => vorngewesene.add(document.body.dataset.vorn)).observe(document.body, {attributeFilter: ["data-vorn"]});
"""
BILDER_DA = """
return [...document.querySelectorAll("[data-form]:not([hidden]) img")].every(i => !i.dataset.soll || i.getAttribute("src"));
"""
RUNDENZEIT = 150  # s
LANGE = 900  # ms, die ein Finger liegt


class Spiel:
    def __init__(self, browser, url, zeiger="mouse"):
        self.browser, self.zeiger = browser, zeiger
        browser.öffne(url)
        browser.skript(MERKE_FEHLER)
        self.warte(lambda s: browser.skript("return Boolean(document.body.dataset.vorn)"), "die erste Form")
        time.sleep(0.5)
        if self.vorn() == "Intro":
            self.berühre(*browser.skript("return [innerWidth / 2, innerHeight / 2]"))
        self.warte(lambda s: self.vorn() == "Menu", "das Menü")

    def stand(self):
        return self.browser.skript(STAND)

    def vorn(self):
        return self.browser.skript("return document.body.dataset.vorn")

    def warte(self, bedingung, was, geduld=treiber.GEDULD):
        return treiber.warte(lambda: bedingung(self.stand()), f"{self.browser.name}: {was}", geduld)

    def berühre(self, x, y, ms=30):
        self.browser.zeige_hin(("hin", x, y), ("drück",), ("ruh", ms), ("lös",), art=self.zeiger)

    def drücke(self, name):
        """Wartet, bis ein Druck das Element trifft, und drückt es."""
        def bereit(s):
            e = s.get(name)
            return e if e and e["frei"] and not e["gesperrt"] else None
        e = self.warte(bereit, name)
        self.berühre(e["x"], e["y"])

    def text(self, name):
        return self.stand().get(name, {}).get("text", "")

    def geld(self):
        return int(self.text("Form1.Geldlabel"))

    def melde_an(self, name):
        """Vom Menü bis aufs Brett, unter diesem Namen, der auch als Charakter gespeichert wird."""
        self.drücke("Menu.Spieln")
        self.drücke("Menu2.Text1")
        self.browser.tippe(name)
        self.warte(lambda s: s["Menu2.Text1"]["text"] == name, f"der Name {name}")
        self.drücke("Menu2.Command4")
        self.warte(lambda s: f"{name}.cha" in s["Menu2.File1"]["text"], "der gespeicherte Charakter")
        self.drücke("Menu2.Command2")
        self.warte_aufs_brett()

    def warte_aufs_brett(self):
        """Bis Dorvin gegrüßt hat und wieder fort ist."""
        gegrüßt = "return vorngewesene.has('Sprech')"
        self.warte(lambda s: self.browser.skript(gegrüßt), "Dorvins Gruß", 3 * treiber.GEDULD)
        self.warte(lambda s: s["Form1.WüButton"]["frei"] and s["Form1.Label1"]["frei"], "das Brett")

    def ruhiges_bild(self):
        """Ein Bild, in dem alle Bilder da sind und sich nichts mehr regt; der Zeiger ist fort."""
        self.browser.zeige_hin(("hin", 1, 1))
        self.warte(lambda s: self.browser.skript(BILDER_DA), "die Bilder", 3 * treiber.GEDULD)
        bild = None
        while bild != (bild := self.browser.bild()):
            time.sleep(1)
        return bild

    def fahre(self, schritte):
        """Auf das Feld so viele Schritte weiter, mit der Konsole des Bretts: sie zieht einen Schritt ab."""
        schild = self.warte(lambda s: s["Form1.Label1"] if s["Form1.Label1"]["frei"] else None, "das Schild")
        if self.zeiger == "touch":  # ein Finger, der liegen bleibt, ist die rechte Taste
            self.berühre(schild["x"], schild["y"], LANGE)
        else:
            self.browser.drücke_rechts(schild["x"], schild["y"])
        for frage, antwort in ((" ", "vorr"), ("Anzahl", str(schritte + 1))):
            offen = f"return document.querySelector('dialog.kasten[open]')?.ariaLabel === '{frage}'"
            self.warte(lambda s: self.browser.skript(offen), f"die Frage der Konsole '{frage}'")
            self.browser.tippe(antwort + "\ue007")

    def zahle(self, *noten):
        for note in noten:
            vorher = self.geld()
            self.drücke(f"Form1.g{note}")
            self.warte(lambda s: int(s["Form1.Geldlabel"]["text"]) == vorher - note, f"{note} DM weniger")
            self.warte_auf_flug(f"Form1.p{note}")

    def warte_auf_flug(self, note):
        """Bis die gezahlte Note fort ist: solange sie fliegt, lässt sich keine zweite zahlen."""
        bis, flog = time.monotonic() + 1, False
        def gelandet(s):
            nonlocal flog
            flog |= note in s
            return note not in s and (flog or time.monotonic() > bis)
        self.warte(gelandet, f"das Ende des Flugs von {note}")

    def ziehe(self, was, wohin):
        """Zieht mit gedrücktem Finger von einem Element zum anderen."""
        s = self.warte(lambda s: s if s[was]["frei"] and s.get(wohin) else None, wohin)
        von, nach = s[was], s[wohin]
        mitte = (von["x"] + nach["x"]) / 2, (von["y"] + nach["y"]) / 2
        self.browser.zeige_hin(("hin", von["x"], von["y"]), ("drück",), ("ruh", 100), ("hin", *mitte, 200),
                               ("hin", nach["x"], nach["y"], 200), ("ruh", 100), ("lös",), art=self.zeiger)

    def runde(self):
        """Bis der Mensch wieder am Zug ist; er kauft nichts, baut gratis und zahlt, was er schuldet."""
        self.drücke("Form1.WüButton")
        time.sleep(0.4)
        self.drücke("Form1.WüButton")
        bis, gezogen = time.monotonic() + RUNDENZEIT, False
        while time.monotonic() < bis:
            s = self.stand()
            if gezogen and self.kann(s, "Form1.WüButton"):
                return
            gezogen |= self.handle(s)
            time.sleep(0.1)
        raise TimeoutError(f"{self.browser.name}: die Runde endet nicht, vorn steht {self.vorn()}")

    @staticmethod
    def kann(s, name):
        return name in s and s[name]["frei"] and not s[name]["gesperrt"]

    # Was er drückt, das erste, das geht; nach "Fertig" ist sein Zug zu Ende.
    ANTWORTEN = ["geldfeld.SSCommand3", "Baufeld.Command2", *(f"Bauphase.SSCommand{i}" for i in range(1, 9)),
                 "Bauphase.Command1", "eingang.SSCommand9", "Bezahlen.SSCommand1", "Bezahlen.würfeln", "Form1.Fertig"]

    def handle(self, s):
        for name in self.ANTWORTEN:
            if self.kann(s, name):
                self.berühre(s[name]["x"], s[name]["y"])
                return name == "Form1.Fertig"
        for note in (1000, 500, 100, 50):
            if self.kann(s, f"Form1.k{note}"):
                self.berühre(s[f"Form1.k{note}"]["x"], s[f"Form1.k{note}"]["y"])
                time.sleep(0.3)
        return False
