// Der Dienst hinter der Seite: gibt sie aus dem Vorrat des Browsers, auch ohne Netz. FASSUNG setzt der Bau davor: name,
// kern (Datei -> SHA-256, alles, ohne das nichts geht) und dinge (Bilder, Töne, Film; ihr Name trägt ihren Abdruck).
const KERNVORRAT = "velmo-kern-" + FASSUNG.name;
const DINGVORRAT = "velmo-dinge"; // gilt über Fassungen hinweg: was gleich blieb, wird nicht noch einmal geholt
const GELTUNG = "velmo-geltung"; // welche Fassung zuletzt ganz ankam
const ABDRUCK = /\.[0-9a-f]{10}\./; // im Namen jedes Dings
const wurzel = new URL("./", self.location).href;

async function prüfsumme(bytes) {
  const summe = await crypto.subtle.digest("SHA-256", bytes);
  return [...new Uint8Array(summe)].map((b) => b.toString(16).padStart(2, "0")).join("");
}

/// Eine Fassung ist ganz da oder gar nicht: stimmt eine Datei nicht, weil der Server gerade gewechselt wird, gilt die alte.
async function holeKern() {
  const vorrat = await caches.open(KERNVORRAT);
  await Promise.all(Object.entries(FASSUNG.kern).map(async ([datei, soll]) => {
    const antwort = await fetch(wurzel + datei, { cache: "no-cache" });
    const bytes = await antwort.arrayBuffer();
    if (!antwort.ok || (await prüfsumme(bytes)) !== soll) throw new Error(datei + " gehört nicht zu dieser Fassung");
    const art = antwort.headers.get("Content-Type");
    await vorrat.put(wurzel + datei, new Response(bytes, { headers: { "Content-Type": art } }));
  }));
}

/// Löst eine Fassung die andere ab, soll sie ohne Netz so ganz sein wie die alte: was die an Dingen hatte und nun anders
/// ist, kommt mit ihr; was noch fehlte, holt die Seite in Ruhe.
async function holeGeänderteDinge() {
  const vorrat = await caches.open(DINGVORRAT);
  const stamm = (datei) => datei.replace(ABDRUCK, ".");
  const da = new Set((await vorrat.keys()).map((anfrage) => anfrage.url.slice(wurzel.length)));
  const stämme = new Set([...da].map(stamm));
  await vorrat.addAll(FASSUNG.dinge.filter((d) => !da.has(d) && stämme.has(stamm(d))).map((d) => wurzel + d));
}

async function gelte() {
  const fassung = JSON.stringify({ kernvorrat: KERNVORRAT, dinge: FASSUNG.dinge });
  await caches.open(GELTUNG).then((vorrat) => vorrat.put(wurzel + "fassung", new Response(fassung)));
}

/// Die Fassung, der der nächste Beginn gehört: auch der alte Dienst gibt schon die neue Seite, denn wann der Browser die
/// Dienste wechselt, ist seine Sache.
async function geltende() {
  const antwort = await caches.match(wurzel + "fassung", { cacheName: GELTUNG });
  return antwort ? antwort.json() : { kernvorrat: KERNVORRAT, dinge: FASSUNG.dinge };
}

/// Steht eine Seite der geltenden Fassung allein, geht, was nicht zu ihr gehört; nicht, was eben erst kommt: was da ist,
/// steht vor der Frage fest, ob eine neue Fassung unterwegs oder schon da ist.
async function räumeAuf(dateiDerSeite) {
  const kerne = (await caches.keys()).filter((name) => name.startsWith("velmo-kern-"));
  const dingvorrat = await caches.open(DINGVORRAT);
  const anfragen = await dingvorrat.keys();
  const { kernvorrat, dinge } = await geltende();
  const ihre = await caches.match(wurzel + dateiDerSeite, { cacheName: kernvorrat });
  const seiten = await self.clients.matchAll({ includeUncontrolled: true });
  if (!ihre || seiten.length > 1 || self.registration.installing) return;
  for (const name of kerne) if (name !== kernvorrat) await caches.delete(name);
  const gebraucht = new Set(dinge.map((ding) => wurzel + ding));
  for (const anfrage of anfragen) if (!gebraucht.has(anfrage.url)) await dingvorrat.delete(anfrage);
}

/// Wer einen Ton abspielt, fragt nach Ausschnitten; Safari nimmt nichts anderes.
async function ausschnitt(antwort, bereich) {
  const [, von, bis] = /^bytes=(\d+)-(\d*)$/.exec(bereich ?? "") ?? [];
  if (von === undefined) return antwort;
  const ganz = await antwort.blob(), letztes = bis ? Math.min(Number(bis), ganz.size - 1) : ganz.size - 1;
  return new Response(ganz.slice(Number(von), letztes + 1), {
    status: 206,
    headers: {
      "Content-Type": antwort.headers.get("Content-Type"),
      "Content-Range": `bytes ${von}-${letztes}/${ganz.size}`,
      "Content-Length": letztes + 1 - Number(von),
    },
  });
}

async function antworte(anfrage) {
  const ort = new URL(anfrage.url);
  let datei = (ort.origin + ort.pathname).slice(wurzel.length);
  if (anfrage.mode === "navigate" && datei === "") datei = "index.html";
  try {
    const wahl = { ignoreVary: true };
    const da = (await caches.match(wurzel + datei, { ...wahl, cacheName: (await geltende()).kernvorrat })) ??
      (await caches.match(wurzel + datei, wahl));
    if (da) return ausschnitt(da, anfrage.headers.get("Range"));
  } catch {} // der Browser verweigert den Vorrat: dann eben vom Netz
  const antwort = await fetch(anfrage);
  if (antwort.status === 200 && ABDRUCK.test(datei)) {
    // Ist kein Platz mehr, spielt es sich weiter, nur nicht ohne Netz.
    const kopie = antwort.clone();
    await caches.open(DINGVORRAT).then((vorrat) => vorrat.put(wurzel + datei, kopie)).catch(() => {});
  }
  return antwort;
}

// Ein neuer Dienst wartet, bis keine Seite mehr steht: löste er den alten mittendrin ab, bliebe in Chromium ein Beginn
// im selben Augenblick ohne Antwort. Die neue Seite gibt bis dahin der alte.
self.addEventListener("install", (e) => e.waitUntil(
  holeKern().then(holeGeänderteDinge).then(gelte).catch(async (fehler) => {
    await caches.delete(KERNVORRAT);
    throw fehler;
  })));
// Der allererste nimmt die Seite an, die ihn geholt hat.
self.addEventListener("activate", (e) => e.waitUntil(self.clients.claim()));
self.addEventListener("fetch", (e) => {
  if (e.request.method === "GET" && e.request.url.startsWith(wurzel)) e.respondWith(antworte(e.request));
});
/// Eine Seite steht und nennt eine ihrer Dateien.
self.addEventListener("message", (e) => e.waitUntil(räumeAuf(e.data)));
