// Schrift auf den Formen: gesetzt in Bildpunkten des Entwurfs, damit ein Text bei jeder Größe gleich umbricht; was nicht
// passt, wird kleiner, höchstens auf gut die Hälfte.
import { schriftmaße } from "./verzeichnis.js";

const SATZPUNKTE = 8; // je Bildpunkt des Entwurfs: so fein sind die Schriftgrößen der Sätze

/// Wie hell eine Farbe ist, 0 bis 255.
export function helligkeit(farbe) {
  const werte = [1, 3, 5].map((i) => parseInt(farbe.slice(i, i + 2), 16));
  return (Math.max(...werte) + Math.min(...werte)) / 2;
}

/// Die Zeilenhöhe der Schrift, in Graden.
export const zeilenhöhe = (schrift) => schriftmaße[schrift].reduce((summe, länge) => summe + länge);

/// Die Zeile eines Felds, ohne Durchschuss und mit ihm: ganze Bildpunkte der Seite; grad ebenso.
export function ganzeZeile(schrift, grad) {
  const [auf, ab, schuss] = schriftmaße[schrift], ganz = (länge) => Math.ceil(länge * grad - 0.001);
  return { eng: ganz(auf + ab), weit: ganz(auf + ab + schuss) };
}

const grundlinien = new Map();

/// Eine Schrift, die eben erst da ist, hat andere Maße als die, die für sie einsprang.
export function vergissMaße() {
  grundlinien.clear();
  for (const e of document.querySelectorAll("[data-wie]")) delete e.dataset.wie;
}

/// Wie weit unter der Oberkante ihrer Zeile die Grundlinie steht: jeder Browser rundet sie anders.
function grundlinie(schrift, stärke, grad, zeile) {
  const wie = [schrift, stärke, grad, zeile].join("|");
  if (!grundlinien.has(wie)) {
    const probe = document.body.appendChild(document.createElement("div")), marke = document.createElement("span");
    probe.style.cssText = `position:absolute;visibility:hidden;font:${stärke} ${grad}px/${zeile}px "${schrift}"`;
    marke.style.cssText = "display:inline-block;width:0;height:0";
    probe.append("x", marke);
    grundlinien.set(wie, marke.getBoundingClientRect().bottom - probe.getBoundingClientRect().top);
    probe.remove();
  }
  return grundlinien.get(wie);
}

/// Um wie viel der Satz zu heben ist, damit seine Oberlänge an der Oberkante der ersten Zeile beginnt.
export const hebung = (schrift, stärke, grad, zeile) => grundlinie(schrift, stärke, grad, zeile) - schriftmaße[schrift][0] * grad;

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
  const grad = passeEin(innen, Math.round(m.grad * SATZPUNKTE), zeile, schuss, breite, höhe);
  innen.style.top = `${(schuss / 2) * grad - hebung(m.schrift, m.stärke, grad, zeile * grad)}px`;
}

/// Gibt den Grad, mit dem der Text passt.
function passeEin(innen, anfang, zeile, schuss, breite, höhe) {
  const schritt = Math.max(1, Math.floor(anfang / 25));
  for (let g = anfang; ; g -= schritt) {
    const grad = g / SATZPUNKTE;
    innen.style.fontSize = `${grad}px`;
    if (g * 9 <= anfang * 5 || !innen.textContent) return grad;
    const zeilen = Math.round(innen.offsetHeight / (zeile * grad));
    if (innen.scrollWidth <= Math.ceil(breite) && (zeilen * zeile - schuss) * grad <= höhe) return grad;
  }
}
