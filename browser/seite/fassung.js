// Der Dienst, mit dem die Seite auch ohne Netz geht und sich erneuert.

const dienste = () => navigator.serviceWorker; // fehlt, wo die Seite nicht sicher ausgeliefert wird
const Geduld = 3000; // ms, die der erste Dienst zum Antreten haben darf

/// Wenn das Menü steht: holt im Stillen eine neue Fassung, für den nächsten Beginn. Gibt, ob der Dienst sie begleitet.
export async function meldeAn() {
  try {
    const dienst = await dienste().register("dienst.js", { updateViaCache: "none" });
    await dienste().ready;
    // Von sich aus fragte der Browser erst, wenn die Seite lange nichts mehr holt; ohne Netz misslingt es.
    if (dienste().controller) dienst.update().catch(() => {});
    else
      await new Promise((fertig) => {
        dienste().addEventListener("controllerchange", fertig, { once: true });
        setTimeout(fertig, Geduld);
      });
    const diese = new URL(import.meta.url).pathname.split("/").slice(-2).join("/");
    dienste().controller?.postMessage(diese);
    return Boolean(dienste().controller);
  } catch {
    return false;
  }
}
