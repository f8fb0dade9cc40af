// Meldungen und Fragen in der Gestalt des Spiels, das Blatt der Tasten, und das Ende.
import { lade } from "./bilder.js";

// Papier und Holz der Dialoge und ihre Knöpfe; ihre Ecken strecken sich nicht.
const BILDER = { "--tafel": "formen/exchange/exchange", "--knopf": "formen/knopf/ruhe", "--gedrückt": "formen/knopf/gedrueckt" };

const neu = (art, eigenschaften = {}, ...kinder) => {
  const e = Object.assign(document.createElement(art), eigenschaften);
  e.append(...kinder);
  return e;
};

/// Gibt dem Dialog Rahmen und Knöpfe der Dialoge des Spiels; ehe deren Bilder da sind, tun es Farben.
export async function bebildere(dialog) {
  try {
    for (const [name, bild] of Object.entries(BILDER))
      dialog.style.setProperty(name, `url("${(await lade(bild, Infinity)).src}")`);
    dialog.classList.add("bebildert");
  } catch {} // ohne Netz, ehe sie im Vorrat sind
}

function öffne(dialog) {
  bebildere(dialog);
  for (const art of ["keydown", "keyup"]) dialog.addEventListener(art, (e) => e.stopPropagation());
  dialog.addEventListener("close", () => dialog.remove());
  document.body.append(dialog);
  dialog.showModal();
  return dialog;
}

/// antworte: bekommt "ok" und den Text des Felds, oder "ab".
export function zeigeKasten({ text, titel, kritisch, feld, wert = "" }, antworte) {
  const eingabe = feld && neu("input", { type: "text", value: wert, autocomplete: "off", spellcheck: false });
  eingabe?.setAttribute("aria-label", text);
  const knöpfe = neu("div", { className: "knöpfe" }, neu("button", { value: "ok", textContent: "OK" }));
  if (feld) knöpfe.append(neu("button", { value: "ab", type: "button", textContent: "Abbrechen" }));
  const kopf = neu("div", { className: "kopf" });
  if (kritisch) kopf.append(neu("span", { className: "warnung", textContent: "✕" }));
  if (text.trim()) kopf.append(neu("p", { textContent: text }));
  const dialog = neu("dialog", { className: "kasten" },
    neu("form", { method: "dialog" }, kopf, ...(eingabe ? [eingabe] : []), knöpfe));
  dialog.setAttribute("aria-label", text);
  if (titel) dialog.setAttribute("aria-description", titel); // gelesen, nicht gezeigt
  knöpfe.lastChild.addEventListener("click", (e) => e.target.value === "ab" && dialog.close("ab"));
  dialog.addEventListener("close", () => {
    if (dialog.returnValue === "ok") antworte("ok", eingabe?.value.normalize("NFC") ?? "");
    else antworte("ab");
  });
  öffne(dialog);
  (eingabe ?? knöpfe.firstChild).focus();
}

/// Wählt eine von mehreren Zeilen, oder keine.
export function wähleZeile(titel, zeilen, gewählt) {
  return new Promise((antwort) => {
    const dialog = neu("dialog", { className: "kasten wahl" }, neu("h2", { textContent: titel }));
    zeilen.forEach((z, i) => {
      const knopf = neu("button", { type: "button", textContent: z, className: i === gewählt ? "gewählt" : "" });
      knopf.addEventListener("click", () => (antwort(i), dialog.close()));
      dialog.append(knopf);
    });
    dialog.addEventListener("close", () => antwort(-1));
    öffne(dialog);
  });
}

/// Das Blatt, das alle Tasten zeigt; jede Taste und jeder Druck nimmt es fort.
export function zeigeTasten({ tasten: { überall, brett } }) {
  const spalte = (titel, zeilen) =>
    neu("table", {}, neu("caption", { textContent: titel }), ...zeilen.map(([namen, wirkung]) =>
      neu("tr", {}, neu("th", {}, ...namen.split("|").map((n) => neu("kbd", { textContent: n }))), neu("td", { textContent: wirkung }))));
  const dialog = neu("dialog", { className: "kasten tasten" }, neu("h2", { textContent: "Tasten" }),
    spalte("Überall", überall), spalte("Auf dem Brett", brett));
  dialog.addEventListener("click", () => dialog.close());
  dialog.addEventListener("keydown", () => dialog.close());
  öffne(dialog);
}

export function zeigeEnde() {
  const dialog = neu("dialog", { className: "kasten" }, neu("p", { textContent: "Velmo ist zu Ende. Bis zum nächsten Mal!" }),
    neu("div", { className: "knöpfe" }, neu("button", { textContent: "Noch einmal", onclick: () => location.reload() })));
  dialog.addEventListener("cancel", (e) => e.preventDefault());
  document.getElementById("anzeige").hidden = true;
  öffne(dialog);
}
