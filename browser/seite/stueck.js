// Ein Stück einer Form als Element: Beschriftung, Bild, Knopf, Feld und was sonst zu sehen ist.
import { zeige } from "./bilder.js";
import { neuesFeld } from "./felder.js";
import { neuerKnopf, zeigeKnopf } from "./knopf.js";
import { helligkeit, setze, zeilenhöhe } from "./schrift.js";
import { film } from "./verzeichnis.js";
import { Filmart } from "./vorrat.js";

const neu = (art, klasse = "") => Object.assign(document.createElement(art), { className: klasse });
const mitBild = () => {
  const e = neu("div", "bild");
  e.append(Object.assign(neu("img"), { alt: "", draggable: false, hidden: true }));
  return e;
};

/// Nimmt neue Merkmale auf; null heißt, dass es eines nicht mehr gibt.
export function nimmAuf(merkmale, n) {
  for (const [name, wert] of Object.entries(n)) {
    if (wert === null) delete merkmale[name];
    else merkmale[name] = wert;
  }
}

/// Eine Farbe, so viel dunkler: ihr Wert durch anteil.
const dunkler = (farbe, anteil) =>
  `rgb(${[1, 3, 5].map((i) => Math.round(parseInt(farbe.slice(i, i + 2), 16) / anteil)).join(" ")})`;

// Wie ein Element der Sorte entsteht.
const BAU = {
  Beschriftung() {
    const e = neu("div", "satz");
    e.append(neu("span"));
    return e;
  },
  Bild: mitBild,
  Schatten: mitBild,
  Bildfeld: mitBild,
  Rahmen: () => neu("div", "rahmen"),
  Linie: () => neu("div", "linie"),
  Film: () => Object.assign(neu("video", "film"), { muted: true, playsInline: true, disablePictureInPicture: true, tabIndex: -1 }),
  Knopf: neuerKnopf,
};

const ROLLEN = { Knopf: "button", Bild: "img", Gruppe: "group", Ansage: "status", Feld: undefined, Text: undefined };

/// Jede Zeile des Textes in gleicher Höhe auf einer Linie, auf Wunsch mit Rang oder Medaille.
function zeigeListe(e, m, o) {
  const [zahl, rang, hervor] = m.liste, hoch = o.höhe / zahl, zeilen = m.text.split("\n");
  e.classList.add("tafel");
  e.classList.toggle("rang", Boolean(rang));
  e.style.setProperty("--zeile", `${hoch}px`);
  while (e.children.length < zahl) e.append(neu("span"));
  [...e.children].forEach((zeile, i) => {
    zeile.classList.toggle("hervor", i + 1 === hervor);
    if (!zeile.children.length) zeile.append(neu("i"), neu("b"));
    zeile.firstChild.textContent = rang ? i + 1 : "";
    const text = (zeilen[i] ?? "").trim();
    zeile.classList.toggle("leer", !text);
    zeile.firstChild.style.fontSize = `${m.grad * 0.66}px`;
    setze(zeile.lastChild, { ...m, text }, o.breite - (rang ? 1.37 : 0.44) * hoch, hoch);
  });
}

export class Stückelement {
  constructor(form, n) {
    this.form = form;
    this.m = {};
    const melde = (art, ...angaben) => form.bühne.melde(art, form.nummer, n.stück, ...angaben);
    if (n.sorte === "Feld") {
      this.feld = neuesFeld(n.feld, melde);
      this.e = this.feld.e;
      this.e.addEventListener("focus", () => melde("fokus"));
    } else this.e = BAU[n.sorte]();
    this.e.classList.add("stück");
    this.e.id = `s${form.nummer}-${n.stück}`;
    this.e.dataset.name = n.name;
    // Ein Klick ohne Zeiger kommt von einem Vorleseprogramm.
    this.e.addEventListener("click", (k) => k.detail === 0 && !this.feld && !form.bühne.vonTasten && melde("löseAus"));
  }

  nimm(n) {
    nimmAuf(this.m, n);
    this.zeige();
    this.sprich();
  }

  zeige() {
    const { e, m, form: { bühne } } = this;
    this.o = bühne.ort(m.voll && m.ort[3] >= 0 ? this.wachsort() : m.ort);
    const { links, oben, breite, höhe } = this.o;
    e.hidden = !m.sichtbar;
    if (m.sorte !== "Linie")
      Object.assign(e.style, { left: `${links}px`, top: `${oben}px`, width: `${breite}px`, height: `${höhe}px` });
    e.style.opacity = m.deckung ?? "";
    for (const art of ["schatten", "taste", "glanz"]) e.classList.toggle(art, Boolean(m[art]));
    if (e.title !== m.hinweis) e.title = m.hinweis ?? "";
    if (m.sichtbar) this[`zeige${m.sorte}`]();
  }

  /// Das Wachsende steht auf der Unterkante seiner vollen Höhe.
  wachsort() {
    const [x, y, b, h] = this.m.voll, hoch = Math.min(this.m.ort[3], h);
    return [x, y + h - hoch, b, hoch];
  }

  zeigeBeschriftung() {
    const { e, m } = this;
    e.style.color = m.gesperrt ? "var(--blass)" : m.farbe;
    e.classList.toggle("hell", helligkeit(m.farbe) >= 150);
    e.style.textAlign = ["left", "right", "center"][m.lage];
    e.classList.toggle("mittig", m.mittig);
    const schild = m.grund && m.text;
    e.classList.toggle("schild", Boolean(schild));
    e.style.backgroundColor = schild ? m.grund : "";
    e.style.borderColor = schild ? dunkler(m.grund, 1.6) : "";
    if (m.liste) return zeigeListe(e, m, this.o);
    // In jeder Größe bricht sie gleich um: ihr Platz bleibt ungerundet.
    const [breite, höhe] = m.ort.slice(2).map((twips) => twips / 12);
    e.style.width = `${breite}px`;
    e.style.height = `${höhe}px`;
    setze(e.firstChild, m, breite, höhe);
  }

  zeigeBild() {
    const { e, m, o, form: { bühne } } = this, img = e.firstChild;
    const voll = m.voll ? bühne.ort(m.voll) : o;
    zeige(img, m.bild, voll.breite * bühne.punkte);
    Object.assign(img.style, { width: `${voll.breite}px`, height: `${voll.höhe}px` });
    e.classList.toggle("umrandet", m.rand > 0 && !m.taste);
    e.classList.toggle("leuchtet", Boolean(m.schein));
    e.style.setProperty("--schein", m.schein ?? "");
    e.classList.toggle("schwebt", m.schwebt);
    e.style.transform = m.drehung ? `rotate(${m.drehung}deg)` : "";
  }

  /// Auf dem Grund, so fein wie der Entwurf.
  zeigeSchatten() {
    const { e, m, o } = this, img = e.firstChild;
    zeige(img, m.bild, o.breite);
    Object.assign(img.style, { width: "100%", height: "100%" });
  }

  zeigeBildfeld() {
    const { e, m, o, form: { bühne } } = this, img = e.firstChild;
    zeige(img, m.bild, o.breite * bühne.punkte);
    Object.assign(img.style, { width: "100%", height: "100%" });
    e.classList.toggle("mulde", !m.bild);
    e.classList.toggle("eingefasst", !m.bild || m.rand > 0);
  }

  zeigeRahmen() {
    const { e, m, o } = this;
    e.style.border = `${Math.max(m.rand, 1 / this.form.bühne.punkte)}px solid ${m.farbe}`;
    e.style.borderRadius = [`${m.rand / 2}px`, "50%", `${Math.min(o.breite, o.höhe) / 6}px`][m.gestalt];
  }

  zeigeLinie() {
    const { e, m } = this, [x, y, dx, dy] = m.ort.map((t) => t / 12), dick = Math.max(m.rand, 1 / this.form.bühne.punkte);
    const lang = Math.hypot(dx, dy);
    Object.assign(e.style, {
      left: `${x - dick / 2}px`, top: `${y - dick / 2}px`, width: `${lang + dick}px`, height: `${dick}px`, background: m.farbe,
      borderRadius: `${dick / 2}px`, transform: `rotate(${Math.atan2(dy, dx)}rad)`, transformOrigin: `${dick / 2}px ${dick / 2}px`,
    });
  }

  zeigeFilm() {}

  zeigeKnopf() {
    const { e, m, o, form: { bühne } } = this;
    e.classList.toggle("gesperrt", m.gesperrt);
    zeigeKnopf(e, m, Math.round(o.breite * bühne.punkte), Math.round(o.höhe * bühne.punkte), bühne.punkte);
  }

  zeigeFeld() {
    const { e, m, form: { bühne } } = this;
    if (m.schrift) {
      e.style.fontFamily = `"${m.schrift}", "DejaVu Sans", sans-serif`;
      e.style.fontWeight = m.stärke;
      this.grad = Math.round(m.grad * bühne.faktor) / bühne.faktor;
      e.style.fontSize = `${this.grad}px`;
      e.style.lineHeight = zeilenhöhe(m.schrift);
    }
    e.disabled = m.gesperrt;
    this.feld.folge(m, this.grad, bühne.faktor);
    this.passeFeldEin();
  }

  /// Verkleinert die Schrift, bis der Text in die Breite passt, höchstens auf zwei Drittel.
  passeFeldEin() {
    const { e, grad } = this;
    if (!e.matches("input")) return;
    for (let g = grad; g > (grad * 2) / 3 && e.scrollWidth > e.clientWidth; g -= 0.5) e.style.fontSize = `${g}px`;
  }

  /// Was ein Vorleseprogramm davon sagt. Was keinen Namen hat, ist Zierde.
  sprich() {
    const { e, m } = this, rolle = ROLLEN[m.rolle];
    const setzeAn = (name, wert) => (wert ? e.setAttribute(name, wert) : e.removeAttribute(name));
    setzeAn("aria-hidden", m.rolle ? "" : "true");
    if (!this.feld && m.sorte !== "Knopf") setzeAn("role", rolle);
    const benannt = rolle || this.feld;
    if (m.rolle !== "Ansage") setzeAn("aria-label", benannt && m.heißt);
    setzeAn("aria-description", m.dazu);
    setzeAn("aria-disabled", m.gesperrt ? "true" : "");
    if (!this.feld && m.rolle === "Knopf") e.tabIndex = -1;
  }

  /// Eine Bewegung zum Ansehen: Haltungen [x, y, Drehung, Breite, Höhe, anderes Bild] gegen den Ort.
  schwinge({ haltungen, ms }) {
    const bilder = haltungen.map(([x, y, drehung, b, h]) => ({
      transform: `translate(${x / 12}px, ${y / 12}px) rotate(${drehung}deg) scale(${b}, ${h})`,
    }));
    this.e.animate(bilder, { duration: ms });
    const anders = haltungen.filter((h) => h[5]).length;
    if (!anders) return;
    const img = this.e.firstChild, breite = this.o.breite * this.form.bühne.punkte;
    zeige(img, haltungen[0][5], breite);
    setTimeout(() => zeige(img, this.m.bild, breite), (ms * anders) / haltungen.length);
  }

  film(läuft) {
    const { e } = this;
    if (!e.src) {
      e.src = film[Filmart];
      e.load();
    }
    if (läuft) e.play().catch(() => {});
  }
}
