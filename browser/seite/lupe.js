// Auf kleinen Anzeigen: was zu klein für einen Finger ist, steht vergrößert in Leisten neben der Bühne.
import { wähleZeile, zeigeKasten } from "./kasten.js";

const FINGER = 40; // CSS-Bildpunkte, die etwas zum Drücken haben muss

export class Lupe {
  constructor(bühne, melde) {
    Object.assign(this, { bühne, melde, knöpfe: new Map() });
    this.leisten = document.getElementById("leisten");
    this.klein = matchMedia("(pointer: coarse) and (max-height: 600px)");
    this.klein.addEventListener("change", () => this.richte());
    bühne.platz = () => this.platz();
    this.richte();
  }

  richte() {
    document.documentElement.classList.toggle("klein", this.klein.matches);
    this.bühne.messe();
    this.folge();
  }

  /// Der Platz der Bühne: auf kleinen Anzeigen links, damit rechts eine Leiste Platz hat.
  platz() {
    const ganz = { x: 0, y: 0, breite: innerWidth, höhe: innerHeight };
    if (!this.klein?.matches) return ganz;
    const breite = Math.min(innerWidth - 132, (innerHeight * 800) / 600);
    return { x: 0, y: 0, breite, höhe: innerHeight };
  }

  /// Was auf der vordersten Form, die etwas nimmt, zu klein zum Drücken ist.
  zuKlein() {
    const formen = (this.bühne.vorn ?? []).filter((f) => f?.m.sichtbar && !f.m.gesperrt);
    const vorn = formen.findLastIndex?.((f) => !f.m.umriss) ?? -1;
    return formen.slice(Math.max(0, vorn)).flatMap((form) =>
      [...form.stücke.values()].filter((s) => this.istZuKlein(s)).sort((a, b) => a.o.oben - b.o.oben || a.o.links - b.o.links));
  }

  istZuKlein({ m, o }) {
    if (!m.sichtbar || m.gesperrt || !m.heißt || !["Knopf", "Feld"].includes(m.rolle)) return false;
    return Math.min(o.breite, o.höhe) * this.bühne.faktor < FINGER;
  }

  folge() {
    const alle = this.klein.matches ? this.zuKlein() : [];
    const schlüssel = alle.map((s) => `${s.e.id} ${s.m.heißt} ${s.m.text ?? ""} ${s.m.zeile ?? ""}`).join("|");
    if (schlüssel === this.gezeigt) return;
    this.gezeigt = schlüssel;
    this.leisten.replaceChildren(...alle.map((s) => this.knopf(s)));
  }

  knopf(s) {
    const knopf = Object.assign(document.createElement("button"), { type: "button", textContent: this.beschriftung(s) });
    knopf.addEventListener("click", () => this.drücke(s));
    knopf.setAttribute("aria-hidden", "true"); // das Vorleseprogramm hat das Stück selbst
    knopf.tabIndex = -1;
    return knopf;
  }

  beschriftung({ m }) {
    if (m.feld === "Textfeld") return `${m.heißt}: ${m.text}`;
    if (m.zeilen) return `${m.heißt}: ${m.zeilen[m.zeile] ?? "…"}`;
    return m.heißt;
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
