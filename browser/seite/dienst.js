// Der Dienst hinter der Seite: gibt sie aus dem Vorrat des Browsers, auch ohne Netz. FASSUNG setzt der Bau davor: name,
// kern (Datei -> SHA-256, alles, ohne das nichts geht) und dinge (Bilder, Töne, Film; ihr Name trägt ihren Abdruck).
const KERNVORRAT = "velmo-kern-" + FASSUNG.name;
const DINGVORRAT = "velmo-dinge"; // gilt über Fassungen hinweg: was gleich blieb, wird nicht noch einmal geholt
const GELTUNG = "velmo-geltung"; // welcher Kernvorrat zuletzt ganz ankam
const DINGE = new Set(FASSUNG.dinge);
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
  const stamm = (datei) => datei.replace(/\.[0-9a-f]{10}\./, ".");
  const da = new Set((await vorrat.keys()).map((anfrage) => anfrage.url.slice(wurzel.length)));
  const stämme = new Set([...da].map(stamm));
  await vorrat.addAll(FASSUNG.dinge.filter((d) => !da.has(d) && stämme.has(stamm(d))).map((d) => wurzel + d));
}

async function gelte() {
  await caches.open(GELTUNG).then((vorrat) => vorrat.put(wurzel + "kern", new Response(KERNVORRAT)));
}

/// Der Kernvorrat, dem der nächste Beginn gehört: auch der alte Dienst gibt schon die neue Seite, denn wann der Browser
/// die Dienste wechselt, ist seine Sache.
async function geltender() {
  return (await caches.match(wurzel + "kern", { cacheName: GELTUNG }))?.text() ?? KERNVORRAT;
}

/// Was zu keiner Seite mehr gehört, die noch steht, geht; nicht, was eben erst kommt: die Namen stehen vor der Frage fest,
/// ob eine neue Fassung unterwegs oder schon da ist.
async function räumeAuf() {
  if ((await self.clients.matchAll({ includeUncontrolled: true })).length > 1) return;
  const namen = await caches.keys();
  if (self.registration.installing || (await geltender()) !== KERNVORRAT) return;
  for (const name of namen)
    if (name.startsWith("velmo-kern-") && name !== KERNVORRAT) await caches.delete(name);
  const vorrat = await caches.open(DINGVORRAT);
  for (const anfrage of await vorrat.keys())
    if (!DINGE.has(anfrage.url.slice(wurzel.length))) await vorrat.delete(anfrage);
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
    const da = (await caches.match(wurzel + datei, { ...wahl, cacheName: await geltender() })) ??
      (await caches.match(wurzel + datei, wahl));
    if (da) return ausschnitt(da, anfrage.headers.get("Range"));
  } catch {} // der Browser verweigert den Vorrat: dann eben vom Netz
  const antwort = await fetch(anfrage);
  if (antwort.status === 200 && DINGE.has(datei)) {
    // Ist kein Platz mehr, spielt es sich weiter, nur nicht ohne Netz.
    const kopie = antwort.clone();
    await caches.open(DINGVORRAT).then((vorrat) => vorrat.put(wurzel + datei, kopie)).catch(() => {});
  }
  return antwort;
}

// Eine neue Fassung löst die alte sogleich ab, aber nie eine Seite, die schon steht: deren Dateien heißen nach ihrem
// Inhalt und bleiben. Erst der nächste Beginn bekommt die neue index.html.
self.addEventListener("install", (e) => e.waitUntil(
  holeKern().then(holeGeänderteDinge).then(gelte).then(() => self.skipWaiting(), async (fehler) => {
    await caches.delete(KERNVORRAT);
    throw fehler;
  })));
self.addEventListener("activate", (e) => e.waitUntil(self.clients.claim()));
self.addEventListener("fetch", (e) => {
  if (e.request.method === "GET" && e.request.url.startsWith(wurzel)) e.respondWith(antworte(e.request));
});
/// Eine Seite dieser Fassung steht: sie nennt eine ihrer Dateien.
self.addEventListener("message", (e) => {
  if (e.data in FASSUNG.kern) e.waitUntil(räumeAuf());
});
