// Die Bilder: welches zu einem Namen gehört, und ihr Wechsel ohne Flackern.
import { bilder } from "./verzeichnis.js";
import { bildurl } from "./vorrat.js";

const geladene = new Map(); // Adresse -> Image, das da ist

const eintrag = (bild) => bilder[bild.toLowerCase().replace(/\.[^./]*$/, "")];

/// Die Größe in Punkten der Vorlage: vier sind ein Bildpunkt des Entwurfs.
export const größe = (bild) => eintrag(bild) ?? { b: 0, h: 0 };

/// Verspricht das geladene Bild, so fein wie die Breite in Bildpunkten des Bildschirms es braucht.
export function lade(bild, punkte) {
  const wo = eintrag(bild);
  if (!wo) return Promise.reject(new Error(`kein Bild ${bild}`));
  const url = bildurl(wo, punkte);
  if (!geladene.has(url)) {
    const neues = new Image();
    neues.src = url;
    geladene.set(url, neues.decode().then(() => neues, (fehler) => {
      geladene.delete(url);
      throw fehler;
    }));
  }
  return geladene.get(url);
}

const wartende = new Map(); // Element -> [Bild, Bildpunkte, Adresse]: was gezeigt werden soll, sobald es an der Reihe ist

/// Zeigt im Element das Bild, sobald es da ist; bis dahin bleibt das vorige. Was noch zu holen ist, wartet auf holeWartende.
export function zeige(img, bild, punkte) {
  const wo = bild && eintrag(bild);
  const url = wo ? bildurl(wo, punkte) : "";
  if (img.dataset.soll === url) return;
  img.dataset.soll = url;
  wartende.delete(img);
  if (!url) {
    img.removeAttribute("src");
    img.hidden = true;
  } else if (geladene.has(url)) zeigeGeladenes(img, bild, punkte, url);
  else wartende.set(img, [bild, punkte, url]);
}

const zeigeGeladenes = (img, bild, punkte, url) => lade(bild, punkte).then(() => {
  if (img.dataset.soll !== url) return;
  img.src = url;
  img.hidden = false;
}, () => {});

let vordere = Promise.resolve(); // erfüllt, wenn die vorderste Form ihre Bilder hat

/// Holt die wartenden Bilder: zuerst die der vordersten Form, dann die der verdeckten.
export function holeWartende(vorn) {
  if (wartende.size === 0) return vordere;
  const alle = [...wartende];
  wartende.clear();
  const hole = ([img, wahl]) => img.dataset.soll === wahl[2] && zeigeGeladenes(img, ...wahl);
  const eilige = alle.filter(([img]) => vorn?.contains(img));
  vordere = Promise.all([vordere, ...eilige.map(hole)]);
  vordere.then(() => alle.filter((a) => !eilige.includes(a)).forEach(hole));
  return vordere;
}
