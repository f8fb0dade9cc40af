"""Wie Bilder, Töne und Film für die Seite umgerechnet werden."""
import dataclasses
import pathlib
import subprocess
import tempfile
import unicodedata
import wave

KLANGSATZ = "/usr/share/sounds/sf2/TimGM6mb.sf2"
# Wie laut das Fenster die Stücke spielt, siehe art/klang.
MUSIKSTÄRKE = "0.75"
GROSS = 1000  # Bildpunkte Breite, ab der es ein Bild auch halb so fein gibt


def schlicht(name):
    """Ein Dateiname, den jeder Server nimmt."""
    zerlegt = unicodedata.normalize("NFD", name.lower().replace("ß", "ss"))
    return "".join(z for z in zerlegt if z.isascii()).replace("/", "-")


def rufe(*worte):
    subprocess.run([str(w) for w in worte], check=True, stdout=subprocess.DEVNULL, stdin=subprocess.DEVNULL)


@dataclasses.dataclass(frozen=True, eq=False)
class Auftrag:
    """Eine Datei der Seite und der Befehl, der sie macht; QUELLE und ZIEL stehen für die Orte."""
    quelle: pathlib.Path
    befehle: tuple  # nacheinander; ZWISCHEN ist ein Ort dazwischen
    ordner: str
    schlüssel: str
    art: str  # unter welchem Wort das Verzeichnis sie nennt
    endung: str
    angaben: dict = dataclasses.field(default_factory=dict)

    @property
    def name(self):
        return self.schlüssel + ("" if self.art != "halb" else "-halb")

    def ergebnis(self, vorrat):
        herkunft = repr(self.befehle).encode() + self.quelle.read_bytes()
        return vorrat.hole(herkunft, self.endung, self.führe_aus)

    def führe_aus(self):
        with tempfile.TemporaryDirectory() as ordner:
            ziel = pathlib.Path(ordner) / ("ziel" + self.endung)
            orte = {"QUELLE": self.quelle, "ZIEL": ziel, "ZWISCHEN": pathlib.Path(ordner) / "zwischen.wav"}
            for befehl in self.befehle:
                rufe(*(orte.get(wort, wort) for wort in befehl))
            return ziel.read_bytes()


def bildgröße(datei):
    antwort = subprocess.run(["ffprobe", "-v", "error", "-show_entries", "stream=width,height", "-of", "csv=p=0",
                              str(datei)], check=True, capture_output=True, text=True)
    return tuple(map(int, antwort.stdout.strip().split(",")))


def png_größe(datei):
    kopf = datei.read_bytes()[16:24]
    return int.from_bytes(kopf[:4], "big"), int.from_bytes(kopf[4:], "big")


def bilder(quellen):
    """Jedes Bild als WebP; die großen auch halb so fein, für Anzeigen, die nicht mehr zeigen."""
    wurzel = quellen / "bilder"
    for datei in sorted(wurzel.rglob("*.*")):
        breite, höhe = png_größe(datei) if datei.suffix == ".png" else bildgröße(datei)
        schlüssel = datei.relative_to(wurzel).with_suffix("").as_posix().lower()
        schritte = [("bild", 86, ())]
        if breite >= GROSS:
            schritte.append(("halb", 84, ("-resize", breite // 2, höhe // 2)))
        for art, güte, maß in schritte:
            befehl = ("cwebp", "-quiet", "-m", 5, "-q", güte, "-alpha_q", 95, "-sharp_yuv", *maß, "QUELLE", "-o", "ZIEL")
            yield Auftrag(datei, (befehl,), "bilder", schlüssel, art, ".webp", {"b": breite, "h": höhe})


def dauer(datei):
    with wave.open(str(datei)) as w:
        return round(1000 * w.getnframes() / w.getframerate())


def töne(quellen):
    """Wellen und Stücke als Opus, und für Safari als AAC."""
    for datei in sorted((quellen / "sound").iterdir()):
        if datei.suffix == ".mid":
            vorher = (("fluidsynth", "-q", "-n", "-i", "-g", MUSIKSTÄRKE, "-r", 48000, "-F", "ZWISCHEN", KLANGSATZ,
                       "QUELLE"),)
            ton, rate = "ZWISCHEN", 80
        else:
            vorher, ton, rate = (), "QUELLE", 96
        schlüssel = datei.stem.lower()
        angaben = {} if vorher else {"ms": dauer(datei)}
        yield Auftrag(datei, (*vorher, ("opusenc", "--quiet", "--bitrate", rate, ton, "ZIEL")), "ton", schlüssel, "opus",
                      ".opus", angaben)
        yield Auftrag(datei, (*vorher, ("ffmpeg", "-v", "error", "-i", ton, "-c:a", "aac", "-b:a", f"{rate + 32}k",
                                        "-movflags", "+faststart", "ZIEL")), "ton", schlüssel, "m4a", ".m4a")


def film(quellen):
    """Der Film als VP9, und für Safari als H.264; dessen Zeilen müssen gerade sein."""
    datei = quellen / "ani.hvi"
    breite, höhe = bildgröße(datei)
    gerade = f"scale={breite + breite % 2}:{höhe + höhe % 2}"
    gemeinsam = ("ffmpeg", "-v", "error", "-i", "QUELLE", "-an", "-vf", gerade, "-pix_fmt", "yuv420p")
    angaben = {"ms": filmdauer(datei), "b": breite, "h": höhe}
    yield Auftrag(datei, ((*gemeinsam, "-c:v", "libvpx-vp9", "-b:v", 0, "-crf", 51, "-deadline", "good", "-cpu-used", 3,
                           "-row-mt", 1, "-tile-columns", 1, "-g", 250, "ZIEL"),), "film", "ani", "webm", ".webm", angaben)
    yield Auftrag(datei, ((*gemeinsam, "-c:v", "libx264", "-crf", 31, "-preset", "medium", "-movflags", "+faststart",
                           "ZIEL"),), "film", "ani", "mp4", ".mp4")


def filmdauer(datei):
    antwort = subprocess.run(["ffprobe", "-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                              str(datei)], check=True, capture_output=True, text=True)
    return round(1000 * float(antwort.stdout))


def mitgeliefertes(quellen):
    """Die Dateien, die das Programm beim Namen sucht."""
    orte = [*(quellen / "bilder").rglob("*.*"), *(quellen / "sound").iterdir(), quellen / "ani.hvi"]
    return sorted(o.relative_to(quellen).as_posix() for o in orte)


def großes_zeichen(quellen):
    """Für den Startbildschirm eines Telefons."""
    with tempfile.TemporaryDirectory() as zwischen:
        ziel = pathlib.Path(zwischen) / "zeichen.png"
        rufe("ffmpeg", "-v", "error", "-i", quellen / "paket/zeichen/256.png", "-vf", "scale=512:512:flags=lanczos", ziel)
        return ziel.read_bytes()
