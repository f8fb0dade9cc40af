// Die Fassung der Seite: eine neue wird im Stillen geholt und beim nächsten Beginn genommen, nie mitten im Spiel.

const dienste = () => navigator.serviceWorker; // fehlt, wo die Seite nicht sicher ausgeliefert wird
const Geduld = 3000; // ms, die ein Wechsel dauern darf

/// Als Erstes: wartet eine neue Fassung, so beginnt die Seite mit ihr noch einmal; sonst kehrt es gleich zurück.
export async function nimmNeue() {
  try {
    const wartet = (await dienste()?.getRegistration())?.waiting;
    if (!wartet || !dienste().controller) return;
    const gewechselt = new Promise((fertig) => dienste().addEventListener("controllerchange", () => fertig(true)));
    const zuLang = new Promise((fertig) => setTimeout(fertig, Geduld, false));
    wartet.postMessage("wechsle");
    if (!(await Promise.race([gewechselt, zuLang]))) return; // eine zweite Seite hält die alte
    location.reload();
    await new Promise(() => {});
  } catch {} // ohne Dienst geht es auch, nur nicht ohne Netz
}

/// Wenn das Menü steht: von nun an geht die Seite auch ohne Netz. Gibt, ob der Dienst sie begleitet.
export async function meldeAn() {
  try {
    await dienste().register("dienst.js", { updateViaCache: "none" });
    await dienste().ready;
    if (!dienste().controller)
      await new Promise((fertig) => {
        dienste().addEventListener("controllerchange", fertig, { once: true });
        setTimeout(fertig, Geduld);
      });
    return Boolean(dienste().controller);
  } catch {
    return false;
  }
}
