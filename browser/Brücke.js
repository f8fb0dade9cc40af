// Was das Spiel von der Seite verlangt. Sie steht als Module.seite bereit, ehe das Spiel beginnt.
mergeInto(LibraryManager.library, {
  // Nachrichten an die Seite, eine je Zeile.
  seite_nimm(text, bytes) {
    Module.seite.nimm(UTF8ToString(text, bytes));
  },
  // Das nächste Ereignis als Text, den der Rufende freigibt; 0 ohne eines.
  seite_ereignis() {
    const text = Module.seite.ereignis();
    if (text === undefined) return 0;
    const bytes = lengthBytesUTF8(text) + 1, wo = _malloc(bytes);
    stringToUTF8(text, wo, bytes);
    return wo;
  },
  // Ruht, bis ein Ereignis da ist, höchstens so viele ms; weniger als 0: bis zu einem Ereignis.
  seite_ruhe(ms) {
    return Asyncify.handleSleep((weiter) => Module.seite.ruhe(ms, weiter));
  },
  seite_ruhe__deps: ['$Asyncify'],
});
