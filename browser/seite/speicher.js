// Charaktere und Bestenliste im Speicher des Browsers (IndexedDB): dort stehen dieselben Dateien wie im Ordner eines
// Spielers, Name und Bytes.

const Truhe = "velmo", Fach = "dateien";
const gehörtDazu = (name) => name === "besten.sav" || name.startsWith("charakter/");

const VERWEIGERT = "Dieser Browser lässt Velmo nichts behalten: Charaktere und Bestenliste gehen mit dem Schließen der " +
  "Seite verloren. Unter \"Dateien\" lassen sie sich vorher sichern.";
const VOLL = "Der Speicher des Browsers ist voll, der letzte Stand ließ sich nicht behalten. Er bleibt, solange die Seite " +
  "offen ist; unter \"Dateien\" lässt er sich sichern.";
const FREMD = "Was hier gespeichert war, ließ sich nicht lesen.";

const versprich = (anfrage) => new Promise((ja, nein) => {
  anfrage.onsuccess = () => ja(anfrage.result);
  anfrage.onerror = () => nein(anfrage.error);
});

async function öffne() {
  const anfrage = indexedDB.open(Truhe, 1);
  anfrage.onupgradeneeded = () => anfrage.result.createObjectStore(Fach);
  return versprich(anfrage);
}

/// Wird erst wahr, wenn es auf der Platte ist.
function trageEin(truhe, neue, fort) {
  return new Promise((ja, nein) => {
    const gang = truhe.transaction(Fach, "readwrite");
    gang.oncomplete = () => ja();
    gang.onabort = gang.onerror = () => nein(gang.error);
    for (const [name, bytes] of neue) gang.objectStore(Fach).put(bytes, name);
    for (const name of fort) gang.objectStore(Fach).delete(name);
  });
}

const gleich = (a, b) => a && a.length === b.length && a.every((x, i) => x === b[i]);

/// Die Dateien des Spielers im Ordner: Name -> Bytes.
export function dateien(FS, ordner) {
  const alle = new Map();
  const lies = (name) => {
    if (FS.isFile(FS.stat(`${ordner}/${name}`).mode)) alle.set(name, FS.readFile(`${ordner}/${name}`));
  };
  if (FS.analyzePath(`${ordner}/besten.sav`).exists) lies("besten.sav");
  for (const name of FS.readdir(`${ordner}/charakter`)) lies(`charakter/${name}`);
  return alle;
}

export class Speicher {
  /// melde: nimmt einen Satz für den Spieler.
  constructor(FS, ordner, melde) {
    Object.assign(this, { FS, ordner, melde, truhe: null, behalten: new Map(), gesagt: new Set(), schreibt: null });
  }

  /// Vor dem Beginn: legt das Behaltene in den Ordner und behält von da an, was das Spiel dort schreibt.
  async beginne() {
    this.FS.mkdirTree(`${this.ordner}/charakter`);
    try {
      this.truhe = await öffne();
      const fach = this.truhe.transaction(Fach).objectStore(Fach);
      const [namen, inhalte] = await Promise.all([versprich(fach.getAllKeys()), versprich(fach.getAll())]);
      namen.forEach((name, i) => this.nimm(name, inhalte[i]));
    } catch {
      this.sage(this.truhe ? FREMD : VERWEIGERT);
    }
    this.lausche();
  }

  nimm(name, bytes) {
    this.FS.writeFile(`${this.ordner}/${name}`, bytes);
    this.behalten.set(name, bytes);
  }

  /// Das Spiel schreibt eine Datei daneben und benennt sie um; was es löscht, ist gelöscht. Zwei offene Seiten erfahren
  /// voneinander, damit keine die Einträge der anderen überschreibt.
  lausche() {
    for (const name of ["rename", "unlink"]) {
      const wie = this.FS[name];
      this.FS[name] = (...worte) => {
        const ergebnis = wie(...worte);
        if (worte.some((w) => String(w).startsWith(this.ordner))) queueMicrotask(() => this.sichere());
        return ergebnis;
      };
    }
    if (!window.BroadcastChannel) return;
    this.rundruf = new BroadcastChannel("velmo-dateien");
    this.rundruf.onmessage = ({ data: { neue, fort } }) => {
      for (const [name, bytes] of neue) this.nimm(name, bytes);
      for (const name of fort) {
        this.behalten.delete(name);
        if (this.FS.analyzePath(`${this.ordner}/${name}`).exists) this.FS.unlink(`${this.ordner}/${name}`);
      }
    };
  }

  /// Behält, was sich im Ordner geändert hat; eine Sicherung nach der anderen.
  sichere() {
    this.schreibt = (this.schreibt ?? Promise.resolve()).then(() => this.sichereJetzt());
    return this.schreibt;
  }

  async sichereJetzt() {
    const da = dateien(this.FS, this.ordner);
    const neue = [...da].filter(([name, bytes]) => gehörtDazu(name) && !gleich(this.behalten.get(name), bytes));
    const fort = [...this.behalten.keys()].filter((name) => !da.has(name));
    if (neue.length + fort.length === 0) return;
    if (!this.truhe) return this.sage(VERWEIGERT);
    try {
      await trageEin(this.truhe, neue, fort);
    } catch (fehler) {
      return this.sage(fehler?.name === "QuotaExceededError" ? VOLL : VERWEIGERT);
    }
    for (const [name, bytes] of neue) this.behalten.set(name, bytes);
    for (const name of fort) this.behalten.delete(name);
    this.rundruf?.postMessage({ neue, fort });
    navigator.storage?.persist?.().catch(() => {});
  }

  /// Jeden Satz einmal.
  sage(satz) {
    if (!this.gesagt.has(satz)) this.melde(satz);
    this.gesagt.add(satz);
  }
}
