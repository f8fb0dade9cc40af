// Was das Spiel von der Seite verlangt. Sie steht als Module.seite bereit, ehe das Spiel beginnt.
mergeInto(LibraryManager.library, {
  seite_nimm: function (text, bytes) {
    Module.seite.nimm(JSON.parse(UTF8ToString(text, bytes)));
  },
  seite_ereignis: function () {
    const text = Module.seite.ereignis();
    if (text === undefined) return 0;
    const bytes = lengthBytesUTF8(text) + 1, wo = _malloc(bytes);
    stringToUTF8(text, wo, bytes);
    return wo;
  },
  seite_ruhe__deps: ['$Asyncify'],
  seite_ruhe: function (ms, weckbar) {
    return Asyncify.handleSleep((weiter) => Module.seite.ruhe(ms, weckbar, weiter));
  },
});
