// Was noch nicht gebraucht wurde, wird in ruhigen Augenblicken geholt: dann kommt es später ohne Warten, und die Seite
// geht ganz ohne Netz.
import { bilder, film, töne } from "./verzeichnis.js";

/// Welche der zwei Tonarten dieser Browser spielt: "opus" oder "m4a".
export const Tonart = new Audio().canPlayType('audio/ogg; codecs="opus"') ? "opus" : "m4a";
/// Ebenso der Film: "webm" oder "mp4".
export const Filmart = document.createElement("video").canPlayType('video/webm; codecs="vp9"') ? "webm" : "mp4";

/// Das Bild für so viele Punkte der Anzeige in der Breite.
export const bildurl = (bild, punkte) => (bild.halb && punkte <= bild.b / 2 + 1 ? bild.halb : bild.bild);

/// Alle Adressen, die dieser Browser je braucht, die nächsten zuerst. Eine Anzeige, der die halben Bilder genügen, holt
/// die ganzen nicht.
function alle() {
  const faktor = window.devicePixelRatio * Math.min(screen.width / 800, screen.height / 600);
  const klein = Math.max(faktor, 1) <= 2;
  const gebraucht = Object.values(bilder).map((b) => (klein && b.halb) || b.bild);
  return [...gebraucht, ...Object.values(töne).map((t) => t[Tonart]), film[Filmart]];
}

const ruhe = () => new Promise((weiter) => {
  if (window.requestIdleCallback) requestIdleCallback(weiter, { timeout: 2000 });
  else setTimeout(weiter, 100);
});

/// Holt alles, eines nach dem anderen; ist es da, sagt die Seite data-vorrat="ganz". Wer Daten sparen will, dem bleibt es
/// beim Nötigen.
export async function vorlade() {
  if (navigator.connection?.saveData) return;
  for (const url of alle()) {
    await ruhe();
    if (document.hidden) await new Promise((f) => document.addEventListener("visibilitychange", f, { once: true }));
    try {
      const antwort = await fetch(url, { priority: "low" });
      await antwort.arrayBuffer();
      if (!antwort.ok) return;
    } catch {
      return; // das Netz ist fort; beim nächsten Besuch geht es weiter
    }
  }
  document.body.dataset.vorrat = "ganz";
}
