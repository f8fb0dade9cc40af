// Die Knöpfe des Spiels: ihr Körper ist ein Bild, dessen Ecken bleiben und dessen Kanten sich strecken.
import { lade, größe, zeige } from "./bilder.js";
import { helligkeit, setze } from "./schrift.js";

const ECKE = 44; // so weit reichen die Ecken der Zustandsbilder, in ihren Punkten
const ZEILE = 17, NIEDRIG = 18; // Bildpunkte des Entwurfs
const JE_ENTWURF = 4; // ihre Punkte je Bildpunkt des Entwurfs
const ZUSTÄNDE = { ruhe: "ruhe", überfahren: "ruhe", gedrückt: "gedrueckt", gesperrt: "gesperrt" };

const hellOderSchwarz = (farbe) => farbe === "#000000" || helligkeit(farbe) > 200;

export function neuerKnopf() {
  const knopf = document.createElement("button");
  knopf.type = "button";
  knopf.tabIndex = -1;
  knopf.className = "knopf";
  const innen = Object.assign(document.createElement("span"), { className: "satz" });
  const bild = Object.assign(document.createElement("img"), { draggable: false, alt: "", hidden: true });
  knopf.append(document.createElement("canvas"), bild, innen);
  return knopf;
}

function zustand(knopf, m) {
  if (m.gesperrt) return "gesperrt";
  if (knopf.classList.contains("gedrückt")) return "gedrückt";
  return knopf.classList.contains("überfahren") ? "überfahren" : "ruhe";
}

/// Zeichnet den Körper in Bildpunkten des Bildschirms.
async function maleKörper(knopf, m, breite, höhe, faktor) {
  const z = zustand(knopf, m), wie = [z, m.erhaben, breite, höhe].join(" ");
  if (knopf.dataset.körper === wie) return;
  knopf.dataset.körper = wie;
  const vorlage = await lade(`formen/knopf/${ZUSTÄNDE[z]}`, 0);
  if (knopf.dataset.körper !== wie) return;
  const leinwand = knopf.firstChild, p = leinwand.getContext("2d");
  leinwand.width = breite;
  leinwand.height = höhe;
  p.imageSmoothingQuality = "high";
  const [B, H] = [vorlage.naturalWidth, vorlage.naturalHeight], fein = höhe < NIEDRIG * faktor ? 2 : 1; // ein niedriger Knopf hat feinere Kanten
  const je = faktor / JE_ENTWURF / fein;
  const ex = Math.min(ECKE * je, breite / 2), ey = Math.min(ECKE * je, höhe / 2);
  const vonX = [0, ECKE, B - ECKE, B], vonY = [0, ECKE, H - ECKE, H];
  const nachX = [0, ex, breite - ex, breite].map(Math.round), nachY = [0, ey, höhe - ey, höhe].map(Math.round);
  for (let x = 0; x < 3; ++x)
    for (let y = 0; y < 3; ++y)
      p.drawImage(vorlage, vonX[x], vonY[y], vonX[x + 1] - vonX[x], vonY[y + 1] - vonY[y], nachX[x], nachY[y],
        nachX[x + 1] - nachX[x], nachY[y + 1] - nachY[y]);
  p.globalCompositeOperation = "source-atop";
  for (const [gilt, farbe] of [[m.erhaben && !m.gesperrt, "rgb(255 206 32 / 49%)"], [z === "überfahren", "rgb(255 255 255 / 24%)"]])
    if (gilt) {
      p.fillStyle = farbe;
      p.fillRect(0, 0, breite, höhe);
    }
}

/// maß: Breite und Höhe in Bildpunkten des Bildschirms, faktor: je Bildpunkt des Entwurfs.
export function zeigeKnopf(knopf, m, breite, höhe, faktor) {
  maleKörper(knopf, m, breite, höhe, faktor).catch(() => knopf.classList.add("bloß"));
  const [, bild, satz] = knopf.children;
  const b = breite / faktor, h = höhe / faktor, seite = 5;
  const rand = Math.max(0, Math.min(3, (h - ZEILE) / 2)); // ein niedriger Knopf lässt der Schrift alle Höhe
  let oben = rand;
  if (m.bild) {
    if (m.text) oben = h - rand - (m.grad / (20 / 12)) * (26 / 12);
    const platzH = m.text ? oben - rand : h - 2 * rand, platzB = b - 2 * seite, roh = größe(m.bild);
    const k = Math.min(1 / 4, platzB / roh.b, platzH / roh.h);
    Object.assign(bild.style, {
      width: `${roh.b * k}px`, height: `${roh.h * k}px`, left: `${(b - roh.b * k) / 2}px`,
      top: `${rand + (platzH - roh.h * k) / 2}px`, opacity: m.gesperrt ? 0.45 : 1,
    });
  }
  zeige(bild, m.bild, breite);
  Object.assign(satz.style, { left: `${seite}px`, top: `${oben}px`, width: `${b - 2 * seite}px`, height: `${h - rand - oben}px` });
  satz.style.color = m.gesperrt ? "var(--blass)" : hellOderSchwarz(m.farbe) ? "var(--tinte)" : m.farbe;
  if (!satz.firstChild) satz.append(document.createElement("span"));
  setze(satz.firstChild, m, b - 2 * seite, h - rand - oben);
}
