// Eine Form auf der Bühne und die Stücke darauf.
import { zeige } from "./bilder.js";
import { nimmAuf, Stückelement } from "./stueck.js";

const neu = (klasse, art = "div") => Object.assign(document.createElement(art), { className: klasse });

export class Formelement {
  constructor(bühne, nummer) {
    this.bühne = bühne;
    this.nummer = nummer;
    this.m = {};
    this.stücke = new Map();
    this.e = neu("form");
    this.saum = this.e.appendChild(neu("saum"));
    this.inhalt = this.e.appendChild(neu("inhalt"));
    this.grund = this.inhalt.appendChild(neu("grund", "img"));
    this.grund.alt = "";
    this.grund.hidden = true;
    this.zeichnung = this.inhalt.appendChild(neu("zeichnung"));
  }

  nimm(n) {
    nimmAuf(this.m, n);
    this.zeigeForm(n);
  }

  zeigeAlles() {
    this.zeigeForm(this.m);
    for (const stück of this.stücke.values()) stück.zeige();
  }

  /// anders: die Merkmale, die neu sind.
  zeigeForm(anders) {
    const { e, m, bühne } = this, [x, y, b, h] = m.ort;
    const o = { links: bühne.länge(x), oben: bühne.länge(y), breite: bühne.länge(b), höhe: bühne.länge(h) };
    this.o = o;
    e.dataset.form = m.name;
    e.hidden = !m.sichtbar;
    e.inert = m.gesperrt;
    Object.assign(e.style, { left: `${o.links}px`, top: `${o.oben}px`, width: `${o.breite}px`, height: `${o.höhe}px` });
    e.setAttribute("role", m.dialog ? "dialog" : "group");
    e.setAttribute("aria-label", m.heißt);
    e.classList.toggle("schatten", m.schatten);
    this.inhalt.classList.toggle("papier", !m.bild);
    this.inhalt.classList.toggle("gerahmt", !m.bild && m.schatten);
    // Solange das Bild unterwegs ist, deckt die Farbe, was dahinter liegt; eine ausgeschnittene Form kann durchscheinen.
    this.inhalt.style.backgroundColor = m.umriss && m.bild ? "" : m.farbe;
    this.inhalt.style.clipPath = m.umriss ? `path("${m.umriss}")` : "";
    zeige(this.grund, m.bild, o.breite * bühne.punkte);
    if (anders.zeichnung) this.zeigeZeichnung();
    this.zeigeSaum();
  }

  zeigeZeichnung() {
    this.zeichnung.replaceChildren(...this.m.zeichnung.map(([ort, farbe]) => {
      const fleck = neu("fleck"), o = this.bühne.ort(ort);
      Object.assign(fleck.style, {
        left: `${o.links}px`, top: `${o.oben}px`, width: `${o.breite}px`, height: `${o.höhe}px`, background: farbe,
      });
      return fleck;
    }));
  }

  /// Das Bild der Form, über ihre Kanten hinaus gespiegelt.
  zeigeSaum() {
    const { m, o, bühne } = this, weite = m.saum.map((t) => bühne.länge(t));
    this.saum.hidden = !m.bild || weite.every((w) => w === 0);
    if (this.saum.hidden) return;
    const [links, oben, rechts, unten] = weite;
    Object.assign(this.saum.style, { left: `${-links}px`, top: `${-oben}px`, right: `${-rechts}px`, bottom: `${-unten}px` });
    while (this.saum.children.length < 4) this.saum.append(Object.assign(neu("", "img"), { alt: "", hidden: true }));
    const wege = [[-o.breite, 0], [o.breite, 0], [0, -o.höhe], [0, o.höhe]];
    wege.forEach(([dx, dy], i) => {
      const spiegel = this.saum.children[i];
      zeige(spiegel, m.bild, o.breite * bühne.punkte);
      Object.assign(spiegel.style, {
        left: `${links + dx}px`, top: `${oben + dy}px`, width: `${o.breite}px`, height: `${o.höhe}px`,
        transform: dx ? "scaleX(-1)" : "scaleY(-1)",
      });
    });
  }

  stück(n) {
    let stück = this.stücke.get(n.stück);
    if (!stück) {
      stück = new Stückelement(this, n);
      this.stücke.set(n.stück, stück);
      this.inhalt.append(stück.e);
    }
    stück.nimm(n);
  }

  stückfolge(n) {
    n.stücke.forEach((nummer, i) => (this.stücke.get(nummer).e.style.zIndex = i + 1));
    for (const [nummer, stück] of this.stücke)
      if (!n.stücke.includes(nummer)) {
        stück.e.remove();
        this.stücke.delete(nummer);
      }
  }

  /// In welcher Folge vorgelesen wird.
  lesefolge({ stellen }) {
    const kennung = (nummer) => `s${this.nummer}-${nummer}`;
    const besitz = (gruppe) => stellen.filter((s) => s[1] === gruppe).map((s) => kennung(s[0])).join(" ");
    this.e.setAttribute("aria-owns", besitz(null));
    for (const [nummer] of stellen) {
      const eigene = besitz(nummer);
      if (eigene) this.stücke.get(nummer)?.e.setAttribute("aria-owns", eigene);
    }
  }

  schwung(n) {
    this.stücke.get(n.stück)?.schwinge(n);
  }

  /// Ein Wölkchen Staub, das aufsteigt und vergeht.
  wölkchen({ stand, ms }) {
    const wolke = this.inhalt.appendChild(neu("wölkchen"));
    const bilder = stand.map(([offset, x, y, größe, deckung]) => ({
      offset, opacity: deckung, transform: `translate(${x / 12}px, ${y / 12}px) scale(${größe / 12 / 48})`,
    }));
    wolke.animate(bilder, { duration: ms }).onfinish = () => wolke.remove();
  }

  film(n) {
    this.stücke.get(n.stück)?.film(n.läuft);
  }

  zeigeKnöpfe() {
    for (const stück of this.stücke.values()) if (stück.m.sorte === "Knopf") stück.zeige();
  }
}
