"""Die 14 Wellen des Spiels. Jede Routine gibt das Signal zurück, die Tabelle am Ende schreibt."""
import numpy as np

from klangbau import (BLECH, BRETT, FELL, GLAS, GLOCKE, GLOCKENSPIEL, HOLZBLOCK, MARIMBA, RATE, anzahl, bogen,
                      eigenton, falten, filtern, formanten, gleitband, halbton, impulse, leinwand, legen, note,
                      orten, raum, rauschen, saite, schlag, schreiben, verlauf, würfel, zeit)


def filzstoß(dauer, tief, saat, hell=900):
    """Weicher Aufprall: dumpfer Körper und ein Hauch Stoff."""
    y = schlag(dauer, tief, ((1, 1, 1), (1.7, .4, .6)), dauer / 6, min(.005, .9 / tief))
    y += .25 * filtern(rauschen(dauer, saat), ("tief", hell, .7)) * np.exp(-zeit(dauer) / (dauer / 12))
    return y / np.abs(y).max()


def holz(dauer, grund, abkling=.02, kontakt=.0005, moden=HOLZBLOCK):
    y = schlag(dauer, grund, moden, abkling, kontakt)
    return y / np.abs(y).max()


def marimba(tonhöhe, dauer=.9, stärke=1.):
    """Je stärker, desto kürzer der Kontakt (immer unter einer Schwingung), desto heller."""
    y = schlag(dauer, note(tonhöhe), MARIMBA, .5 * (60 / tonhöhe) ** 3, (1.0 - .6 * stärke) / note(tonhöhe))
    return stärke * y / np.abs(y).max()


def glockenspiel(tonhöhe, dauer=1.6):
    y = schlag(dauer, note(tonhöhe), GLOCKENSPIEL, .55, .0003)
    return y / np.abs(y).max()


# Menü

def click2():
    """Zeiger streift ein Ding im Garten: ein Kiesel auf Holz."""
    bild = leinwand(.09)
    legen(bild, .001, holz(.06, 1750, .007, .0006))
    legen(bild, .001, filzstoß(.05, 420, 3), .25)
    return bild


def click1():
    """Druck auf ein Ding im Garten: hölzerne Taste geht nieder und kommt zurück."""
    bild = leinwand(.19)
    legen(bild, .001, filzstoß(.12, 150, 11), .7)
    legen(bild, .002, holz(.1, 640, .018, .0006), .8)
    legen(bild, .062, holz(.09, 980, .014, .0006), .38)
    return raum(bild, .08, .6)


def menuback():
    """Der Bogen gleitet auf Holz davon: Streichen, das schneller wird, und ein leiser Anschlag in der Ferne."""
    dauer = 1.05
    lage = verlauf(dauer, (0, 500), (.5, 1300), (.85, 2600), (1.05, 2900))
    lauter = verlauf(dauer, (0, 0), (.05, .5), (.55, .8), (.78, 1), (.9, .12), (1.05, 0))
    papier = gleitband(rauschen(dauer, 21), lage, 1.1) * lauter
    rillen = impulse(dauer, verlauf(dauer, (0, 34), (.85, 95), (1.05, 60)), 22, .12, .5)
    leisten = falten(rillen, schlag(.04, 520, BRETT, .008, .0015))[:anzahl(dauer)] * lauter
    bild = .8 * papier / np.abs(papier).max() + .35 * leisten / np.abs(leisten).max()
    weg = orten(bild, verlauf(dauer, (0, -.15), (.85, .6), (1.05, .6)))
    legen(weg, .86, holz(.16, 300, .03, .002, BRETT), .55, .55)
    return raum(weg, .18, .6)


# Brett

def ticken(saat):
    """Der helle Anteil eines Holzstoßes."""
    y = filtern(rauschen(.03, saat), ("hoch", 2600, .8), ("tief", 9000, .7)) * np.exp(-zeit(.03) / .004)
    return y / np.abs(y).max()


def haus():
    """Ein Haus steigt: Klötze rücken auf Klötze, jeder höher, dann sitzt das Dach."""
    bild = leinwand(1.15, 2)
    for k, (wann, schritt) in enumerate(((.0, 0), (.105, 3), (.2, 5), (.285, 7), (.362, 10), (.432, 12))):
        legen(bild, .004 + wann, holz(.2, halbton(392, schritt), .03, .0003), .5 + .05 * k, -.35 + .12 * k)
        legen(bild, .004 + wann, ticken(33 + k), .34, -.35 + .12 * k)
        legen(bild, .004 + wann, marimba(64 + schritt, .5, .6), .34, -.35 + .12 * k)
        legen(bild, .004 + wann, filzstoß(.1, 170, 31 + k), .16, -.35 + .12 * k)
    reiben = gleitband(rauschen(.48, 38), verlauf(.48, (0, 900), (.48, 3600)), 1.2) * bogen(.48, .06, .08)
    legen(bild, .0, reiben / np.abs(reiben).max(), .18)
    legen(bild, .555, holz(.25, 294, .045, .0012, BRETT), .8, .1)
    legen(bild, .555, filzstoß(.2, 120, 39), .4)
    legen(bild, .555, ticken(40), .5, .1)
    for schritt, stärke in ((12, .5), (19, .32)):
        legen(bild, .565, marimba(64 + schritt, .55, .75), stärke, .15)
        legen(bild, .565, glockenspiel(88 + schritt, .55), .4 * stärke, .15)
    return raum(bild, .22, .8)


def geldschein(saat, dauer=.16):
    """Ein Schein schnippt: kurzes Blattgeräusch mit Flattern."""
    t = zeit(dauer)
    flattern = 1 + .8 * np.sin(2 * np.pi * (95 * t - 130 * t * t))
    hülle = verlauf(dauer, (0, 0), (.006, 1), (.03, .4), (.07, .5), (dauer, 0))
    y = filtern(rauschen(dauer, saat), ("hoch", 1400, .8), ("tief", 6500, .8)) * flattern * hülle
    return y / np.abs(y).max()


def money_click():
    bild = leinwand(.22)
    legen(bild, .001, geldschein(41))
    legen(bild, .07, filzstoß(.12, 210, 42, 1600), .55)
    return raum(bild, .08, .5)


def motor(dauer, drehzahl, lauter, saat):
    """Aufziehauto: Zündfolge im Blechkasten, Zahnrad und Rädergeklapper. Die Kurven sind Linien über die Dauer."""
    zündung = falten(impulse(dauer, drehzahl, saat, .012, .22), schlag(.06, 290, BRETT, .011, .0016))[:anzahl(dauer)]
    blech = falten(impulse(dauer, drehzahl * .5, saat + 1, .02, .3), eigenton(.04, 900, BLECH, .006))[:anzahl(dauer)]
    zahn = np.sin(2 * np.pi * np.cumsum(drehzahl * 9) / RATE) * (1 + .5 * np.sin(2 * np.pi * np.cumsum(drehzahl) / RATE))
    zahn = filtern(np.tanh(1.5 * zahn), ("tief", 1500, .7))
    räder = filtern(rauschen(dauer, saat + 2), ("band", 1500, .8)) * (1 + .6 * np.sin(2 * np.pi * np.cumsum(drehzahl * .25) / RATE))
    mischung = sum(s * y / np.abs(y).max() for s, y in ((1, zündung), (.4, blech), (.13, zahn), (.16, räder)))
    return filtern(mischung, ("tief", 5200, .6)) * lauter


def rasseln(dauer, rate, lauter, saat):
    """Sperrklinke und lose Räder: einzelne Stöße auf Blech und Holz, keiner wie der andere."""
    y = np.zeros(anzahl(dauer))
    for k, (grund, moden, kontakt, stärke) in enumerate(((620, BRETT, .001, .8), (1450, BLECH, .0004, .6), (380, BRETT, .0016, .9))):
        stöße = impulse(dauer, rate * (1, 1.31, .77)[k], saat + k, .009, .6)
        körper = schlag(.06, grund, moden, (.010, .007, .014)[k], kontakt)
        y += stärke * falten(stöße, körper / np.abs(körper).max())[:len(y)]
    zischen = filtern(rauschen(.02, saat + 3), ("hoch", 2200, .7), ("tief", 8000, .7)) * np.exp(-zeit(.02) / .004)
    y += .5 * falten(impulse(dauer, rate * 1.31, saat + 1, .009, .6), zischen / np.abs(zischen).max())[:len(y)]
    return y / np.abs(y).max() * lauter


def car():
    dauer = .78
    drehzahl = verlauf(dauer, (0, 34), (.12, 52), (.34, 88), (.52, 96), (.78, 46))
    lauter = verlauf(dauer, (0, 0), (.04, .75), (.3, 1), (.52, .9), (.7, .25), (.78, 0))
    fahrt = .5 * motor(dauer, drehzahl, lauter, 51) + rasseln(dauer, drehzahl * .42, lauter, 55)
    return raum(orten(fahrt, verlauf(dauer, (0, -.35), (.78, .35))), .12, .5)


def tromm():
    """Wirbel auf der Spielzeugtrommel: zwei Stöcke, die jeden Schlag ein paarmal nachspringen."""
    dauer = 1.75
    w = würfel(61)
    schläge = np.zeros((anzahl(dauer), 2))
    t, hand = .01, 0
    while t < 1.5:
        kraft = np.interp(t, (0, .15, 1.05, 1.5), (.95, .42, .85, .3))
        for prall in range(3):
            ort = t + prall * (.026 + .002 * w.random_sample())
            schläge[anzahl(ort), hand] += kraft * .72 ** prall * (.85 + .3 * w.random_sample())
        t += .074 + .004 * w.random_sample()
        hand = 1 - hand
    bild = leinwand(dauer, 2)
    teppich = filtern(rauschen(.12, 62), ("hoch", 1500, .7), ("tief", 7500, .7)) * np.exp(-zeit(.12) / .022)
    for hand, (grund, seite) in enumerate(((208, -.22), (214, .22))):
        körper = schlag(.2, grund, FELL, .05, .0012)
        klang = falten(schläge[:, hand], körper / np.abs(körper).max())[:anzahl(dauer)]
        klang += .55 * falten(schläge[:, hand], teppich / np.abs(teppich).max())[:anzahl(dauer)]
        legen(bild, 0, klang, .5, seite)
    return raum(bild, .2, .7)


def kasse():
    """Ladenkasse: Hebel, Glocke, Schublade, ein paar Münzen."""
    bild = leinwand(1.45, 2)
    for wann, grund, stärke in ((.002, 520, .7), (.028, 760, .5), (.052, 610, .45)):
        legen(bild, wann, holz(.09, grund, .012, .0007, BLECH), stärke, -.2)
    legen(bild, .05, filzstoß(.14, 190, 71), .14, -.1)
    glocke = schlag(1.35, 2093, GLOCKE, .5, .00012)
    legen(bild, .085, glocke / np.abs(glocke).max(), .8, .15)
    lauf = gleitband(rauschen(.26, 72), verlauf(.26, (0, 700), (.26, 1500)), 1.2) * bogen(.26, .05, .05)
    legen(bild, .1, lauf / np.abs(lauf).max(), .16, .1)
    legen(bild, .335, holz(.2, 310, .03, .001, BRETT), .26, .15)
    legen(bild, .335, ticken(74), .25, .15)
    w = würfel(73)
    for k in range(7):
        münze = schlag(.16, 3300 + 2400 * w.random_sample(), GLAS, .03, .0002)
        legen(bild, .35 + .03 * k + .022 * w.random_sample(), münze / np.abs(münze).max(), .34 * .85 ** k, .3 - .1 * k)
    return raum(bild, .2, .6)


def command_click():
    """Knopf im Dialog: leichter als der Klick im Menü, Klavierhammer auf Filz."""
    bild = leinwand(.16)
    legen(bild, .001, filzstoß(.1, 230, 81), .55)
    legen(bild, .001, holz(.09, 1180, .011, .0008), .6)
    legen(bild, .048, holz(.06, 1560, .008, .0007), .2)
    return raum(bild, .07, .5)


# Karten

def kback():
    """Die Karte fällt herein: Luft, dann ein flaches Blatt auf dem Tisch, das einmal nachfedert."""
    dauer = .6
    bild = leinwand(dauer, 2)
    luft = gleitband(rauschen(.34, 91), verlauf(.34, (0, 600), (.19, 1800), (.34, 800)), .9)
    luft *= verlauf(.34, (0, 0), (.05, .3), (.19, 1), (.25, .35), (.34, 0))
    legen(bild, 0, luft / np.abs(luft).max(), .4)
    for wann, stärke in ((.22, 1), (.315, .3), (.365, .12)):  # nach 0,22 s liegt sie
        klatsch = filtern(rauschen(.08, 92), ("hoch", 500, .7), ("tief", 3600, .7)) * np.exp(-zeit(.08) / .011) * bogen(.08, .001, .01)
        legen(bild, wann, klatsch / np.abs(klatsch).max(), .6 * stärke, .05)
        legen(bild, wann, holz(.18, 190, .03, .003, BRETT), .75 * stärke, -.05)
    return raum(bild, .18, .7)


def kbf():
    """Blättern: der Daumen lässt vier Ecken springen, die Karte legt sich."""
    bild = leinwand(.26, 2)
    for k, wann in enumerate((.002, .03, .053, .072)):
        y = filtern(rauschen(.03, 95 + k), ("band", 1900 + 350 * k, 1.2)) * np.exp(-zeit(.03) / .005) * bogen(.03, .0008, .01)
        legen(bild, wann, y / np.abs(y).max(), .45 + .12 * k, -.2 + .1 * k)
    legen(bild, .112, filzstoß(.12, 240, 99, 1800), .75, .1)
    return raum(bild, .1, .6)


# Ende

def glass():
    """Ein Glas kippt, kullert und zerspringt in Kinderscherben; zuletzt dreht sich ein Stück aus."""
    bild = leinwand(2.0, 2)
    w = würfel(101)
    for wann, stärke in ((.01, .5), (.15, .36), (.25, .42), (.325, .5)):
        y = schlag(.3, 1150 + 60 * w.random_sample(), GLAS, .06, .0009)
        legen(bild, wann, y / np.abs(y).max(), stärke, -.3 + wann)
    krach = filtern(rauschen(.3, 102), ("hoch", 2200, .7), ("tief", 9000, .7)) * np.exp(-zeit(.3) / .035)
    legen(bild, .44, krach / np.abs(krach).max(), .5)
    legen(bild, .44, filzstoß(.15, 160, 103), .45)
    for k in range(34):
        wann = .44 + .55 * w.random_sample() ** 2.2
        y = schlag(.35, 1500 * 2 ** (1.9 * w.random_sample()), GLAS, .02 + .05 * w.random_sample(), .0002)
        legen(bild, wann, y / np.abs(y).max(), (.34 - .45 * (wann - .44)) * (.4 + .6 * w.random_sample()), 1.4 * w.random_sample() - .7)
    t, pause = 1.0, .13
    while pause > .022:
        y = schlag(.25, 2480, GLAS, .035, .0003)
        legen(bild, t, y / np.abs(y).max(), .2 * pause / .13 + .05, .35)
        t, pause = t + pause, pause * .84
    return raum(bild, .25, .7)


LAUTE = {"a": ((820, 110, 1), (1280, 130, .8), (2700, 200, .5), (3600, 280, .35)),
         "i": ((360, 80, .8), (2350, 160, .8), (3050, 220, .6), (3800, 280, .3)),
         "o": ((500, 90, 1), (880, 110, .7), (2500, 200, .3), (3400, 280, .2))}


def silbe(laut, höhe, fall, dauer, größe, saat):
    """Eine Lachsilbe: Hauch, dann Stimme, deren Höhe um `fall` Halbtöne abrutscht. `größe` kleiner eins ist ein kleinerer Mund."""
    f = halbton(höhe, verlauf(dauer, (0, -1.5), (.25 * dauer, .6), (dauer, -fall)))
    f = f * (1 + .012 * np.sin(2 * np.pi * 27 * zeit(dauer)))
    lippen = falten(impulse(dauer, f, saat, .002, .06), np.diff(np.hanning(max(8, int(.2 * RATE / höhe)))))[:anzahl(dauer)]
    hauch = filtern(rauschen(dauer, saat + 1), ("hoch", 500, .7))
    stimme = lippen / np.abs(lippen).max() * verlauf(dauer, (0, 0), (.22 * dauer, .05), (.34 * dauer, 1), (.62 * dauer, .8), (.95 * dauer, 0), (dauer, 0))
    hauch *= verlauf(dauer, (0, 0), (.1 * dauer, 1), (.3 * dauer, .5), (.5 * dauer, .12), (dauer, 0))
    mund = tuple((fm / größe, b, s) for fm, b, s in LAUTE[laut])
    return formanten(stimme + .16 * hauch, *mund) + .012 * filtern(hauch, ("hoch", 2500, .7)) + .02 * stimme


LACHER = (  # Mund, Seite, Stärke, Silben: (Zeit, Laut, Höhe, Fall, Dauer)
    (.86, -.25, 1.0, ((.02, "a", 330, 2, .2), (.21, "a", 370, 2, .17), (.37, "a", 350, 3, .16), (.52, "a", 326, 3, .155),
                      (.67, "a", 300, 3, .15), (.81, "a", 275, 3, .15), (.95, "a", 250, 4, .16), (1.11, "a", 228, 7, .34),
                      (1.72, "o", 215, 3, .17), (1.9, "o", 190, 6, .3))),
    (.70, .5, .5, ((.62, "i", 560, 1, .11), (.73, "i", 620, 1, .11), (.84, "i", 600, 1, .11), (.95, "i", 640, 1, .11),
                   (1.06, "i", 590, 1, .11), (1.17, "i", 560, 2, .11), (1.28, "i", 530, 2, .12), (1.4, "i", 500, 6, .24))),
    (1.08, .1, .6, ((.98, "o", 165, 2, .2), (1.18, "o", 172, 2, .19), (1.37, "o", 160, 3, .2), (1.57, "o", 146, 5, .3))),
)


def laugh():
    """Drei Figuren lachen: eine Ente von Mensch fängt an, ein Kleiner kichert hinein, ein Dicker brummt nach."""
    bild = leinwand(2.3, 2)
    for nummer, (größe, seite, stärke, silben) in enumerate(LACHER):
        for k, (wann, laut, höhe, fall, dauer) in enumerate(silben):
            y = silbe(laut, höhe, fall, dauer, größe, 111 + 40 * nummer + 2 * k)
            legen(bild, wann, y / np.abs(y).max(), stärke * (.8 + .2 * (k % 2 == 0)), seite)
    return raum(bild, .16, .6)


# Vorspann: vier Takte zu je 2,5 s. Takt drei (5 s) bringt den Namen, in Takt vier (7,5 s) hupt das Auto.

SCHLAG = .625
UKULELE = ((0, 60, 64, 67, 71), (2, 60, 64, 67, 69), (4, 60, 65, 69, 72), (6, 59, 65, 67, 69),
           (8, 62, 64, 67, 71), (10, 61, 64, 67, 69), (12, 60, 65, 69, 72), (13, 59, 65, 67, 69))
BASS = ((0, 48), (1.5, 55), (2, 45), (3.5, 52), (4, 50), (5.5, 57), (6, 43), (7.5, 47),
        (8, 48), (9.5, 52), (10, 45), (11, 57), (11.5, 51), (12, 50), (13, 43), (14, 48))
WEISE = ((0, 76, .8), (.5, 79, .6), (1.5, 83, .9), (2, 81, .7), (2.5, 79, .5), (3.5, 74, .7),
         (4, 77, .8), (4.5, 81, .6), (5.5, 84, .95), (6, 83, .7), (6.5, 81, .6), (7, 79, .7), (7.25, 81, .75), (7.5, 83, .85), (7.75, 86, .9),
         (8, 88, 1), (9, 86, .7), (9.5, 83, .8), (10.5, 85, .6), (11, 81, .7),
         (12, 77, .5), (12.5, 81, .55), (13, 79, .5), (14, 84, .9))


def hupe(höhe, dauer):
    """Ballhupe: Zunge im Trichter."""
    t = zeit(dauer)
    f = halbton(höhe, verlauf(dauer, (0, -2), (.02, 0), (.7 * dauer, 0), (dauer, -1.5)))
    zunge = falten(impulse(dauer, f, 5, .001, .03), np.diff(np.hanning(30)))[:len(t)]
    y = formanten(zunge, (620, 160, 1), (1250, 220, .7), (2300, 400, .25)) * bogen(dauer, .012, .04)
    return y / np.abs(y).max()


def intro():
    dauer = 9.4
    bild = leinwand(dauer, 2)
    for seite, saat in ((-.8, 121), (.8, 122)):  # Brandung, die zum Namen hin zurückweicht
        see = filtern(rauschen(dauer, saat), ("tief", 1100, .5), ("hoch", 180, .6))
        see *= verlauf(dauer, (0, 0), (.5, .5), (1.6, 1), (3.0, .35), (4.1, .75), (5.4, .22), (9.4, .1))
        legen(bild, 0, see / np.abs(see).max(), .15, seite)
        gischt = filtern(rauschen(dauer, saat + 6), ("hoch", 2600, .6), ("tief", 9000, .6))
        gischt *= verlauf(dauer, (0, 0), (.6, .4), (1.7, 1), (2.8, .25), (4.2, .6), (5.2, .15), (9.4, .1))
        legen(bild, 0, gischt / np.abs(gischt).max(), .10, seite)
    for schlagzahl, höhe, stärke in WEISE:
        legen(bild, schlagzahl * SCHLAG, marimba(höhe, 1.2, stärke), .5, -.15)
        legen(bild, schlagzahl * SCHLAG, glockenspiel(höhe + 12, 1.), .07 * stärke, .1)
        if schlagzahl >= 8:
            legen(bild, schlagzahl * SCHLAG, marimba(höhe - 12, 1.2, stärke), .34, -.3)
    for schlagzahl, höhe in BASS:
        legen(bild, schlagzahl * SCHLAG, saite(1.2, note(höhe - 12), .5, .22, helle=1.1), .28)
    for beginn, *griff in UKULELE:
        for achtel in ((0, 1.5) if beginn < 12 else (0,)):
            for k, höhe in enumerate(griff):
                legen(bild, (beginn + achtel) * SCHLAG + .011 * k, saite(.7, note(höhe + 12 * (höhe < 60)), .22, .2, helle=.45), .10, .4)
    besen = filtern(rauschen(.07, 123), ("hoch", 4500, .8)) * np.exp(-zeit(.07) / .016) * bogen(.07, .006, .02)
    for achtel in range(8, 26):
        legen(bild, achtel / 2 * SCHLAG + .008 * (achtel % 2), besen / np.abs(besen).max(), .12 + .07 * (achtel % 2), .3)
    # Der Name: Becken schwillt an, Glockenspiel und Holz zugleich
    becken = filtern(rauschen(1.4, 124), ("hoch", 3800, .7)) * verlauf(1.4, (0, 0), (.9, .8), (.94, .5), (1.4, 0)) ** 2
    legen(bild, 5 - .92, becken / np.abs(becken).max(), .22)
    for k, höhe in enumerate((72, 76, 79, 83, 86, 91)):
        legen(bild, 5 + .035 * k, glockenspiel(höhe + 12 * (höhe < 84)), .2, -.5 + .2 * k)
    legen(bild, 5, filzstoß(.5, 70, 125), .35)
    # Das Auto: von links heran, hupt auf Schlag dreizehn, bremst, steht
    fahrt = 2.05
    spur = motor(fahrt, verlauf(fahrt, (0, 60), (.9, 96), (1.35, 88), (1.75, 40), (fahrt, 30)),
                 verlauf(fahrt, (0, 0), (.8, .75), (1.3, .9), (1.75, .35), (fahrt, 0)), 126)
    seite = verlauf(fahrt, (0, -.9), (1.6, .35), (fahrt, .35))
    legen(bild, 6.75, orten(spur, seite), .34)
    legen(bild, 12 * SCHLAG, hupe(415, .13), .32, .1)
    legen(bild, 12.5 * SCHLAG, hupe(415, .2), .34, .15)
    bremse = gleitband(rauschen(.3, 127), verlauf(.3, (0, 2100), (.3, 1500)), 30) * bogen(.3, .04, .08)
    legen(bild, 8.2, bremse / np.abs(bremse).max(), .11, .35)
    legen(bild, 14 * SCHLAG, holz(.25, 420, .03), .22, .2)
    for höhe in (72, 76, 79, 86):
        legen(bild, 14 * SCHLAG, glockenspiel(höhe + 12, 1.2), .07, .2)
        legen(bild, 14 * SCHLAG, marimba(höhe, 1.2, .6), .14, -.1)
    return raum(bild, .4, .6)


MIT_MUSIK = -12.0  # dB: zwei Geräusche am Brett und die Musik übersteuern zusammen nicht
IM_GARTEN = -6.5   # im Menü spielt keine Musik
ALLEIN = -3.0
TAFEL = (  # Datei, Welle, lauteste 0,4 s in LUFS, höchste Spitze in dB, Ausklang in s
    ("intro.wav", intro, -17.5, ALLEIN, .35),
    ("click2.wav", click2, -25.0, IM_GARTEN, .03),
    ("click1.wav", click1, -22.5, IM_GARTEN, .05),
    ("menuback.wav", menuback, -20.0, IM_GARTEN, .08),
    ("haus.wav", haus, -19.5, MIT_MUSIK, .2),
    ("money_click.wav", money_click, -23.5, MIT_MUSIK, .05),
    ("car.wav", car, -21.0, MIT_MUSIK, .06),
    ("tromm.wav", tromm, -19.5, MIT_MUSIK, .15),
    ("kasse.wav", kasse, -19.5, MIT_MUSIK, .25),
    ("command_click.wav", command_click, -24.5, MIT_MUSIK, .04),
    ("kback.wav", kback, -21.5, MIT_MUSIK, .12),
    ("kbf.wav", kbf, -23.0, MIT_MUSIK, .05),
    ("glass.wav", glass, -19.5, MIT_MUSIK, .25),
    ("laugh.wav", laugh, -19.5, MIT_MUSIK, .12),
)


def schreibe_alle(ordner):
    for datei, welle, laut, spitze, ausklang in TAFEL:
        schreiben(ordner / datei, welle(), laut, spitze, aus=ausklang)
