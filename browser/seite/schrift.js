// Schrift auf den Formen: gesetzt in Bildpunkten des Entwurfs, damit ein Text bei jeder Größe gleich umbricht; was nicht
// passt, wird kleiner, höchstens auf gut die Hälfte.
import { schriftmaße } from "./verzeichnis.js";

const SATZPUNKTE = 8; // je Bildpunkt des Entwurfs: so fein sind die Schriftgrößen der Sätze

/// Die Zeilenhöhe der Schrift, in Graden.
export const zeilenhöhe = (schrift) => schriftmaße[schrift].reduce((summe, länge) => summe + länge);

/// Die Zeile eines Felds, ohne Durchschuss und mit ihm: ganze Bildpunkte der Seite; grad ebenso.
export function ganzeZeile(schrift, grad) {
  const [auf, ab, schuss] = schriftmaße[schrift], ganz = (länge) => Math.ceil(länge * grad - 0.001);
  return { eng: ganz(auf + ab), weit: ganz(auf + ab + schuss) };
}

/// Wie weit über der Mitte ihrer Zeile die Schrift steht, damit sie deren Oberkante berührt; Browser runden ihre Längen.
export function hebung(schrift, grad, zeile) {
  const [auf, ab] = schriftmaße[schrift].map((länge) => länge * grad);
  return (zeile - Math.round(auf) - Math.round(ab)) / 2 + Math.round(auf) - auf;
}

/// Setzt den Text in das innere Element des Stücks. platz: Breite und Höhe in Bildpunkten des Entwurfs.
export function setze(innen, m, breite, höhe) {
  const wie = [m.text, m.schrift, m.grad, m.stärke, breite, höhe].join("|");
  if (innen.dataset.wie === wie) return;
  innen.dataset.wie = wie;
  innen.textContent = m.text;
  // Über der ersten Zeile und unter der letzten steht kein Durchschuss.
  const zeile = zeilenhöhe(m.schrift), schuss = schriftmaße[m.schrift][2];
  Object.assign(innen.style, {
    fontFamily: `"${m.schrift}", "DejaVu Sans", sans-serif`, fontWeight: m.stärke, lineHeight: zeile, margin: `${-schuss / 2}em 0`,
  });
  passeEin(innen, Math.round(m.grad * SATZPUNKTE), zeile, schuss, breite, höhe);
}

function passeEin(innen, anfang, zeile, schuss, breite, höhe) {
  const schritt = Math.max(1, Math.floor(anfang / 25));
  for (let g = anfang; ; g -= schritt) {
    const grad = g / SATZPUNKTE;
    innen.style.fontSize = `${grad}px`;
    if (g * 9 <= anfang * 5 || !innen.textContent) return;
    const zeilen = Math.round(innen.offsetHeight / (zeile * grad));
    if (innen.scrollWidth <= Math.ceil(breite) && (zeilen * zeile - schuss) * grad <= höhe) return;
  }
}
