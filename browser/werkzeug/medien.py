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
    """Eine Quelle und die Befehle, die aus ihr Dateien der Seite machen. QUELLE und ZWISCHEN stehen für Orte, jede Endung
    des Ziels ("*.webp") für ihr Ergebnis."""
    quelle: pathlib.Path
    befehle: tuple
    ordner: str
    schlüssel: str
    ziele: dict  # unter welchem Wort das Verzeichnis sie nennt -> Endung
    angaben: dict = dataclasses.field(default_factory=dict)

    def ergebnis(self, vorrat):
        """Wort -> Bytes."""
        herkunft = repr(self.befehle).encode() + self.quelle.read_bytes()
        return dict(zip(self.ziele, vorrat.hole(herkunft, tuple(self.ziele.values()), self.führe_aus)))

    def führe_aus(self):
        with tempfile.TemporaryDirectory() as ordner:
            orte = {"QUELLE": self.quelle, "ZWISCHEN": pathlib.Path(ordner) / "zwischen.wav"}
            orte |= {"*" + endung: pathlib.Path(ordner) / ("ziel" + endung) for endung in self.ziele.values()}
            for befehl in self.befehle:
                rufe(*(orte.get(wort, wort) for wort in befehl))
            return [orte["*" + endung].read_bytes() for endung in self.ziele.values()]


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
        angaben = {"b": breite, "h": höhe}
        gemeinsam = ("cwebp", "-quiet", "-m", 5, "-alpha_q", 95, "-sharp_yuv", "QUELLE", "-o", "*.webp")
        yield Auftrag(datei, ((*gemeinsam, "-q", 80),), "bilder", schlüssel, {"bild": ".webp"}, angaben)
        if breite >= GROSS:
            halb = (*gemeinsam, "-q", 82, "-resize", breite // 2, höhe // 2)
            yield Auftrag(datei, (halb,), "bilder", schlüssel, {"halb": ".webp"}, angaben)


def dauer(datei):
    with wave.open(str(datei)) as w:
        return round(1000 * w.getnframes() / w.getframerate())


def töne(quellen):
    """Wellen und Stücke als Opus, und für Safari als AAC."""
    for datei in sorted((quellen / "sound").iterdir()):
        stück = datei.suffix == ".mid"
        ton, rate = ("ZWISCHEN", 48) if stück else ("QUELLE", 96)
        befehle = (("opusenc", "--quiet", "--bitrate", rate, ton, "*.opus"),
                   ("ffmpeg", "-v", "error", "-i", ton, "-c:a", "aac", "-b:a", f"{rate + 4}k", "-ar", 32000, "-movflags",
                    "+faststart", "*.m4a"))
        if stück:
            befehle = (("fluidsynth", "-q", "-n", "-i", "-g", MUSIKSTÄRKE, "-r", 48000, "-F", "ZWISCHEN", KLANGSATZ,
                        "QUELLE"), *befehle)
        yield Auftrag(datei, befehle, "ton", datei.stem.lower(), {"opus": ".opus", "m4a": ".m4a"},
                      {} if stück else {"ms": dauer(datei)})


def opusdauer(daten):
    """ms; die letzte Seite der Datei zählt die Abtastungen, 48 je ms, mit dem Vorlauf, den der Kopf nennt."""
    ende = int.from_bytes(daten[(letzte := daten.rindex(b"OggS")) + 6:letzte + 14], "little")
    vorlauf = int.from_bytes(daten[(kopf := daten.index(b"OpusHead")) + 10:kopf + 12], "little")
    return round((ende - vorlauf) / 48)


def film(quellen):
    """Der Film, halb so fein, als VP9, und für Safari als H.264; dessen Zeilen müssen gerade sein."""
    datei = quellen / "ani.hvi"
    breite, höhe = (n // 2 for n in bildgröße(datei))
    gemeinsam = ("ffmpeg", "-v", "error", "-i", "QUELLE", "-an", "-vf",
                 f"scale={breite + breite % 2}:{höhe + höhe % 2}", "-pix_fmt", "yuv420p")
    befehle = ((*gemeinsam, "-c:v", "libvpx-vp9", "-b:v", 0, "-crf", 58, "-deadline", "good", "-cpu-used", 3, "-row-mt", 1,
                "-tile-columns", 1, "-g", 250, "*.webm"),
               (*gemeinsam, "-c:v", "libx264", "-crf", 31, "-preset", "medium", "-movflags", "+faststart", "*.mp4"))
    yield Auftrag(datei, befehle, "film", "ani", {"webm": ".webm", "mp4": ".mp4"},
                  {"ms": filmdauer(datei), "b": breite, "h": höhe})


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
    with tempfile.TemporaryDirectory() as ordner:
        ziel = pathlib.Path(ordner) / "zeichen.webp"
        rufe("cwebp", "-quiet", "-q", 60, "-resize", 512, 512, quellen / "paket/zeichen/256.png", "-o", ziel)
        return ziel.read_bytes()
