// Charaktere und Bestenliste als Dateien: sichern und laden. Ein Zettel am Rand des Menüs öffnet das Blatt dafür.
import { bebildere } from "./kasten.js";
import { dateien } from "./speicher.js";

const GRÖSSTE = 1 << 16; // Bytes; ein Charakter hat keine hundert

/// Ein Zettel unten auf der Seite, der das Spiel nicht anhält; ein Druck nimmt ihn fort.
export function zeigeZettel(satz, ms = 12000) {
  const zettel = element("div", { className: "zettel", textContent: satz, role: "status" });
  zettel.onclick = () => zettel.remove();
  document.body.append(zettel);
  setTimeout(() => zettel.remove(), ms);
}

function element(art, eigenschaften = {}, ...kinder) {
  const e = Object.assign(document.createElement(art), eigenschaften);
  e.append(...kinder);
  return e;
}

const knopf = (text, tut) => element("button", { type: "button", textContent: text, onclick: tut });

/// Ein Charakter hat vier Zeilen, die letzte eine ganze Zahl.
function istCharakter(bytes) {
  const zeilen = new TextDecoder("windows-1252").decode(bytes).split(/\r\n?/);
  return zeilen.length >= 4 && /^\s*-?\d+\s*$/.test(zeilen[3]);
}

/// Wohin eine Datei gehört, die so heißt: "charakter/Anna.cha", "besten.sav"; sonst nichts.
function platz(name, bytes) {
  if (bytes.length > GRÖSSTE) return undefined;
  if (name.toLowerCase() === "besten.sav") return "besten.sav";
  if (name.toLowerCase().endsWith(".cha") && istCharakter(bytes)) return `charakter/${name.normalize("NFC")}`;
  return undefined;
}

const kurz = (name) => name.replace("charakter/", "");
const anzeige = (name) => (name === "besten.sav" ? "Bestenliste" : kurz(name).replace(/\.cha$/i, ""));

class Blatt {
  constructor(FS, ordner, speicher) {
    Object.assign(this, { FS, ordner, speicher });
    this.liste = element("ul");
    this.meldung = element("p", { className: "meldung", role: "status" });
    this.wahl = element("input", { type: "file", multiple: true, accept: ".cha,.sav", hidden: true });
    this.wahl.onchange = () => this.lade([...this.wahl.files]);
    this.dialog = element("dialog", { className: "blatt", id: "dateien" },
      element("h2", { textContent: "Dateien", id: "dateien-titel" }),
      element("p", { textContent: "Charaktere und Bestenliste liegen im Speicher dieses Browsers. Hier werden sie zu " +
        "Dateien und zurück; das Spiel auf dem Rechner benutzt dieselben." }),
      this.liste, this.meldung, this.wahl,
      element("div", { className: "knöpfe" }, knopf("Laden…", () => this.wahl.click()),
        knopf("Alle sichern", () => this.sichereAlle()), knopf("Schließen", () => this.dialog.close())));
    this.dialog.setAttribute("aria-labelledby", "dateien-titel");
    for (const art of ["keydown", "keyup", "keypress", "pointerdown", "pointerup", "mousedown", "mouseup", "click"])
      this.dialog.addEventListener(art, (e) => e.stopPropagation()); // nichts davon gilt dem Spiel darunter
  }

  öffne() {
    this.meldung.textContent = document.body.dataset.vorrat === "ganz" && navigator.serviceWorker?.controller
      ? "Das Spiel ist ganz geladen und geht auch ohne Netz." : "";
    this.zeigeListe();
    bebildere(this.dialog);
    this.dialog.showModal();
  }

  zeigeListe() {
    const alle = [...dateien(this.FS, this.ordner)].sort(([a], [b]) => a.localeCompare(b, "de"));
    this.liste.replaceChildren(...alle.map(([name, bytes]) =>
      element("li", {}, element("span", { textContent: anzeige(name) }), knopf("Sichern", () => this.sichere(name, bytes)))));
    if (alle.length === 0) this.liste.append(element("li", { textContent: "Noch ist nichts da." }));
  }

  sichere(name, bytes) {
    const url = URL.createObjectURL(new Blob([bytes], { type: "application/octet-stream" }));
    element("a", { href: url, download: kurz(name) }).click();
    setTimeout(() => URL.revokeObjectURL(url), 60000);
    this.meldung.textContent = `Gesichert: ${kurz(name)}`;
  }

  /// Browser nehmen mehrere Dateien nur nacheinander an.
  async sichereAlle() {
    for (const [name, bytes] of dateien(this.FS, this.ordner)) {
      this.sichere(name, bytes);
      await new Promise((weiter) => setTimeout(weiter, 300));
    }
  }

  async lade(gewählte) {
    this.wahl.value = "";
    const geladen = [], abgelehnt = [];
    for (const datei of gewählte) {
      const bytes = new Uint8Array(await datei.arrayBuffer());
      const name = platz(datei.name, bytes);
      if (!name) abgelehnt.push(datei.name);
      else if (await this.darf(name, bytes)) {
        this.FS.writeFile(`${this.ordner}/${name}`, bytes);
        geladen.push(kurz(name));
      }
    }
    await this.speicher.sichere();
    this.zeigeListe();
    this.meldung.textContent = [geladen.length ? `Geladen: ${geladen.join(", ")}.` : "",
      ...abgelehnt.map((name) => `"${name}" ist weder ein Charakter (.cha) noch die Bestenliste (besten.sav).`)].join(" ");
  }

  /// Was es schon gibt und anders ist, wird nur ersetzt, wenn der Spieler es sagt.
  async darf(name, bytes) {
    const da = dateien(this.FS, this.ordner).get(name);
    if (!da || (da.length === bytes.length && da.every((x, i) => x === bytes[i]))) return true;
    return new Promise((antwort) => {
      const sage = (ja) => () => (this.dialog.removeEventListener("close", nein), this.meldung.replaceChildren(), antwort(ja));
      const nein = sage(false);
      this.dialog.addEventListener("close", nein);
      this.meldung.replaceChildren(`${kurz(name)} gibt es schon und ist anders. `, knopf("Ersetzen", sage(true)),
        knopf("Behalten", nein));
    });
  }
}

/// Legt den Zettel an; er zeigt sich nur, solange das Menü steht. Auf die Seite gezogene Dateien werden auch geladen.
export function richteEin(FS, ordner, speicher) {
  const blatt = new Blatt(FS, ordner, speicher);
  const zettel = knopf("Dateien", () => blatt.öffne());
  zettel.id = "dateien-zettel";
  document.body.append(zettel, blatt.dialog);
  addEventListener("dragover", (e) => e.preventDefault());
  addEventListener("drop", (e) => {
    e.preventDefault();
    if (!e.dataTransfer.files.length || getComputedStyle(zettel).display === "none") return;
    if (!blatt.dialog.open) blatt.öffne();
    blatt.lade([...e.dataTransfer.files]);
  });
}
