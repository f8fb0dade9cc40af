"""Die Schriften der Seite: was das Fenster benutzt, auf die Zeichen gekürzt, die vorkommen können."""
import io
import logging
import pathlib

from fontTools import subset
from fontTools.ttLib import TTFont

logging.getLogger("fontTools").setLevel(logging.ERROR)  # dass eine Schrift ihr Alter nicht weiß, stört nicht

ORDNER = pathlib.Path("/usr/share/fonts")
# Familie, Gewicht, Datei; Gewichte wie in window/Schrift.cpp. DejaVu Sans springt ein, wo ein Zeichen fehlt.
SCHNITTE = [
    ("Comic Neue", 700, "opentype/comic-neue/ComicNeue-Bold.otf"),
    ("URW Bookman", 500, "opentype/urw-base35/URWBookman-Demi.otf"),
    ("URW Bookman", 600, "opentype/urw-base35/URWBookman-Demi.otf"),
    ("Lato", 500, "truetype/lato/Lato-Medium.ttf"),
    ("Lato", 700, "truetype/lato/Lato-Bold.ttf"),
    ("Lato", 900, "truetype/lato/Lato-Black.ttf"),
    ("DejaVu Sans", 400, "truetype/dejavu/DejaVuSans.ttf"),
    ("DejaVu Sans", 700, "truetype/dejavu/DejaVuSans-Bold.ttf"),
]
# Windows-1252, in dem die Dateien des Spiels stehen: mehr kann kein Name enthalten.
ZEICHEN = [ord(z) for z in bytes(range(32, 256)).decode("cp1252", "ignore")]


def gleiche_maße_an(maß, kopf):
    """Jeder Browser liest andere dieser Maße; hier sind sie gleich, und die, mit denen das Fenster setzt."""
    if not maß.fsSelection & 1 << 7:
        maß.sTypoAscender, maß.sTypoDescender, maß.sTypoLineGap = maß.usWinAscent, -maß.usWinDescent, 0
    kopf.ascent, kopf.descent, kopf.lineGap = maß.sTypoAscender, maß.sTypoDescender, maß.sTypoLineGap
    maß.usWinAscent, maß.usWinDescent = maß.sTypoAscender, -maß.sTypoDescender


def maße(datei):
    """Ober- und Unterlänge und Durchschuss, mit denen das Fenster setzt, in Graden."""
    schrift = TTFont(datei)
    gleiche_maße_an(schrift["OS/2"], schrift["hhea"])
    kopf = schrift["hhea"]
    return [länge / schrift["head"].unitsPerEm for länge in (kopf.ascent, -kopf.descent, kopf.lineGap)]


def gekürzt(datei):
    schrift = TTFont(datei)
    wahl = subset.Options()
    wahl.flavor = "woff2"
    wahl.layout_features = ["kern", "mark", "ccmp", "liga"]
    wahl.drop_tables += ["FFTM"]
    wahl.hinting = False  # Browser glätten selbst; die Anweisungen wögen ein Drittel
    wahl.name_IDs = [0, 1, 2, 13, 14]  # Urheber und Lizenz bleiben dabei
    kürzer = subset.Subsetter(wahl)
    kürzer.populate(unicodes=ZEICHEN)
    kürzer.subset(schrift)
    gleiche_maße_an(schrift["OS/2"], schrift["hhea"])
    schrift.flavor = "woff2"
    ziel = io.BytesIO()
    schrift.save(ziel, reorderTables=False)
    return ziel.getvalue()


def lege(seite, vorrat):
    """Legt die Schriften zur Seite; gibt die Regeln, die sie benennen, und die Maße der Familien."""
    weg = pathlib.Path(__file__).read_bytes()
    regeln, familienmaße = [], {}
    for familie, gewicht, name in SCHNITTE:
        datei = ORDNER / name
        [daten] = vorrat.hole(weg + datei.read_bytes(), (".woff2",), lambda: [gekürzt(datei)])
        url = seite.lege_mit_abdruck("schrift", datei.stem, ".woff2", daten)
        familienmaße[familie] = maße(datei)
        regeln.append(f'@font-face{{font-family:"{familie}";font-weight:{gewicht};font-display:block;'
                      f'src:url("../{url}") format("woff2")}}')
    return "\n".join(regeln) + "\n", familienmaße
