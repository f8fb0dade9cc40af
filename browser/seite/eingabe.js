// Maus, Finger und Tasten werden Ereignisse für das Spiel. Was im Feld eines Formulars geschieht, gehört dem Feld.
import { lade } from "./bilder.js";
import { zeigeTasten } from "./kasten.js";
import { FINGER, istDrückbar } from "./lupe.js";

const LANGE = 600; // ms, die ein Finger liegen muss, um die rechte Taste zu sein
const RUHIG = 10; // CSS-Bildpunkte, um die er dabei rutschen darf
const DOPPELT = 400; // ms zwischen zwei Drücken eines Doppelklicks
const LEER = new Set(["Shift", "Control", "Alt", "Meta", "CapsLock", "Dead", "Process", "Unidentified"]);

export class Eingabe {
  constructor(bühne, klang, melde) {
    Object.assign(this, { bühne, klang, melde, letzter: { zeit: -Infinity }, unter: null });
    const a = document.documentElement;
    a.addEventListener("pointerdown", (e) => this.ab(e));
    a.addEventListener("pointermove", (e) => this.bewegt(e));
    a.addEventListener("pointerup", (e) => this.auf(e));
    a.addEventListener("pointercancel", (e) => this.auf(e, true));
    a.addEventListener("contextmenu", (e) => !e.target.matches("input") && e.preventDefault());
    a.addEventListener("dragstart", (e) => e.preventDefault());
    addEventListener("keydown", (e) => this.taste(e, "ab"));
    addEventListener("keyup", (e) => this.taste(e, "auf"));
    addEventListener("blur", () => melde("verliere"));
  }

  gehörtAnderen(e) {
    return e.target.closest?.(".feld, dialog, #leisten, #dateien-zettel, .zettel");
  }

  ort(e) {
    return this.bühne.twips(...this.stelle(e)).map((t) => t.toFixed(1));
  }

  /// Wohin der Zeiger zeigt. Ein Finger meint auch, was kleiner ist als er und unter seinem Rand liegt: das Nächste davon,
  /// wenn er nichts genau trifft; hängt etwas an ihm, ist es ein Platz dafür.
  stelle(e) {
    const hier = [e.clientX, e.clientY], form = document.elementFromPoint(...hier)?.closest?.(".form");
    if (e.pointerType === "mouse" || !form) return hier;
    const zieht = !this.bühne.zieh.hidden, stücke = [...this.bühne.formen.values()].find((f) => f.e === form).stücke.values();
    let nächste = { weg: Infinity };
    for (const { m, e: element } of stücke) {
      if (!istDrückbar(m) || m.rolle !== "Knopf" || zieht !== Boolean(m.schein)) continue;
      const r = element.getBoundingClientRect(), mitte = [r.x + r.width / 2, r.y + r.height / 2];
      const ab = [0, 1].map((i) => Math.abs(hier[i] - mitte[i])), halb = [r.width / 2, r.height / 2];
      if (ab[0] <= halb[0] && ab[1] <= halb[1]) return hier;
      const weg = Math.hypot(...ab);
      if (weg < nächste.weg && [0, 1].every((i) => ab[i] <= Math.max(halb[i], FINGER / 2))) nächste = { weg, mitte };
    }
    return nächste.mitte ?? hier;
  }

  ab(e) {
    this.klang.erlaube();
    this.bühne.finger = e.pointerType !== "mouse";
    if (this.gehörtAnderen(e)) return;
    if (!e.isPrimary || (e.button !== 0 && e.button !== 2)) return;
    if (document.activeElement?.matches?.(".feld")) document.activeElement.blur();
    e.preventDefault();
    e.target.releasePointerCapture?.(e.pointerId);
    const jetzt = performance.now(), l = this.letzter;
    const doppelt = jetzt - l.zeit < DOPPELT && Math.hypot(e.clientX - l.x, e.clientY - l.y) < RUHIG;
    this.letzter = { zeit: doppelt ? -Infinity : jetzt, x: e.clientX, y: e.clientY };
    this.gedrückt = { taste: e.button === 2 ? 2 : 1, x: e.clientX, y: e.clientY, knopf: this.knopfAn(e) };
    this.zeigeGedrückt(e);
    this.melde("bewege", ...this.ort(e));
    if (!this.bühne.zieh.hidden && this.bühne.finger) return; // was aus der Leiste schon am Zeiger hängt, nimmt der Finger
    this.melde("drücke", this.gedrückt.taste, ...this.ort(e), doppelt ? 2 : 1, e.buttons & (e.buttons - 1) ? "dazu" : "allein");
    if (e.pointerType === "mouse") return;
    this.wartet = setTimeout(() => this.melde("lange", ...this.ort(e)), LANGE);
  }

  bewegt(e) {
    if (!e.isPrimary || (!this.gedrückt && this.gehörtAnderen(e))) return;
    const g = this.gedrückt;
    if (g && Math.hypot(e.clientX - g.x, e.clientY - g.y) > RUHIG) clearTimeout(this.wartet);
    this.zeigeGedrückt(e);
    this.melde("bewege", ...this.ort(e));
  }

  auf(e, abgebrochen = false) {
    clearTimeout(this.wartet);
    if (!e.isPrimary || !this.gedrückt) return;
    const wo = abgebrochen ? [-1e6, -1e6] : this.ort(e);
    this.melde("löse", this.gedrückt.taste, ...wo);
    this.gedrückt = null;
    this.zeigeGedrückt(e, e.pointerType !== "mouse");
    // Ein Finger, der fort ist, zeigt auf nichts mehr; das Umherirren der Hervorhebungen endet.
    if (e.pointerType !== "mouse") this.melde("bewege", -1e6, -1e6);
  }

  knopfAn(e) {
    return document.elementFromPoint(...this.stelle(e))?.closest?.(".knopf");
  }

  /// Welcher Knopf gedrückt oder überfahren aussieht.
  zeigeGedrückt(e, fort = false) {
    const hier = fort ? null : this.knopfAn(e);
    const frei = hier && hier.getAttribute("aria-disabled") !== "true" ? hier : null;
    const drückt = this.gedrückt && frei === this.gedrückt.knopf ? frei : null;
    if (this.unter === frei && this.drunten === drückt) return;
    for (const k of [this.unter, this.drunten]) k?.classList.remove("überfahren", "gedrückt");
    this.unter = frei;
    this.drunten = drückt;
    if (e.pointerType === "mouse") frei?.classList.add("überfahren");
    drückt?.classList.add("gedrückt");
    this.bühne.zeigeKnöpfe();
  }

  /// Zeichen des Zeigers; ein eigenes Bild ist 64 Bildpunkte des Entwurfs groß, seine Spitze in der Mitte.
  async zeigeZeiger({ wie = "default", bild }) {
    const anzeige = this.bühne.anzeige;
    this.zeiger = bild;
    if (!bild) return (anzeige.style.cursor = wie);
    const punkte = Math.min(128, Math.round(64 * this.bühne.faktor)), vorlage = await lade(bild, 0).catch(() => null);
    if (!vorlage || this.zeiger !== bild) return;
    const leinwand = Object.assign(document.createElement("canvas"), { width: punkte, height: punkte });
    leinwand.getContext("2d").drawImage(vorlage, 0, 0, punkte, punkte);
    anzeige.style.cursor = `url(${leinwand.toDataURL()}) ${punkte / 2} ${punkte / 2}, pointer`;
  }

  taste(e, wie) {
    if (document.querySelector("dialog[open]") || e.isComposing || LEER.has(e.key)) return;
    if (this.eigene(e, wie)) return e.preventDefault();
    if (/^F\d/.test(e.key)) return;
    const feld = e.target.closest?.(".feld");
    if (feld && !this.verlässt(feld, e.key)) return;
    const befehl = e.ctrlKey || e.altKey || e.metaKey;
    const lage = [e.shiftKey && "u", befehl && "b", e.repeat && "w", [...e.key].length === 1 && !befehl && "z"];
    if (!befehl) e.preventDefault();
    this.bühne.finger = false;
    this.bühne.vonTasten = true; // ein Klick, den der Browser aus der Taste macht, ist keiner
    setTimeout(() => (this.bühne.vonTasten = false));
    this.melde("taste", wie, e.key, lage.filter(Boolean).join(""));
  }

  /// Welche Tasten ein Feld nicht für sich nimmt.
  verlässt(feld, taste) {
    if (taste === "Tab" || taste === "Escape") return true;
    if (feld.matches(".textfläche")) return false;
    return taste === "Enter" && !feld.matches("select");
  }

  /// Die Tasten der Seite selbst.
  eigene(e, wie) {
    const tat = {
      F1: () => zeigeTasten(this.bühne), F6: () => this.klang.stelle(0), F7: () => this.klang.stelle(-1), F8: () => this.klang.stelle(1),
    }[e.key];
    const vollbild = e.altKey && e.key === "Enter";
    if (!tat && !vollbild) return false;
    if (wie === "auf" || e.repeat) return true;
    if (tat) tat();
    else if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen?.();
    return true;
  }
}
