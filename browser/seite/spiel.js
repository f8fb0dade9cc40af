// Der Beginn: lädt das Spiel, legt seinen Ordner an und verbindet es mit der Seite.
import velmo from "./velmo.js";
import { Bühne } from "./buehne.js";
import { Klang } from "./klang.js";
import { Eingabe } from "./eingabe.js";
import { Lupe } from "./lupe.js";
import { zeigeKasten, zeigeEnde } from "./kasten.js";
import { Speicher } from "./speicher.js";
import { richteEin as richteDateienEin, zeigeZettel } from "./dateien.js";
import { meldeAn } from "./fassung.js";
import { vorlade } from "./vorrat.js";
import { dateien, töne } from "./verzeichnis.js";

const ORDNER = "/velmo";

/// Verbindet beide: Nachrichten vom Spiel, Ereignisse an es, und die Ruhe dazwischen.
class Seite {
  constructor() {
    this.ereignisse = [];
    this.wecker = null; // läuft, während das Spiel ruht
    this.bühne = new Bühne(document.getElementById("anzeige"), (...e) => this.melde(...e));
    this.klang = new Klang(zeigeZettel);
    this.lupe = new Lupe(this.bühne, (...e) => this.melde(...e));
    this.eingabe = new Eingabe(this.bühne, this.klang, (...e) => this.melde(...e));
  }

  /// Ein Ereignis für das Spiel; von Bewegungen in Folge zählt die letzte.
  melde(...teile) {
    const ereignis = teile.map((t) => String(t).replace(/[\t\n]/g, " ")).join("\t");
    const letztes = this.ereignisse.length - 1;
    if (teile[0] === "bewege" && this.ereignisse[letztes]?.startsWith("bewege\t")) this.ereignisse[letztes] = ereignis;
    else this.ereignisse.push(ereignis);
    if (this.wecker?.weckbar) this.wecke();
  }

  wecke() {
    const { weiter, uhr } = this.wecker;
    this.wecker = null;
    clearTimeout(uhr);
    queueMicrotask(weiter);
  }

  // Für Brücke.js.
  ereignis() {
    return this.ereignisse.shift();
  }

  ruhe(ms, weckbar, weiter) {
    this.wecker = { weiter, weckbar, uhr: ms < 0 ? 0 : setTimeout(() => this.wecke(), ms) };
    if (weckbar && this.ereignisse.length) this.wecke();
  }

  nimm(nachrichten) {
    for (const n of nachrichten) this.nimmEine(n);
    this.bühne.fertig();
    this.lupe.folge();
  }

  nimmEine(n) {
    if (n.art === "kasten") zeigeKasten(n, (...e) => this.melde("kasten", ...e));
    else if (n.art === "ende") zeigeEnde();
    else if (["ton", "stille", "piep"].includes(n.art)) this.klang.nimm(n);
    else if (n.art === "zeiger") this.eingabe.zeigeZeiger(n);
    else this.bühne.nimm(n);
  }
}

/// Die Räume suchen Dateien beim Namen; was darin steht, hat die Seite.
function legeOrdnerAn(FS) {
  for (const stelle of dateien) {
    const pfad = `${ORDNER}/${stelle}`;
    FS.mkdirTree(pfad.slice(0, pfad.lastIndexOf("/")));
    FS.writeFile(pfad, "");
  }
}

async function beginne() {
  const seite = new Seite();
  const spiel = await velmo({ seite });
  legeOrdnerAn(spiel.FS);
  const speicher = new Speicher(spiel.FS, ORDNER, zeigeZettel);
  await speicher.beginne();
  richteDateienEin(spiel.FS, ORDNER, speicher);
  for (const stelle of dateien.filter((s) => s.startsWith("sound/"))) {
    const name = stelle.slice("sound/".length);
    seite.melde("dauer", name, töne[name.replace(/\.[^.]*$/, "")]?.ms ?? 0);
  }
  const ruhig = matchMedia("(prefers-reduced-motion: reduce)");
  const wünsche = () => seite.melde("ruhig", ruhig.matches ? "ja" : "nein");
  ruhig.addEventListener("change", wünsche);
  wünsche();
  await document.fonts.ready;
  document.getElementById("lädt").remove();
  spiel.callMain([]);
  seite.bühne.wennMenü(async () => {
    await null; // das Bündel, mit dem es kam, ist dann ganz auf der Seite
    await seite.bühne.bilderDa;
    seite.klang.erlaubeStücke();
    await meldeAn();
    vorlade();
  });
}

beginne().catch((fehler) => {
  const satz = document.getElementById("lädt") ?? document.body.appendChild(document.createElement("p"));
  satz.textContent = `Velmo lässt sich hier nicht öffnen: ${fehler.message ?? fehler}`;
  throw fehler;
});
