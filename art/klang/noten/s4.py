"""Kurkonzert: Swing in B-Dur. Klarinette, gedämpfte Trompete und Saxophon vor Klavier, Bass und Schlagzeug.

Form: Vorspiel, A A B A (Thema), A A (Trompete solo), B (Klavier), A (Bläsersatz), Zwischenspiel (Posaune),
A A (Saxophon solo), A (Wechsel mit dem Schlagzeug), B (Klarinette), A, Anhang.
"""
from satz import Stück

A = "B6 | Hdim7 | Cm7 | Cisdim7 | B6/D | G7b9 | C9 | F13"
A_SCHLUSS = "B6 | Hdim7 | Cm7 | Cisdim7 | B6/D G7b9 | C9 F13 | B6 Es9 | B6"
B = "Esmaj7 | Esm6 As9 | Dm7 | G7b9 | Cm7 | Ges9 | F13 | F7b9b13"

# Der Einfall: dreimal angestoßen, dann ein Sprung und ein Seufzer; jede Stufe des Basses hebt ihn höher.
THEMA = """f5:8 f5' r f5 b5:4 g5:8 f5 | es5:4. d5:8 h4:4 r | g5:8 g5' r g5 c6:4 b5:8 g5 | f5:4. e5:8 cis5:4 r
         | b5:4. a5:8~8 g5 f5 d5 | as5:8 g5 f5 d5 h4:4. c5:8 | d5:4 e5:8 g5 b5:4. a5:8 | g5:8 f5 r es5 c5:4 r"""
THEMA_SCHLUSS = """f5:8 f5' r f5 b5:4 g5:8 f5 | es5:4. d5:8 h4:4 r | g5:8 g5' r g5 c6:4 b5:8 g5 | f5:4. e5:8 cis5:4 r
                 | d6:4. c6:8~8 h5 as5 f5 | e5:8 d5 r b4 es5 d5 c5 a4 | b4:8 b4' r f5 es5:4' des5:8 c5 | b4:4 r:8 f4:8' r:2"""
MITTE = """g5:2^ r:8 f5 es5 b4 | c5:4. b5:8~4 as5 | a5:2^ r:8 g5 f5 d5 | d5:4. as5:8~4 g5
         | b5:4^ g5:8 es5 f5:4 es5:8 c5 | des5:4. as5:8~4 ges5:8 e5 | f5:4 es5:8 c5 a4 c5 d5 f5 | ges5:4. f5:8 es5:4 a4"""

TROMPETE_1 = """[g4:8 a4 h4 c5] d5:4' d5:8 es5 f5:4. g5:8 | as5:4 g5:8 f5 d5:4 r | r:8 es5 g5 b5 as5 g5 es5 c5 | e5:4^ g5 f5:8 e5 cis5:4'
              | r:8 d5 f5 b5 d6:4^ c6:8 b5 | as5:8t g5 f5 d5:8 h4 d5:4 r | e5:8 g5 b5 d6 c6 b5 g5 e5 | f5:4' es5:8 d5 c5:4 r"""
TROMPETE_2 = """d6:4^' d6:8 b5 r f5 g5:4 | as5:4' g5:8 f5 d5:4. f5:8 | g5:4. f5:8 es5 d5 c5 g5 | cis6:4^ b5:8 a5 g5 e5 b5:4
              | d6:8 b5 f5 d5 h4 d5 f5 as5 | g5:8 e5 c5 g5 f5 es5 d5 c5 | d5:4' r:8 g5 f5 es5 des5:4 | c5:8 b4 r f4:8' r:2"""
SAXOPHON_1 = """d5:4. c5:8~8 b4 g4 f4 | as4:8 h4 d5 f5 es5:4 d5 | r:8 c5 es5 g5 f5 es5 c5 b4 | b4:4' g4:8 cis5 e5:4. d5:8
              | f5:4^ d5:8 f5 g5 d5 b4 d5 | h4:8t c5 d5 f5:8 as5 g5:4 r | b5:8 a5 g5 e5 d5 c5 b4 g4 | a4:4' c5:8 es5 d5:4 r"""
SAXOPHON_2 = """f5:4^' f5:8 g5 r d5 b5 g5 | f5:4. d5:8 h4:4 as4 | g4:8 c5 d5 es5 g5:4 f5:8 es5 | e5:4' cis5:8 e5 g5 b5 g5:4
              | f5:8 g5 f5 d5 h4 c5 d5 f5 | e5:4. d5:8 c5 d5 es5 a4 | b4:4' r:8 d5 f5:4 es5:8 des5 | d5:8 b4 r f4:8' r:2"""
RUFE = """f5:8 g5 f5 d5 g5 b5 d6 b5 | as5:4 g5:8 f5 d5:4' r | r:1 | r
        | d5:8 f5 g5 b5 d6:4 b5:8 f5 | as5:8 g5 f5 d5 h4:4' r | r:1 | r"""
POSAUNE = """d4:4' r:8 f4~ f4 es4 d4:4' | h3:4' r:8 d4~ d4 f4 as4:4' | g4:4' r:8 e4~ e4 f4 g4:4' | a4:4. g4:8 f4 es4 d4 c4"""
KLAVIER = """r:8 <b4 d5>:8 <es5 g5>:4 <d5 f5>:8' r <b4 d5>:4' | r:8 c5 es5 ges5 b5:8t as5 ges5 f5:8 es5 | r:8 <a4 c5>:8 <d5 f5>:4 <c5 e5>:8' r <a4 c5>:4' | r:8 h4 d5 f5 as5:8t g5 f5 e5:8 d5
           | es5:8 d5 c5 g4 b4 c5 es5 d5 | <b4 e5>:4' r:8 <as4 des5>:8' r <des5 as5>:8' r:4 | g5:8 f5 es5 d5 c5 a4 c5 d5 | <des5 ges5>:4. <des5 f5>:8 <a4 es5>:2"""
SATZ = """b5:4' r:8 f5~ f5 g5 b5:4' | h5:4' r:8 as5~ as5 g5 f5:4' | c6:4' r:8 g5~ g5 as5 b5:4' | b5:4. a5:8 g5 f5 e5:4'
        | d6:4^ c6:8 b5 f5 g5 b5:4' | h5:8 as5 g5 f5 as5:4. g5:8 | e5:4' r:8 g5' r b5' d6:4% | c6:8 b5' r a5 g5:4' r"""
ENDE = """f5:8 f5' r f5 b5:4 g5:8 f5 | es5:4. d5:8 h4:4 r | g5:8 g5' r g5 c6:4 b5:8 g5 | f5:4. e5:8 cis5:4 r
        | d6:4. c6:8~8 h5 as5 f5 | e5:8 d5 r b4 es5 d5 c5 a4"""
ANHANG = """d6:4. c6:8~8 h5 as5 f5 | e5:8 d5 r b4 es5 d5 a4 c5 | d5:4' r:8 f5' r as5' h5:4 | d6:8 c6 r b5 a5 g5 f5 es5
          | d5:8 b4' r f5 es5:4' r | r:8 b5' r:4 b5:4!% r"""

# Gegenstimmen
POLSTER = """d4:2. f4:4 | f4:2 as4 | g4:2. es4:4 | e4:2 g4 | f4:2. d4:4 | d4:2 f4 | e4:2 g4 | d4:2 r"""
RIFF = """r:8 d5' r d5' r:2 | r:8 d5' r d5' r:2 | r:8 es5' r es5' r:2 | r:8 e5' r e5' r:2 | r:8 d5' r d5' r:2 | r:8 d5' r d5' r:2 | r:8 d5' r d5' r:2 | r:8 d5' r c5' r:2"""

PAUSE = "x......."
KOMP = "x.....v.|-..x..x.|..x....v|-...x..."
KOMP_SATT = "x..x..v.|-..x.x..|..x..x.v|-..x..x."
BECKEN = {"ride": "x.xox.xo", "fuß": "..x...x.", "bass": "o.,.o.,."}
LEISE = {"hihat": "o.xoo.xo", "fuß": "..,...,.", "bass": "o...o...", "rand": "......o.|..o....."}
LAUT = {"ride": "x.xox.xo", "fuß": "..x...x.", "bass": "x.o.x.o.", "schnarr": ".....,..|...o...,|.,....o.|...,.o.."}
FÜLLUNG = {"ride": "x.xo....", "schnarr": "....xxxX", "tomtief": "..x...xo", "bass": "x...x...", "fuß": "..x...x."}
FÜLLUNG_2 = {"schnarr": "x.oxx.......", "tomhoch": "......xox...", "tomtief": ".........xXX", "bass": "x..x..x..x..", "fuß": "...x.....x.."}
WIRBEL_1 = {"schnarr": "x.oxo.xo|x.o.....", "tomhoch": "........|...xoxo.", "tomtief": "...x....|.......X", "bass": "x...x..x|x..x..x.", "fuß": "..x...x."}
WIRBEL_2 = {"schnarr": "xooxooXooxoX|x..x........", "tomhoch": "............|....xoX.....", "tomtief": "...x.....x..|.......xXxXX", "bass": "x.....x.....|x..x.....x..", "becken": "x...........|............"}


def stück():
    st = Stück("s4", "Kurkonzert", tempo=164, saat=4, swing=.635)
    klarinette = st.stimme("Klarinette", 71, kraft=84, laut=106, ort=50, hall=44, spät=6, vibrato=14)
    trompete = st.stimme("Dämpfertrompete", 59, kraft=100, laut=120, ort=80, hall=46, spät=8, vibrato=12)
    sax = st.stimme("Tenorsaxophon", 66, kraft=80, laut=108, ort=92, hall=40, spät=10)
    posaune = st.stimme("Posaune", 57, kraft=82, laut=112, ort=104, hall=44, spät=10)
    klavier = st.stimme("Klavier", 0, kraft=72, laut=108, ort=38, hall=34)
    bass = st.stimme("Bass", 32, kraft=82, laut=98, hall=14)
    trommel = st.schlagzeug(32, kraft=80, laut=118, hall=28)

    vorspiel = st.teil("Vorspiel", "B6/F | G7b9 | C9 | F13 | B6 G7b9 | C9 F13", kraft=.92)
    a1 = st.teil("A1", A, kraft=.94)
    a2 = st.teil("A2", A_SCHLUSS, kraft=.96)
    b1 = st.teil("B1", B, kraft=.96)
    a3 = st.teil("A3", A_SCHLUSS)
    t1 = st.teil("Trompete 1", A, kraft=.97)
    t2 = st.teil("Trompete 2", A_SCHLUSS)
    k = st.teil("Klavier", B, kraft=.95)
    satz = st.teil("Bläsersatz", A, kraft=1.08)
    zwischen = st.teil("Zwischenspiel", "B6/F | G7b9 | C9 | F13", kraft=.95)
    sax_1 = st.teil("Saxophon 1", A, kraft=.96)
    sax_2 = st.teil("Saxophon 2", A_SCHLUSS)
    wechsel = st.teil("Wechsel", A, kraft=1.02)
    b2 = st.teil("B2", B, kraft=.98)
    a4 = st.teil("A4", "B6 | Hdim7 | Cm7 | Cisdim7 | B6/D G7b9 | C9 F13", kraft=1.0)
    schluss = st.teil("Anhang", "B6/D G7b9 | C9 F13 | Dm7 G7b9 | C9 F13 | B6 Es9 | B69", kraft=1.02)

    # Melodien
    vorspiel.spiele(klarinette, "r:1 | r | r | r | f5:8 d5 r b4 as5 g5 f5 d5 | e5:4' r:8 d5 f5 es5 d5 c5", kraft=.9)
    vorspiel.spiele(klavier, "r:8 d5 f5 b5 a5 g5 f5 d5 | as5:8 g5 f5 d5 h4:4' r | r:8 e5 g5 b5 d6 c6 b5 g5 | a5:8t g5 f5 es5:8 d5 c5:4' r | r:1 | r:1")
    a1.spiele(klarinette, THEMA)
    a2.spiele(klarinette, THEMA_SCHLUSS)
    a2.spiele(sax, POLSTER.replace("d4:2 f4 | e4:2 g4 | d4:2 r", "c4:2 a3 | d4:2 g4 | f4:4' r r:2").replace("f4:2. d4:4", "f4:2 d4"), kraft=.85, rolle="gegen")
    b1.spiele(trompete, MITTE)
    b1.spiele(sax, "g4:1 | es4:2 c4 | c4:1 | d4:2 f4 | es4:1 | e4:2 b3 | d4:2 a3 | des4:2 a3", kraft=.85, rolle="gegen")
    for tiefe, stimme in ((1, trompete), (2, sax)):
        a3.unterstimme(stimme, THEMA_SCHLUSS, tiefe=tiefe, kraft=.9)
    a3.spiele(klarinette, THEMA_SCHLUSS)
    t1.spiele(trompete, TROMPETE_1)
    t2.spiele(trompete, TROMPETE_2)
    t2.spiele(klarinette, RIFF, kraft=.72, rolle="gegen")
    t2.unterstimme(sax, RIFF, tiefe=1, kraft=.8)
    k.spiele(klavier, KLAVIER, kraft=1.3)
    satz.spiele(klarinette, SATZ)
    for tiefe, stimme in ((1, trompete), (2, sax), (3, posaune)):
        satz.unterstimme(stimme, SATZ, tiefe=tiefe, kraft=.95)
    zwischen.spiele(posaune, POSAUNE)
    zwischen.spiele(trompete, "r:1 | r:4 f4:8' r f4' r r:4 | r:1 | r:2 r:8 es4' r es4'", kraft=.75, rolle="gegen")
    sax_1.spiele(sax, SAXOPHON_1, oktave=-1)
    sax_2.spiele(sax, SAXOPHON_2, oktave=-1)
    sax_2.spiele(klarinette, RIFF, kraft=.66, rolle="gegen")
    sax_2.unterstimme(trompete, RIFF, tiefe=1, kraft=.6)
    # Zwei Takte die Klarinette, zwei das Schlagzeug; dann der Satz, dann wieder das Schlagzeug.
    wechsel.spiele(klarinette, RUFE)
    for tiefe, stimme in ((1, trompete), (2, sax)):
        wechsel.unterstimme(stimme, "d5:8 f5 g5 b5 d6:4 b5:8 f5 | as5:8 g5 f5 d5 h4:4' r", tiefe=tiefe, ab=5, kraft=.9)
    b2.spiele(klarinette, MITTE)
    b2.spiele(trompete, "r:2 r:8 b4' r b4' | r:1 | r:2 r:8 a4' r c5' | r:1 | r:2 r:8 g4' r b4' | r:1 | r:4 a4:8' r c5:4' r | r:1", kraft=.8, rolle="gegen")
    b2.spiele(posaune, "b3:1 | c4:2 ges3 | a3:2. f3:4 | h3:2 f3 | b3:2 g3 | b3:2 e3 | a3:2 c4 | a3:2 es3", kraft=.85, rolle="gegen")
    a4.spiele(klarinette, ENDE)
    schluss.spiele(klarinette, ANHANG)
    for tiefe, stimme in ((1, trompete), (2, sax), (3, posaune)):
        a4.unterstimme(stimme, ENDE, tiefe=tiefe, kraft=.9)
        schluss.unterstimme(stimme, ANHANG, tiefe=tiefe, kraft=.95)

    # Begleitung
    vorspiel.bass(bass, "1...5...", von=3, bis=4)
    vorspiel.wandere(bass, von=5)
    vorspiel.trommle(trommel, {"fuß": "..o...o."}, bis=4)
    vorspiel.trommle(trommel, LEISE, {6: FÜLLUNG}, von=5)
    zwischen.bass(bass, "1---5---")
    zwischen.greife(klavier, "..x..x..", (53, 70))
    vorspiel.greife(klavier, "x..x....|...x..x.", (53, 70), von=5)
    for teil in (a1, a2, b1, a3, t1, t2, k, satz, sax_1, sax_2, b2, a4, schluss):
        teil.wandere(bass, bis=teil.takte - (teil in (a3, schluss)))
    for teil in (a1, a2, b1, a3, t1, t2, satz, sax_1, sax_2, b2, a4):
        teil.greife(klavier, KOMP if teil in (a1, b1, b2, satz, sax_1) else KOMP_SATT, (53, 70), füllungen={8: PAUSE} if teil is a3 else None)
    a3.bass(bass, "1.......", von=8)  # alle halten an, die Trompete springt hinein
    k.greife(klavier, "x.......|....x...", (48, 62), kraft=.8, töne=2)
    schluss.greife(klavier, KOMP_SATT, (53, 70), bis=5)
    schluss.greife(klavier, ".x..x---", (53, 70), von=6)
    schluss.bass(bass, ".1..1---", von=6)
    for teil in (a1, a2, k):
        teil.trommle(trommel, LEISE, {8: FÜLLUNG})
    for teil in (b1, t1, sax_1, b2):
        teil.trommle(trommel, BECKEN, {8: FÜLLUNG})
    for teil in (t2, satz):  # danach wird es leiser: keine Füllung
        teil.trommle(trommel, LAUT, {4: dict(LAUT, schnarr=".o.....x")})
    for teil, füllung in ((sax_2, FÜLLUNG_2), (a4, FÜLLUNG)):
        teil.trommle(trommel, LAUT, {4: dict(LAUT, schnarr=".o.....x"), teil.takte: füllung})
    a3.trommle(trommel, LAUT, {4: dict(LAUT, schnarr=".o.....x")}, bis=7)
    a3.trommle(trommel, {"bass": PAUSE, "ride": PAUSE}, von=8)
    zwischen.trommle(trommel, LEISE, {4: FÜLLUNG})
    for ab, wirbel in ((1, WIRBEL_1), (5, WIRBEL_2)):
        wechsel.wandere(bass, von=ab, bis=ab + 1)
        wechsel.greife(klavier, KOMP_SATT, (53, 70), von=ab, bis=ab + 1)
        wechsel.trommle(trommel, BECKEN, von=ab, bis=ab + 1)
        wechsel.trommle(trommel, wirbel, von=ab + 2, bis=ab + 3, kraft=1.25)
    for teil in (satz, b2):
        teil.tusch(trommel)
    schluss.trommle(trommel, LAUT, {4: FÜLLUNG}, bis=5)
    schluss.trommle(trommel, {"bass": ".x..x...", "schnarr": ".x..x...", "becken": "....o..."}, von=6)
    return st
