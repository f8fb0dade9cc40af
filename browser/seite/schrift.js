// Schrift auf den Formen: gesetzt in Bildpunkten des Entwurfs, damit ein Text bei jeder Größe gleich umbricht; was nicht
// passt, wird kleiner, höchstens auf gut die Hälfte.

/// Setzt den Text in das innere Element des Stücks. platz: Breite und Höhe in Bildpunkten des Entwurfs.
export function setze(innen, m, breite, höhe) {
  const wie = [m.text, m.schrift, m.grad, m.stärke, breite, höhe].join("|");
  if (innen.dataset.wie === wie) return;
  innen.dataset.wie = wie;
  innen.textContent = m.text;
  innen.style.fontFamily = `"${m.schrift}", "DejaVu Sans", sans-serif`;
  innen.style.fontWeight = m.stärke;
  passeEin(innen, m.grad, breite, höhe);
}

function passeEin(innen, grad, breite, höhe) {
  const schritt = Math.max(1 / 8, grad / 25);
  for (let g = grad; ; g -= schritt) {
    innen.style.fontSize = `${g}px`;
    if (g - schritt < (grad * 5) / 9 || !innen.textContent) return;
    if (innen.scrollWidth <= Math.ceil(breite) && innen.offsetHeight <= Math.ceil(höhe)) return;
  }
}
