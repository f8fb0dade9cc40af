// Was rings um die Anzeige ist: die Kanten der Szene laufen weich in ihre Farbe aus.
import { lade } from "./bilder.js";

const AUSLAUF = 0.16; // der Höhe der Anzeige: so weit reicht die Szene hinaus
const KANTE = 2; // Bildpunkte der Szene, die über ihre Kante hinaus verschmieren

/// Ein Balken neben der Anzeige: sein Ort, der Streifen der Szene an ihm, und quer zur Kante von innen nach außen.
function maleBalken(p, bild, ton, { ort: [x, y, b, h], kante, von, bis }) {
  if (b <= 0 || h <= 0) return;
  const seitlich = von[1] === bis[1], länge = Math.max(1, Math.floor((seitlich ? kante[3] : kante[2]) / 10));
  const klein = new OffscreenCanvas(seitlich ? 1 : länge, seitlich ? länge : 1), k = klein.getContext("2d");
  k.imageSmoothingQuality = "high";
  k.drawImage(bild, ...kante, 0, 0, klein.width, klein.height);
  p.drawImage(klein, x, y, b, h);
  const verlauf = p.createLinearGradient(...von, ...bis);
  // Die Deckung wächst weich, damit keine Kante zu sehen ist.
  for (const a of [0, 0.25, 0.5, 0.75, 1])
    verlauf.addColorStop(a, `${ton}${Math.round(255 * a * a * (3 - 2 * a)).toString(16).padStart(2, "0")}`);
  p.fillStyle = verlauf;
  p.fillRect(x, y, b, h);
}

/// Steht etwas Kleines mitten auf der Seite, so liegt Licht um die Mitte.
function maleSchein(p, breite, höhe, ton) {
  const schein = p.createRadialGradient(breite / 2, höhe / 2, 0, breite / 2, höhe / 2, Math.hypot(breite, höhe) / 2);
  schein.addColorStop(0, `color-mix(in srgb, ${ton}, white 15%)`);
  schein.addColorStop(1, `color-mix(in srgb, ${ton}, black 41%)`);
  p.fillStyle = schein;
  p.fillRect(0, 0, breite, höhe);
}

export async function maleUmland(leinwand, bühne) {
  const { ton, bild } = bühne.umland, dichte = devicePixelRatio;
  document.body.style.backgroundColor = ton;
  document.querySelector("meta[name=theme-color]").content = ton;
  const breite = Math.round(innerWidth * dichte), höhe = Math.round(innerHeight * dichte);
  leinwand.width = breite;
  leinwand.height = höhe;
  const p = leinwand.getContext("2d");
  if (!bild) {
    try {
      maleSchein(p, breite, höhe, ton);
    } catch {} // ein Browser, der keine Farben mischt
    return;
  }
  const szene = await lade(bild, 800 * bühne.punkte).catch(() => null);
  if (!szene || bild !== bühne.umland.bild) return;
  const [l, o] = [bühne.ecke.x * dichte, bühne.ecke.y * dichte].map(Math.round);
  const b = Math.round(800 * bühne.punkte), h = Math.round(600 * bühne.punkte), r = l + b, u = o + h, weit = h * AUSLAUF;
  const [B, H, je] = [szene.naturalWidth, szene.naturalHeight, szene.naturalWidth / b], k = Math.ceil(KANTE * je);
  p.fillStyle = ton;
  p.fillRect(0, 0, breite, höhe);
  const balken = [
    { ort: [0, o, l, h], kante: [0, 0, k, H], von: [l, o], bis: [l - weit, o] },
    { ort: [r, o, breite - r, h], kante: [B - k, 0, k, H], von: [r, o], bis: [r + weit, o] },
    { ort: [l, 0, b, o], kante: [0, 0, B, k], von: [l, o], bis: [l, o - weit] },
    { ort: [l, u, b, höhe - u], kante: [0, H - k, B, k], von: [l, u], bis: [l, u + weit] },
  ];
  for (const einer of balken) maleBalken(p, szene, ton, einer);
}
