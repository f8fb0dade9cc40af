// Töne und Stücke, geladen, wenn sie zum ersten Mal gebraucht werden. Wie weit ein Stück ist, weiß das Spiel; hier klingt
// es nur, und erst nach der ersten Berührung.
import { töne } from "./verzeichnis.js";
import { Tonart } from "./vorrat.js";

const STUFEN = 10; // der Lautstärke; 10 ist, wie laut das Spiel gemeint ist
const ZU_SPÄT = 700; // ms; eine Welle, die so lange lud, gehört zu nichts mehr
const LANG = 10000; // ms; was länger dauert, wird nicht ganz in den Speicher geholt

export class Klang {
  constructor(sage) {
    this.sage = sage;
    this.stimmen = new Map();
    this.wellen = new Map(); // Name -> Versprechen des Puffers
    this.stufe = STUFEN;
    this.stumm = false;
    try {
      const gemerkt = JSON.parse(localStorage.getItem("velmo-ton") ?? "{}");
      this.stufe = gemerkt.stufe ?? STUFEN;
      this.stumm = gemerkt.stumm ?? false;
    } catch {}
  }

  get anteil() {
    return this.stumm ? 0 : this.stufe / STUFEN;
  }

  /// Nach der ersten Berührung darf es klingen; was schon läuft, setzt ein.
  erlaube() {
    if (this.raum?.state === "running") return;
    const Raum = window.AudioContext ?? window.webkitAudioContext;
    if (!Raum) return;
    if (!this.raum) {
      this.raum = new Raum();
      this.regler = this.raum.createGain();
      this.regler.gain.value = this.anteil;
      this.regler.connect(this.raum.destination);
    }
    this.raum.resume().then(() => {
      for (const s of this.stimmen.values()) if (s.lang && !s.audio) this.beginne(s);
    }, () => {});
  }

  nimm(n) {
    if (n.art === "ton") this.spiele(n);
    else if (n.art === "stille") this.lass(n.nummer);
    else this.piepe();
  }

  spiele({ nummer, name }) {
    const ton = töne[name.replace(/\.[^.]*$/, "")];
    if (!ton) return;
    const stimme = { url: ton[Tonart], lang: ton.ms > LANG, beginn: performance.now() };
    this.stimmen.set(nummer, stimme);
    if (this.raum) this.beginne(stimme);
  }

  beginne(stimme) {
    if (stimme.lang) this.beginneStück(stimme);
    else this.beginneWelle(stimme).catch(() => {});
  }

  /// Stücke sind groß: sie beginnen, wenn das erste Menü seine Bilder hat.
  erlaubeStücke() {
    this.mitStücken = true;
    if (this.raum) for (const s of this.stimmen.values()) if (s.lang && !s.audio) this.beginne(s);
  }

  beginneStück(s) {
    if (!this.mitStücken) return;
    s.audio = new Audio(s.url);
    s.audio.volume = this.anteil;
    s.audio.addEventListener("loadedmetadata", () => {
      const her = (performance.now() - s.beginn) / 1000;
      if (her > 1) s.audio.currentTime = her;
    });
    s.audio.play().catch(() => {});
  }

  async beginneWelle(s) {
    if (!this.wellen.has(s.url))
      this.wellen.set(s.url, fetch(s.url).then((a) => a.arrayBuffer())
        .then((bytes) => new Promise((ja, nein) => this.raum.decodeAudioData(bytes, ja, nein))));
    const puffer = await this.wellen.get(s.url);
    const her = performance.now() - s.beginn;
    if (s.aus || (her > ZU_SPÄT && her > (puffer.duration * 1000) / 4)) return;
    s.quelle = this.raum.createBufferSource();
    s.quelle.buffer = puffer;
    s.quelle.connect(this.regler);
    s.quelle.start();
  }

  lass(nummer) {
    const s = this.stimmen.get(nummer);
    this.stimmen.delete(nummer);
    if (!s) return;
    s.aus = true;
    s.quelle?.stop();
    s.audio?.pause();
    if (s.audio) s.audio.src = "";
  }

  piepe() {
    if (!this.raum) return;
    const ton = this.raum.createOscillator(), dauer = 0.12;
    ton.frequency.value = 660;
    ton.connect(this.regler);
    ton.start();
    ton.stop(this.raum.currentTime + dauer);
  }

  /// Null macht stumm oder wieder laut; jede andere Änderung macht laut.
  stelle(um) {
    this.stumm = um === 0 && !this.stumm;
    this.stufe = Math.max(0, Math.min(STUFEN, this.stufe + um));
    if (this.regler) this.regler.gain.value = this.anteil;
    for (const s of this.stimmen.values()) if (s.audio) s.audio.volume = this.anteil;
    try {
      localStorage.setItem("velmo-ton", JSON.stringify({ stufe: this.stufe, stumm: this.stumm }));
    } catch {}
    this.sage(this.stumm ? "Ton aus" : `Lautstärke ${this.stufe} von ${STUFEN}`, 1500);
  }
}
