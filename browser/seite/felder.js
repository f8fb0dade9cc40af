// Textfelder, Listen und Rollbalken sind die des Browsers; sie folgen dem Spiel und melden, was der Spieler tut. Ihre
// Schrift hat einen Grad von ganzen Bildpunkten der Seite, faktor je Bildpunkt des Entwurfs.
import { ganzeZeile, hebung } from "./schrift.js";

const neu = (art, eigenschaften = {}) => Object.assign(document.createElement(art), eigenschaften);

function textfeld(melde) {
  const e = neu("input", { type: "text", autocomplete: "off", spellcheck: false, enterKeyHint: "done" });
  e.addEventListener("input", () => melde("tippe", e.value.normalize("NFC")));
  return { e, folge: (m) => e.value.normalize("NFC") !== m.text && (e.value = m.text) };
}

const ZEILENABSTAND = 1.12; // des langen Textes
const HALB = 0.5; // Bildpunkt: ein Browser rundet eine Grundlinie, das Fenster rundet sie ab

/// Ein langer Text: Überschriften abgesetzt, Aufzählungen eingerückt; Längen in Schriftgrößen.
function textfläche() {
  const e = neu("div", { tabIndex: -1 });
  e.setAttribute("role", "document");
  const folgeBlick = () => {
    e.classList.toggle("am-anfang", e.scrollTop <= 0);
    e.classList.toggle("am-ende", e.scrollTop + e.clientHeight >= e.scrollHeight - 1);
  };
  e.addEventListener("scroll", folgeBlick, { passive: true });
  new ResizeObserver(folgeBlick).observe(e);
  const folge = (m, grad, faktor) => {
    const wie = [m.text, grad, faktor].join("|");
    if (wie === e.dataset.wie) return;
    e.dataset.wie = wie;
    const rand = 0.7 * grad;
    e.style.padding = `0 ${rand}px`; // oben und unten haben ihn die Zeilen: bis dorthin reicht der Schleier
    e.style.setProperty("--schleier", `${m.schleier * grad}px`);
    e.replaceChildren(...m.absätze.map(([satz, darüber, links, groß, farbe], i) => {
      const p = neu(groß === 1 ? "p" : "h3", { textContent: satz });
      const eigener = Math.floor(grad * faktor * groß + 0.001);
      const zeile = (ganzeZeile(m.schrift, eigener).weit * ZEILENABSTAND) / faktor;
      const stärke = groß === 1 ? m.stärke : 700;
      const oben = i ? darüber * grad : rand, unten = i < m.absätze.length - 1 ? 0 : rand;
      Object.assign(p.style, {
        margin: `${oben}px 0 ${unten}px ${links * grad}px`, fontSize: `${eigener / faktor}px`, lineHeight: `${zeile}px`,
        top: `${-hebung(m.schrift, stärke, eigener / faktor, zeile) - HALB / faktor}px`, color: farbe, fontWeight: stärke,
      });
      return p;
    }));
  };
  return { e, folge };
}

function auswahl(melde) {
  const e = neu("select");
  e.addEventListener("change", () => melde("wähle", e.selectedIndex));
  const folge = (m) => {
    if (e.options.length !== m.zeilen.length) e.replaceChildren(...m.zeilen.map((z) => neu("option", { textContent: z })));
    e.selectedIndex = m.zeile;
  };
  return { e, folge };
}

function liste(melde) {
  const e = neu("ul", { tabIndex: -1 });
  let zeile = -1, zahl = 0;
  const wähle = (i) => i >= 0 && i < zahl && i !== zeile && melde("wähle", i);
  e.setAttribute("role", "listbox");
  e.addEventListener("click", (k) => wähle([...e.children].indexOf(k.target.closest("li"))));
  e.addEventListener("dblclick", () => melde("doppelt"));
  e.addEventListener("keydown", (k) => {
    const ziel = { ArrowUp: zeile - 1, ArrowDown: zeile + 1, Home: 0, End: zahl - 1 }[k.key];
    if (ziel === undefined) return;
    k.preventDefault();
    wähle(ziel);
  });
  const folge = (m, grad, faktor) => {
    e.style.lineHeight = `${ganzeZeile(m.schrift, Math.round(grad * faktor)).eng / faktor}px`;
    const da = [...e.children].map((z) => z.textContent);
    if (da.length !== m.zeilen.length || m.zeilen.some((z, i) => z !== da[i]))
      e.replaceChildren(...m.zeilen.map((z) => {
        const li = neu("li", { textContent: z });
        li.setAttribute("role", "option");
        return li;
      }));
    zahl = m.zeilen.length;
    zeile = m.zeile;
    [...e.children].forEach((z, i) => z.setAttribute("aria-selected", i === zeile));
    e.children[zeile]?.scrollIntoView({ block: "nearest" });
  };
  return { e, folge };
}

/// Zwei Stellungen, oben und unten.
function rollbalken(melde) {
  const e = neu("div", { tabIndex: -1 });
  e.append(neu("i"));
  let wert = 0;
  const rolle = (w) => w !== wert && melde("rolle", w);
  e.setAttribute("role", "scrollbar");
  e.setAttribute("aria-orientation", "vertical");
  e.setAttribute("aria-valuemin", 0);
  e.setAttribute("aria-valuemax", 1);
  const nach = (p) => {
    const r = e.getBoundingClientRect();
    rolle(p.clientY < r.top + r.height / 2 ? 0 : 1);
  };
  e.addEventListener("pointerdown", (p) => (e.setPointerCapture(p.pointerId), nach(p)));
  e.addEventListener("pointermove", (p) => e.hasPointerCapture(p.pointerId) && nach(p));
  e.addEventListener("wheel", (r) => rolle(r.deltaY > 0 ? 1 : 0), { passive: true });
  e.addEventListener("keydown", (k) => {
    const ziel = { ArrowUp: 0, PageUp: 0, Home: 0, ArrowDown: 1, PageDown: 1, End: 1 }[k.key];
    if (ziel === undefined) return;
    k.preventDefault();
    rolle(ziel);
  });
  const folge = (m) => {
    wert = m.wert;
    e.classList.toggle("unten", wert > 0);
    e.setAttribute("aria-valuenow", wert);
  };
  return { e, folge };
}

const ARTEN = { Textfeld: textfeld, Textfläche: textfläche, Auswahl: auswahl, Liste: liste, Rollbalken: rollbalken };

/// Das Feld der Art: sein Element und was es auf den Stand der Merkmale bringt.
export function neuesFeld(art, melde) {
  const feld = ARTEN[art](melde);
  feld.e.classList.add("feld", art.toLowerCase());
  return feld;
}
