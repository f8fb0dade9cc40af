"""Der Vorspann ani.hvi: Flug über die Modellinsel, der Name, ein Wagen fährt vor.

Ein AVI mit einer Spur in VP9; die Zeiten folgen der Musik in sound/intro.wav. Die unteren 3 % des Bildes liegen unter
dem Rand des Fensters.
"""
import random
import subprocess


from befehl import AUFTRAG, maß, zwischen, ziel
from film.insel import *

TAKT, DAUER = 25, 9.4            # Bilder je s, s
NAME_DA, WAGEN_AB, HUPE, BREMSE, STEHT, SCHLUSS = 5.0, 6.75, (7.5, 7.81), 8.2, 8.56, 8.75
GÜTE = 30                        # von VP9: 0 die beste, 63 die schlechteste
KEHRE = range(48, 91, 6)         # Grad; 90 zeigt nach rechts, 0 zum Betrachter


#       s    x     y    Weite Drehung Neigung
FLUG = [(-.4, 740, 560, 1400, -.02, .08),
        (.0, 748, 565, 1390, -.02, .10),
        (1.3, 860, 610, 1200, -.035, .24),
        (2.5, 1420, 660, 1180, .01, .26),
        (3.4, 2000, 740, 1220, .035, .24),
        (4.1, 1980, 810, 1560, .02, .15),
        (4.75, 1500, 858, 2520, .0, .03),
        (5.1, 1482, 862, 2600, .0, .02),
        (9.4, 1482, 862, 2470, .0, .02)]


def kamera(t):
    x, y, weite, drehung, neigung = linie(FLUG, t)
    stoß = 0.0
    for nach, stark in ((t - NAME_DA, 5), (t - STEHT, 2)):
        if 0 <= nach < .5:
            stoß += stark * math.exp(-nach * 9) * math.cos(nach * 45)
    return Kamera(x, y, min(weite, 2600), drehung, neigung, stoß)


# ---------------------------------------------------------------- Wolken, Glitzern, kleine Wagen

#          x     y    Höhe  Maß Bild   (Brettpunkte)
WOLKEN = [(200, 980, 420, 1.0, 0), (1230, 330, 420, .7, 1), (2500, 330, 440, 1.0, 0), (2800, 1250, 420, 1.0, 1),
          (330, 180, 430, .8, 2), (60, 1500, 420, 1.1, 2)]
# Durch diese stößt die Kamera zu Beginn: Ort im Bild von der Mitte, Maß
SCHLEIER = [(-.44, -.32, 1.1), (.42, -.34, 1.2), (-.46, .30, 1.2), (.44, .36, 1.2), (.02, -.46, .9), (-.08, .50, 1.0),
            (.16, .05, .55)]


def wolken(bild, t, k, teile):
    for x, y, hoch, maß, nr in WOLKEN:
        x = x + 26 * t
        m = 1 / (1 - hoch / (1.25 * k.weite))
        sx, sy, s = k.punkt(x + .3 * hoch, y + .2 * hoch)
        setze(bild, teile.schatten[nr], sx, sy, s * maß * .95, deckung=.30)
        u, v, s = k.punkt(x, y)
        u, v = B / 2 + (u - B / 2) * m, H / 2 + (v - H / 2) * m - .12 * hoch * s
        rand = sanft(k.weite, 1150, 2300)          # im Überblick bleibt die Mitte frei
        frei = max(abs(u / B - .5), abs(v / H - .5)) * 2
        setze(bild, teile.wolken[nr], u, v, s * maß * m, deckung=.93 * (1 - rand * (1 - sanft(frei, .55, .8))))


def schleier(bild, t, teile):
    if t > 1.6:
        return
    weit = math.exp(1.3 * t + 1.1 * t * t)
    for i, (x, y, maß) in enumerate(SCHLEIER):
        setze(bild, teile.wolken[i % 3], B * (.5 + x * weit), H * (.5 + y * weit), maß * weit, drehung=.1 * (i - 3),
              deckung=1 - sanft(t, .35, 1.15))


def glitzern(bild, t, k, insel, stern):
    zufall = random.Random(7)
    for _ in range(900):
        x, y = zufall.choice(insel.meer)
        takt, phase, stark = zufall.uniform(.7, 1.6), zufall.random(), zufall.uniform(.4, 1)
        hell = max(0.0, math.sin(math.pi * ((t / takt + phase) % 1)) - .55) / .45
        u, v, s = k.punkt(x + 3 * t, y)
        if hell and -9 < u < B + 9 and -9 < v < H + 9:
            setze(bild, stern, u, v, (.10 + .16 * stark) * (.5 + .5 * s), deckung=hell * .85)


WAGENREIHE = ((125, 14.2, 2.1), (129, 19.0, 1.7), (133, 24.3, 1.9), (137, 4.5, 1.8))   # Bild, Feld bei 0 s, Felder je s


def kleine_wagen(bild, t, k, insel, bilder):
    for erste, feld, tempo in WAGENREIHE:
        ort = feld + tempo * t
        n = len(insel.felder)
        i, f = int(ort), ort % 1
        p = [np.array(insel.felder[(i + j - 1) % n]) for j in range(-1, 3)]
        x, y = linie([(j, *q) for j, q in enumerate(p)], 1 + f)
        weg = p[2] - p[1]
        blick = (3 if weg[0] > 0 else 1) if abs(weg[0]) > abs(weg[1]) else (0 if weg[1] > 0 else 2)
        wagen = bilder[erste + blick].copy()
        l, o = round(x - wagen.width / 2), round(y - wagen.height / 2)
        davor = insel.häuser.crop((l, o, l + wagen.width, o + wagen.height))
        wagen.putalpha(ImageChops.multiply(wagen.getchannel("A"), ImageChops.invert(davor)))
        u, v, s = k.punkt(x, y)
        setze(bild, wagen, u, v, s)


# ---------------------------------------------------------------- Der Name und der Wagen

BUCHSTABEN = "VELMO"
MITTEN = (149, 297, 430, 592, 772)           # im Bild, Bildpunkte
FUSS, GRÖSSE = 346, .44                      # Bildpunkte; Maß der Teile
WOHIN = (45 / 130, 78 / 90)                  # Fuß eines Buchstabens in seinem Teil


def fall(t, da):
    """Höhe über dem Boden und Streckung eines Buchstabens, der zur Zeit `da` aufschlägt und federt."""
    if t < da:
        return ((da - t) / .42) ** 2 * 430, 1 + .10 * min(1, (da - t) / .2)
    nach, höhe = t - da, 0.0
    for beginn, dauer, hoch in ((.0, .26, 46), (.26, .16, 13)):
        f = (nach - beginn) / dauer
        if 0 <= f < 1:
            höhe = hoch * 4 * f * (1 - f)
    return höhe, 1 - .16 * math.exp(-nach * 14) * math.cos(nach * 40)


def name(bild, t, teile):
    stellen = []
    for nr, (zeichen, x) in enumerate(zip(BUCHSTABEN, MITTEN)):
        da = NAME_DA + .075 * nr
        if t >= da - .42:
            stellen.append((zeichen, x, t - da, *fall(t, da)))
    for zeichen, x, nach, hoch, _ in stellen:
        setze(bild, teile.buchstaben[zeichen][1], x + .5 * hoch, FUSS - .2 * hoch, GRÖSSE, WOHIN,
              deckung=.85 * max(.15, 1 - hoch / 300))
        staub(bild, teile, x, FUSS - 6, nach, .55)
    for zeichen, x, nach, hoch, streckung in stellen:
        teil = glanz(teile.buchstaben[zeichen][0], x, t)
        setze(bild, teil, x, FUSS - hoch, GRÖSSE, WOHIN, streckung=streckung)


def glanz(teil, x, t):
    """Ein Lichtstreif zieht über den Namen, wenn er steht und zum Schlussklang."""
    for beginn, dauer in ((5.75, .8), (SCHLUSS - .02, .55)):
        f = (t - beginn) / dauer
        if 0 < f < 1:
            ort = (-.15 + 1.3 * f) * B
            a = np.asarray(teil).astype(np.float32)
            spalte = (np.arange(teil.width) - WOHIN[0] * teil.width) * GRÖSSE + x
            zeile = (np.arange(teil.height) - WOHIN[1] * teil.height) * GRÖSSE
            streif = np.exp(-((spalte[None, :] + .45 * zeile[:, None] - ort) / 26) ** 2)[..., None]
            a[..., :3] += (255 - a[..., :3]) * streif * .62
            teil = Image.fromarray(a.astype(np.uint8), "RGBA")
    return teil


def staub(bild, teile, x, y, nach, maß):
    if not 0 <= nach < .55:
        return
    f = nach / .55
    for seite in (-1, 1):
        for j in range(2):
            setze(bild, teile.staub, x + seite * (26 + (30 + 22 * j) * math.sqrt(f)), y - 9 * f - 7 * j,
                  maß * (.10 + .12 * math.sqrt(f)), deckung=.75 * (1 - f) ** 1.4)


def wagenort(t):
    """Weg von links: gleichmäßig, dann gebremst bis zum Stand."""
    ziel, her = .640 * B, -.16 * B
    brems = STEHT - BREMSE + .12
    tempo = (ziel - her) / (STEHT - brems - WAGEN_AB + brems / 2)
    if t < STEHT - brems:
        return her + tempo * (t - WAGEN_AB)
    rest = max(0.0, STEHT - t)
    return ziel - tempo * rest * rest / brems / 2


def wagen(bild, t, teile):
    if t < WAGEN_AB - .1:
        return
    x, y, maß = wagenort(t), 474.0, .52
    grad = 90 - 40 * sanft(t, BREMSE - .25, STEHT + .02)
    unten = max(g for g in teile.wagen if g <= grad)
    y += 12 * sanft(t, BREMSE - .25, STEHT)
    nicken = .045 * sanft(t, BREMSE - .05, BREMSE + .12)
    if t > STEHT - .04:                        # setzt sich und wippt nach
        nach = t - STEHT + .04
        nicken = .045 * math.exp(-nach * 7) * math.cos(nach * 21)
    hoch = 1.1 * abs(math.sin(t * 31)) * (1 - sanft(t, BREMSE, STEHT))
    hupt = max((max(0.0, 1 - abs(t - h - .07) / .12) for h in HUPE), default=0)
    hoch += 7 * hupt
    mitte = (.5, 44 / 76)
    setze(bild, teile.wagen[unten][1], x, y, maß, mitte, deckung=.9)
    for j in range(4):                         # Reifenstaub
        ab = BREMSE + .07 * j
        f = (t - ab) / .5
        if 0 <= f < 1:
            setze(bild, teile.staub, wagenort(ab) - 92 - 20 * f, y + 14 - 12 * f, .10 + .14 * f, deckung=.8 * (1 - f))
    setze(bild, teile.wagen[unten][0], x, y - hoch, maß, mitte, drehung=nicken, streckung=1 + .05 * hupt)
    if hupt:
        setze(bild, teile.stern, x + 104, y - 6 - hoch, 1.3, deckung=hupt)


# ---------------------------------------------------------------- Teile, Bild, Film

def stern(größe=96):
    m = (np.arange(größe) - größe / 2 + .5) / (größe / 2)
    x, y = np.meshgrid(m, m)
    r = np.hypot(x, y)
    hell = np.clip(np.exp(-(r / .16) ** 2) + .9 * np.exp(-np.abs(x) * 22) * np.clip(1 - np.abs(y), 0, 1) ** 2
                   + .9 * np.exp(-np.abs(y) * 22) * np.clip(1 - np.abs(x), 0, 1) ** 2, 0, 1)
    a = np.full((größe, größe, 4), 255, np.uint8)
    a[..., 2] = 236
    a[..., 3] = (hell * 255).astype(np.uint8)
    return Image.fromarray(a, "RGBA")


class Teile:
    def __init__(self):
        wolken = [ImageOps.scale(teil("wolke%d" % i), 2) for i in (1, 2, 3)]
        self.wolken = [weichzeichnen(w, 1.6) for w in wolken]
        self.schatten = [schwarz(w, 16) for w in self.wolken]
        self.staub = weichzeichnen(wolken[1], 12)
        self.buchstaben = {z: mit_schatten(z) for z in BUCHSTABEN}
        self.wagen = {g: mit_schatten("wagen%02d" % g) for g in KEHRE}
        self.stern = stern()
        self.kleine = {n: lade(vorhanden("bilder/auto/%d.png" % n)) for n in range(125, 141)}


def teil(name_):
    """In fertiger Größe, auch in der Vorschau."""
    return ImageOps.scale(lade(zwischen("film/teile.py", name_ + ".png", außer=("film.py", "insel.py"))), 1 / maß())


def mit_schatten(name_):
    vorn = teil(name_)
    return vorn, weichzeichnen(teil(name_ + "_s").resize(vorn.size, Image.Resampling.BICUBIC), 2)


def weichzeichnen(bild, r):
    return bild.convert("RGBa").filter(ImageFilter.GaussianBlur(r)).convert("RGBA")


def schwarz(bild, r):
    leer = Image.new("RGBA", bild.size, (8, 20, 40, 0))
    leer.putalpha(bild.getchannel("A").filter(ImageFilter.GaussianBlur(r)))
    return leer


def rahmen():
    """Zum Rand hin dunkler."""
    x, y = np.meshgrid(np.linspace(-1, 1, B), np.linspace(-1, 1, H))
    a = np.zeros((H, B, 4), np.uint8)
    a[..., :3] = (6, 22, 46)
    a[..., 3] = np.clip((np.hypot(x * .9, y) - .62) * 100, 0, 70).astype(np.uint8)
    return Image.fromarray(a, "RGBA")


def einzelbild(t, insel, teile, rand):
    k = kamera(t)
    k.prüfe(insel)
    bild = insel.zeichne(k)
    kleine_wagen(bild, t, k, insel, teile.kleine)
    glitzern(bild, t, k, insel, teile.stern)
    wolken(bild, t, k, teile)
    schleier(bild, t, teile)
    ruhe = sanft(t, NAME_DA - .25, NAME_DA + .35)      # der Name steht vor einem etwas stilleren Grund
    if ruhe:
        bild.alpha_composite(Image.new("RGBA", bild.size, (10, 34, 62, int(38 * ruhe))))
    setze(bild, rand, B / 2, H / 2, deckung=.5 + .5 * ruhe)
    name(bild, t, teile)
    wagen(bild, t, teile)
    return bild.convert("RGB")


def packer(datei):
    """Nimmt rohe Bilder und macht den Film. Das Fenster rechnet seine Farben nach BT.709 zurück."""
    ein = ["-f", "rawvideo", "-pix_fmt", "rgb24", "-s", "%dx%d" % AUSGABE, "-framerate", TAKT, "-i", "-"]
    farben = ["-vf", "scale=out_color_matrix=bt709:out_range=tv:flags=accurate_rnd+full_chroma_int",
              "-pix_fmt", "yuv420p", "-colorspace", "bt709", "-color_range", "tv"]
    vp9 = ["-c:v", "libvpx-vp9", "-crf", GÜTE, "-b:v", 0, "-deadline", "good", "-cpu-used", 2, "-g", 9999]
    wort = ["ffmpeg", "-v", "error", "-y", *ein, *farben, *vp9, "-fflags", "+bitexact", "-f", "avi", ziel(datei)]
    return subprocess.Popen([str(w) for w in wort], stdin=subprocess.PIPE)


def bogen():
    """Einige Bilder auf einem Blatt, zum Ansehen."""
    zeiten = [.0, .4, .8, 1.2, 1.6, 2.1, 2.6, 3.1, 3.6, 4.0, 4.3, 4.6, 4.8, 4.9, 5.0, 5.12, 5.24, 5.4, 6.0, 6.9, 7.2,
              7.57, 8.0, 8.25, 8.4, 8.6, 8.9, 9.36]
    insel, teile, rand = Insel(), Teile(), rahmen()
    blatt = Image.new("RGB", (4 * 452, (len(zeiten) + 3) // 4 * 287))
    for i, t in enumerate(zeiten):
        blatt.paste(einzelbild(t, insel, teile, rand).resize((450, 285)), (i % 4 * 452, i // 4 * 287))
    return blatt


def mache(datei):
    if AUFTRAG.vorschau:
        return bogen().save(ziel(datei + ".png"))
    brauche("ffmpeg")
    insel, teile, rand = Insel(), Teile(), rahmen()
    packen = packer(datei)
    for nr in range(round(DAUER * TAKT)):
        packen.stdin.write(einzelbild(nr / TAKT, insel, teile, rand).tobytes())
    packen.stdin.close()
    if packen.wait():
        raise SystemExit("ffmpeg hat den Film nicht gepackt")
