// Die Bühne: 800 mal 600 Bildpunkte des Entwurfs, auf die Seite gestreckt; jede Form und jedes Stück darauf ein Element,
// das den Merkmalen folgt, die das Spiel nennt.
import { holeWartende, zeige } from "./bilder.js";
import { Formelement } from "./form.js";
import { vergissMaße } from "./schrift.js";
import { maleUmland } from "./umland.js";

const BREITE = 800, HÖHE = 600;
const TWIPS = 12; // je Bildpunkt des Entwurfs

export class Bühne {
  constructor(anzeige, melde) {
    this.anzeige = anzeige;
    this.melde = melde;
    this.formen = new Map();
    this.fokus = null;
    this.umland = { ton: "#000000" };
    this.beimMenü = null;
    this.ring = anzeige.appendChild(Object.assign(document.createElement("div"), { id: "ring", hidden: true }));
    this.zieh = anzeige.appendChild(Object.assign(document.createElement("img"), { id: "ziehbild", hidden: true, alt: "" }));
    this.rand = document.body.insertBefore(Object.assign(document.createElement("canvas"), { id: "rand" }), anzeige);
    addEventListener("resize", () => this.messe());
    matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener?.("change", () => this.messe());
    document.fonts.addEventListener("loadingdone", () => {
      vergissMaße();
      for (const form of this.formen.values()) form.zeigeAlles();
    });
    this.messe();
  }

  /// Legt die Bühne in die Mitte, so groß es geht, ihre Ecke auf einen ganzen Bildpunkt.
  messe() {
    const dichte = devicePixelRatio, platz = this.platz?.() ?? { x: 0, y: 0, breite: innerWidth, höhe: innerHeight };
    this.faktor = Math.min(platz.breite / BREITE, platz.höhe / HÖHE);
    this.punkte = this.faktor * dichte; // Bildpunkte des Bildschirms je Bildpunkt des Entwurfs
    const ganz = (länge) => Math.round(länge * dichte) / dichte;
    this.ecke = {
      x: ganz(platz.x + (platz.breite - BREITE * this.faktor) / 2),
      y: ganz(platz.y + (platz.höhe - HÖHE * this.faktor) / 2),
    };
    this.anzeige.style.transform = `translate(${this.ecke.x}px, ${this.ecke.y}px) scale(${this.faktor})`;
    document.documentElement.style.setProperty("--punkt", `${this.faktor}px`);
    for (const form of this.formen.values()) form.zeigeAlles();
    this.zeigeRing();
    maleUmland(this.rand, this);
    this.fertig();
  }

  /// Eine Länge in Twips als Bildpunkte des Entwurfs, deren Kante auf einem Bildpunkt des Bildschirms liegt.
  länge(twips) {
    return Math.round((twips / TWIPS) * this.punkte) / this.punkte;
  }

  /// Ein Ort [Left, Top, Width, Height]: gerundet werden Kanten, nicht Breiten.
  ort([x, y, b, h]) {
    const links = this.länge(x), oben = this.länge(y);
    return { links, oben, breite: this.länge(x + b) - links, höhe: this.länge(y + h) - oben };
  }

  /// Ein Ort der Seite in Twips auf der Anzeige.
  twips(x, y) {
    return [((x - this.ecke.x) / this.faktor) * TWIPS, ((y - this.ecke.y) / this.faktor) * TWIPS];
  }

  nimm(n) {
    this[{
      form: "nimmForm", weg: "nimmWeg", formfolge: "nimmFormfolge", stück: "anForm", stückfolge: "anForm", schwung: "anForm", wölkchen: "anForm",
      film: "anForm", fokus: "nimmFokus", ziehbild: "nimmZiehbild", umland: "nimmUmland", tasten: "nimmTasten", farben: "nimmFarben", lesbare: "nimmLesbare", lesefolge: "anForm",
    }[n.art]](n);
  }

  nimmForm(n) {
    let form = this.formen.get(n.form);
    if (!form) {
      form = new Formelement(this, n.form);
      this.formen.set(n.form, form);
      this.anzeige.append(form.e);
    }
    form.nimm(n);
    if (form.m.name === "Menu" && form.m.sichtbar) this.beimMenü?.();
  }

  nimmWeg(n) {
    this.formen.get(n.form)?.e.remove();
    this.formen.delete(n.form);
  }

  nimmFormfolge(n) {
    n.formen.forEach((nummer, i) => (this.formen.get(nummer).e.style.zIndex = i));
    this.vorn = n.formen.map((nummer) => this.formen.get(nummer));
  }

  anForm(n) {
    this.formen.get(n.form)?.[n.art](n);
  }

  /// Das Element eines Steuerelements; ohne Wert, wenn es keins hat.
  element(n) {
    return this.formen.get(n?.form)?.stücke.get(n.stück)?.e;
  }

  nimmFokus(n) {
    this.fokus = n.ort ? n : null;
    this.zeigeRing();
    const e = this.element(n);
    for (const gehalten of this.anzeige.querySelectorAll(".knopf.vonTasten"))
      if (gehalten !== e || n.lage !== "gedrückt") gehalten.classList.remove("vonTasten", "gedrückt");
    if (e && n.lage === "gedrückt" && e.classList.contains("knopf")) e.classList.add("vonTasten", "gedrückt");
    this.zeigeKnöpfe();
    if (!e || e === document.activeElement || document.querySelector("dialog[open]")) return;
    // Ein Finger, der kein Feld berührt, soll keine Tastatur hervorholen.
    if (this.finger && e.matches("input, textarea")) return;
    e.focus({ preventScroll: true });
  }

  zeigeRing() {
    const f = this.fokus;
    this.ring.hidden = !f?.sichtbar;
    if (this.ring.hidden) return;
    const o = this.ort(f.ort), weit = 5.2;
    const links = Math.max(0, o.links - weit), oben = Math.max(0, o.oben - weit);
    Object.assign(this.ring.style, {
      left: `${links}px`, top: `${oben}px`,
      width: `${Math.min(BREITE, o.links + o.breite + weit) - links}px`,
      height: `${Math.min(HÖHE, o.oben + o.höhe + weit) - oben}px`,
    });
    this.ring.className = f.lage;
  }

  nimmZiehbild(n) {
    const stück = this.formen.get(n.form)?.stücke.get(n.stück);
    this.zieh.hidden = !stück;
    if (!stück) return;
    const o = this.ort(n.ort);
    zeige(this.zieh, stück.m.bild, o.breite * this.punkte);
    Object.assign(this.zieh.style, { left: `${o.links}px`, top: `${o.oben}px`, width: `${o.breite}px`, height: `${o.höhe}px` });
  }

  /// Was eine Form ganz verdeckt, liest niemand vor.
  nimmLesbare(n) {
    for (const [nummer, form] of this.formen) form.e.setAttribute("aria-hidden", !n.formen.includes(nummer));
  }

  /// Die Farben der Seite sind die des Spiels.
  nimmFarben({ art, ...farben }) {
    for (const [name, farbe] of Object.entries(farben)) document.documentElement.style.setProperty(`--${name}`, farbe);
  }

  nimmTasten(n) {
    this.tasten = n;
  }

  nimmUmland(n) {
    this.umland = n;
    maleUmland(this.rand, this);
  }

  zeigeKnöpfe() {
    for (const form of this.formen.values()) form.zeigeKnöpfe();
  }

  wennMenü(tut) {
    this.beimMenü = () => {
      this.beimMenü = null;
      tut();
    };
    if ([...this.formen.values()].some((f) => f.m.name === "Menu" && f.m.sichtbar)) this.beimMenü();
  }

  /// Nach jedem Bündel; was nur zu einer Form gehört, sieht an der Seite, welche vorn steht.
  fertig() {
    const stehende = [...this.formen.values()].filter((f) => f.m.sichtbar).sort((a, b) => a.e.style.zIndex - b.e.style.zIndex);
    const vorn = stehende.at(-1);
    document.body.dataset.vorn = vorn?.m.name ?? "";
    this.bilderDa = holeWartende(vorn?.e);
  }
}
