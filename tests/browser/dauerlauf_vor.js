// Der Dauerlauf in node: der Ordner des Aufrufs ist der Arbeitsordner, und neben dem Programm liegt das Mitgelieferte.
Module.preRun = () => {
  const platte = require("fs"), pfade = require("path");
  const wurzel = pfade.dirname(__dirname);
  FS.mkdirTree("/velmo/bilder");
  FS.mount(NODEFS, { root: pfade.join(wurzel, "bilder") }, "/velmo/bilder");
  FS.writeFile("/velmo/ani.hvi", platte.readFileSync(pfade.join(wurzel, "ani.hvi")));
  FS.symlink("/velmo/dauerlauf", "/proc/self/exe");
  FS.mkdir("/hier");
  FS.mount(NODEFS, { root: process.cwd() }, "/hier");
  FS.chdir("/hier");
};
