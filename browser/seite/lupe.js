// Auf kleinen Anzeigen: was zu klein für einen Finger ist, steht vergrößert in Leisten neben der Bühne.
import { wähleZeile, zeigeKasten } from "./kasten.js";

/// CSS-Bildpunkte, die etwas zum Drücken haben muss.
export const FINGER = 40;
const LEISTE = 132; // CSS-Bildpunkte

/// Was sich drücken lässt und einen Namen hat.
export const istDrückbar = (m) => m.sichtbar && !m.gesperrt && m.heißt && ["Knopf", "Feld"].includes(m.rolle);

export class Lupe {
  constructor(bühne, melde) {
    Object.assign(this, { bühne, melde });
    this.leisten = document.getElementById("leisten");
    this.klein = matchMedia("(pointer: coarse) and (max-height: 600px), (pointer: coarse) and (orientation: portrait)");
    this.klein.addEventListener("change", () => this.richte());
    bühne.platz = () => this.platz();
    this.richte();
  }

  richte() {
    document.documentElement.classList.toggle("klein", this.klein.matches);
    this.bühne.messe();
    this.folge();
  }

  /// Der Platz der Bühne: auf kleinen Anzeigen links oder oben, daneben oder darunter die Leiste.
  platz() {
    if (!this.klein.matches) return { x: 0, y: 0, breite: innerWidth, höhe: innerHeight };
    const rand = (name) => parseFloat(getComputedStyle(this.leisten).getPropertyValue(name)) || 0;
    const x = rand("--links"), y = rand("--oben"), hoch = innerHeight >= innerWidth;
    const breite = Math.min(innerWidth - x - (hoch ? 0 : LEISTE), ((innerHeight - y) * 800) / 600);
    this.leisten.style.inset = hoch ? `${y + breite * 0.75}px 0 0` : `0 0 0 ${x + breite}px`;
    return { x, y, breite, höhe: hoch ? breite * 0.75 : innerHeight - y };
  }

  /// Was auf der vordersten Form, die etwas nimmt, zu klein zum Drücken ist; am Zeiger hängt etwas: wohin es kann.
  zuKlein() {
    const formen = (this.bühne.vorn ?? []).filter((f) => f?.m.sichtbar && !f.m.gesperrt);
    const vorn = formen.findLastIndex?.((f) => !f.m.umriss) ?? -1, gehalten = !this.bühne.zieh.hidden;
    const dran = (s) => istDrückbar(s.m) && (gehalten ? s.m.schein : !s.m.schein && this.istZuKlein(s));
    return formen.slice(Math.max(0, vorn)).flatMap((form) =>
      [...form.stücke.values()].filter(dran).sort((a, b) => a.o.oben - b.o.oben || a.o.links - b.o.links));
  }

  istZuKlein({ m, o, e }) {
    const hoch = m.zeilen ? (e.firstElementChild?.offsetHeight ?? 0) : o.höhe; // in einer Liste drückt man Zeilen
    return Math.min(o.breite, hoch) * this.bühne.faktor < FINGER;
  }

  folge() {
    const alle = this.klein.matches ? this.zuKlein() : [];
    const schlüssel = alle.map((s) => `${s.e.id} ${this.beschriftung(s)}`).join("|");
    if (schlüssel === this.gezeigt) return;
    this.gezeigt = schlüssel;
    for (const e of this.bühne.anzeige.querySelectorAll("[data-zahl]")) delete e.dataset.zahl;
    this.leisten.replaceChildren(...alle.map((s, i) => this.knopf(s, i + 1)));
    if (alle.some((s) => s.m.schein)) this.leisten.append(this.neuerKnopf("Zurücklegen", () => this.legeZurück()));
  }

  knopf(s, zahl) {
    const knopf = this.neuerKnopf(this.beschriftung(s), () => this.drücke(s));
    if (s.m.schein) s.e.dataset.zahl = knopf.dataset.zahl = zahl; // dieselbe Zahl steht auf dem Brett
    return knopf;
  }

  neuerKnopf(text, tut) {
    const knopf = Object.assign(document.createElement("button"), { type: "button", textContent: text, tabIndex: -1, onclick: tut });
    knopf.setAttribute("aria-hidden", "true"); // das Vorleseprogramm hat das Stück selbst
    return knopf;
  }

  beschriftung({ m }) {
    if (m.feld === "Textfeld") return `${m.heißt}: ${m.text || "…"}`;
    if (m.zeilen) return `${m.heißt}: ${m.zeilen[m.zeile] ?? "…"}`;
    return m.heißt;
  }

  legeZurück() {
    this.melde("taste", "ab", "Escape", "");
    this.melde("taste", "auf", "Escape", "");
  }

  async drücke(s) {
    const { m, form } = s, nummer = Number(s.e.id.split("-")[1]);
    const melde = (art, ...angaben) => this.melde(art, form.nummer, nummer, ...angaben);
    if (m.feld === "Textfeld") {
      zeigeKasten({ text: m.heißt, titel: "", feld: true, wert: m.text }, (wie, text) => wie === "ok" && melde("tippe", text));
    } else if (m.zeilen) {
      const zeile = await wähleZeile(m.heißt, m.zeilen, m.zeile);
      if (zeile >= 0) melde("wähle", zeile);
    } else if (m.feld === "Rollbalken") melde("rolle", m.wert ? 0 : 1);
    else melde("löseAus");
  }
}
