// Schrift auf den Formen: gesetzt in Bildpunkten des Entwurfs, damit ein Text bei jeder Größe gleich umbricht; was nicht
// passt, wird kleiner, höchstens auf gut die Hälfte.

// Wie hoch eine Zeile ist und welcher Teil davon Durchschuss, in Graden; über der ersten und unter der letzten steht
// keiner.
const ZEILEN = { "Lato": [1.2, 0.2], "URW Bookman": [1.324, 0], "Comic Neue": [1.15, 0] };

/// Die Zeilenhöhe der Schrift, in Graden.
export const zeilenhöhe = (schrift) => ZEILEN[schrift]?.[0] ?? 1.2;

/// Setzt den Text in das innere Element des Stücks. platz: Breite und Höhe in Bildpunkten des Entwurfs.
export function setze(innen, m, breite, höhe) {
  const wie = [m.text, m.schrift, m.grad, m.stärke, breite, höhe].join("|");
  if (innen.dataset.wie === wie) return;
  innen.dataset.wie = wie;
  innen.textContent = m.text;
  const [zeile, schuss] = ZEILEN[m.schrift] ?? ZEILEN["Lato"];
  Object.assign(innen.style, {
    fontFamily: `"${m.schrift}", "DejaVu Sans", sans-serif`, fontWeight: m.stärke, lineHeight: zeile, margin: `${-schuss / 2}em 0`,
  });
  passeEin(innen, m.grad, schuss, breite, höhe);
}

function passeEin(innen, grad, schuss, breite, höhe) {
  const schritt = Math.max(1 / 8, grad / 25);
  for (let g = grad; ; g -= schritt) {
    innen.style.fontSize = `${g}px`;
    if (g * 9 <= grad * 5 || !innen.textContent) return;
    if (innen.scrollWidth <= Math.ceil(breite) && innen.offsetHeight - schuss * g <= höhe + 0.5) return;
  }
}
