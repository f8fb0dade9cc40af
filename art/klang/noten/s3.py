"""Muschelmarkt: Calypso in C-Dur, zuletzt in D. Stahltrommel und Marimba, zwei Trompeten, Saxophon im Mittelteil.

Form: Vorspiel, A, B (Trompeten rufen, Trommel antwortet), A als Solo der Marimba, C in a-Moll, zwei Takte Schlagzeug;
in D: A, A als Solo der Stahltrommel, B, Schluss.
"""
from satz import Stück

A = """C6 | % | C6 A7 | Dm7 | % | G9 | Dm7 G9 | C6 G7
     | C6 | C7 | F6 | Fm6 | C/G A7b9 | D9 G7 | C6 | %"""
B = """F6 | % | C6 | % | G9 | % | C6 | C9
     | F6 | Fisdim7 | C/G | A7b9 | D9 | % | Dm7 | G13"""
C = """Am7 | % | E7b9 | % | Am7 | A7 | Dm7 | %
     | G9 | % | Cmaj7 | Fmaj7 | Hm7b5 | E7b9 | A9sus | A7"""

# Drei-drei-zwei hinauf, dann ein Ton, der über den Takt hängt.
THEMA = """[g4:8 a4 h4] c5:4. f5 e5:4 | g5:8 f5 r e5:8~2 | e5:4. a5:8~4 g5 | f5:8 e5 r d5:8~2
         | d5:4. g5 f5:4 | a5:8 g5 r f5:8~2 | f5:4. e5:8 d5 h4 r g4 | c5:2 r:8 g4 a4 h4
         | c5:4. e5 g5:4 | b5:8 a5 r g5:8~4 e5 | f5:4. a5 c6:4 | d6:8 c6 r as5:8~2
         | g5:4. f5:8~4 e5 | fis5:4 a5:8 g5~ g5 d5 h4 d5 | c5:8 e5 r g5:8~4 a5 | c6:4 r:8 g5 c5:4 r"""
RUF = """f5:4' f5:8 r r f5 g5:4' | a5:4. g5:8 f5:4 r | r:1 | r
       | d5:4' d5:8 r r d5 e5:4' | f5:4. e5:8 d5:4 r | r:1 | r
       | a5:4' a5:8 r r a5 c6:4' | c6:4. a5:8 fis5:4 r | r:1 | r
       | fis5:8 fis5' r a5 r c6' a5:4 | e6:4. c6:8 a5:4 fis5 | f5:8 a5' r c6 r d6' c6:4 | c6:4. h5:8 g5 r r:4"""
ECHO = """r:1 | r | r:8 g5 c6 g5 e5 f5 e5 c5 | d5:4. c5:8~4 r
        | r:1 | r | r:8 g4 c5 d5 e5 d5 c5 g4 | b4:4. c5:8~4 r
        | r:1 | r | r:8 g5 e5 c5 g5 a5 c6 g5 | f5:4. e5:8~4 cis5
        | r:1 | r:2 r:8 c5 e5 fis5 | a5:4 r r:2 | r:2 r:8 g4 a4 h4"""
SOLO = """e5:8 d5 c5 d5 e5 f5 g5 e5 | c5:8 g4 a4 c5 r d5 g5:4 | a5:8 g5 e5 g5 cis5 d5 e5 g5 | f5:4 r:8 e5 d5:4 r
        | d5:8 e5 f5 a5 c6 a5 g5 f5 | h4:8 d5 f5 a5 g5:4 r | a4:8 d5 e5 f5 e5 d5 h4 g4 | c5:4 g5:8 e5 d5 h4 g4 h4
        | c5:8t e5 g5 c6:4 h5:8 a5 g5 e5 | b5:8 g5 e5 g5 c6:4 b5:8 a5 | a5:8 g5 f5 a5 c6 d6 c6 a5 | as5:4. g5:8 f5:4 d5
        | g5:8 f5 e5 c5 cis5 e5 g5 b5 | a5:8 g5 fis5 a5 g5 f5 d5 h4 | c5:4' r:8 c5' r d5' e5:4' | g5:4 r:8 g5 c6:4 r"""
SOLO_2 = """g5:4 a5:8 g5~ g5 e5 d5 c5 | e5:8 g5 r c6~ c6:4 a5 | g5:8 a5 g5 e5 f5 e5 cis5 e5 | d5:4. a5:8~4 g5:8 f5
          | d5:8 e5 f5 a5 c6:4 a5:8 g5 | f5:8 a5 h5 d6 h5 a5 g5 f5 | a5:4 f5:8 d5 g5 h5 d6 h5 | c6:4. g5:8 f5 d5 h4 g4
          | c5:8' r g5' r c6' r h5 c6 | b5:8 a5 g5 e5 c5:4 e5 | a5:8' a5' r c6 r d6' c6:4 | as5:8 g5 f5 es5 d5:4 f5
          | g5:8 c6 h5 c6 a5 cis5 d5 e5 | fis5:8 a5 d6 c6 h5 a5 g5 f5 | e5:8 e5' r g5~ g5 a5 g5:4 | c6:4 r:8 e5 c5:4 r"""
ABEND = """e5:2. c5:4 | c5:4 h4 a4:4. r:8 | a4:4 gis4 h4:4. d5:8 | f5:4. e5:8~4 r
         | e5:2. g5:4 | f5:4 e5 cis5:4. r:8 | d5:4. f5:8~4 a5 | a5:4. g5:8 f5:4 r
         | h5:2. a5:4 | g5:4 a5 f5 d5 | e5:4. g5:8~4 h5 | a5:4. e5:8~4 r
         | d5:4 f5 a5 f5 | gis5:4. f5:8~4 e5 | d5:4. e5:8~4 g5 | a5:4. e5:8~4 r"""

# Trompeten zwischen den Zeilen des Themas
EINWURF = """r:1 | r:2 r:8 g4' c5' e5' | r:1 | r:2 r:8 a4' d5' f5' | r:1 | r:2 r:8 h4' d5' g5' | r:1 | r:4 e5:8' r e5' r r:4
           | r:1 | r:2 r:8 e5' g5' b5' | r:1 | r:2 r:8 c5' d5' f5' | e5:2 r | fis5:2 f5 | e5:4' r:8 e5' r e5' e5:4' | e5:4 r:8 g5 e5:4 r"""

BASS = "1-.5-.1-|1-.5-.a-"
GITARRE = ".x.x.xx.|.x.xo.xo"
GITARRE_RUF = "x..x..x.|..xo.x.x"
SCHLAG_AUF_SCHLAG = "x..x..x."
EISEN = {"bass": "x..ox..o", "hihat": "oxoxoxox", "rand": "..x..x..|..x..x.o", "conga": ".,..,.,.", "congahoch": "...o..o.|...o...o", "cabasa": "o,x,o,x,"}
GLOCKE = {"bass": "x..ox..o", "kuhglocke": "o.o.oo.o|o.oo.o.o", "schnarr": "...o..o.|...o..oo", "hihat": "oxoxoxox", "congatief": "......o.", "cabasa": "o,x,o,x,"}
ABENDS = {"bass": "o.......|o...o...", "conga": "..o.,.,.", "congatief": "......o.|......oo", "cabasa": "o,o,o,o,", "claves": "x..x....|..x.x..."}
FÜLLUNG = {"bass": "x..xx.xx", "timbalehoch": "x.xxX.xxX.x.....", "timbaletief": "..........xxXxXX", "tomtief": "x.....x.x...x.XX", "hihat": "ox......"}
FÜLLUNG_2 = {"bass": "x..x..x.", "schnarr": "oox.oox.", "timbalehoch": "...o...x"}
FÜLLUNG_3 = {"bass": "x..xx.x.", "schnarr": "x.xxxxxxxxxxxXxX", "tomtief": "x...x.x..xxxxxxX", "timbaletief": "....xx..XxXx...."}

DURCHBRUCH = {"bass": "x..x..x.|x..xx.xx", "timbalehoch": "..xx.xx.|x.xoX.x.x.......", "timbaletief": "x.......|........xoxxXxXX", "schnarr": "...o..o.|x...x..xx.x.X.XX", "cabasa": "o,x,o,x,"}


def stück():
    st = Stück("s3", "Muschelmarkt", tempo=186, saat=3)
    pfanne = st.stimme("Stahltrommel", 114, kraft=102, laut=124, ort=54, hall=46)
    marimba = st.stimme("Marimba", 12, kraft=98, laut=124, ort=84, hall=36)
    trompete = st.stimme("Trompete 1", 56, kraft=78, laut=106, ort=76, hall=44, spät=4)
    trompete_2 = st.stimme("Trompete 2", 56, kraft=74, laut=100, ort=92, hall=44, spät=8)
    sax = st.stimme("Saxophon", 65, kraft=74, laut=90, ort=50, hall=50, spät=8, vibrato=16)
    gitarre = st.stimme("Gitarre", 25, kraft=62, laut=100, ort=32, hall=26)
    bass = st.stimme("Bass", 33, kraft=80, laut=104, hall=10)
    trommel = st.schlagzeug(0, kraft=64, laut=104, hall=24)

    vorspiel = st.teil("Vorspiel", "C6 | % | G9 | % | C6 | A7b9 | D9 G7 | C6 G7", kraft=.92)
    a1 = st.teil("A1", A, kraft=.95)
    b1 = st.teil("B1", B)
    s = st.teil("Solo", A, kraft=.97)
    c = st.teil("C", C, kraft=.9)
    pause = st.teil("Trommeln", "A7 | %", kraft=.98)
    a2 = st.teil("A2 in D", A, kraft=1.03, versatz=2)
    s2 = st.teil("Solo in D", A, kraft=1.0, versatz=2)
    b2 = st.teil("B2 in D", B, kraft=1.05, versatz=2)
    schluss = st.teil("Schluss", "D6 | D7 | G6 | Gisdim7 | D/A | H7b9 | E9 A7 | D6 H7b9 | E9 A7 | D6 | D6 | D69", kraft=1.03)

    # Melodien
    vorspiel.spiele(marimba, "g4:8 a4 c5 d5 r e5 c5:4 | g4:8 a4 c5 e5 r d5 c5:4 | g4:8 a4 h4 d5 r f5 d5:4 | g4:8 a4 h4 d5 r e5 d5:4"
                    "| c5:8 d5 e5 g5 r a5 g5:4 | b5:8 a5 g5 f5 e5:4 cis5 | d5:8 e5 fis5 c5 h4:4 d5 | c5:4 r r:2")
    vorspiel.spiele(trompete, "r:1 | r | r | r | e5:4' e5:8 r r f5 g5:4' | b5:4. a5:8 g5:4 r | fis5:8 g5' r a5 f5:4 d5 | e5:4' r r:2", kraft=.9)
    vorspiel.unterstimme(trompete_2, "r:1 | r | r | r | e5:4' e5:8 r r f5 g5:4' | b5:4. a5:8 g5:4 r | fis5:8 g5' r a5 f5:4 d5 | e5:4' r r:2")
    a1.spiele(pfanne, THEMA)
    for teil in (b1, b2):
        teil.spiele(trompete, RUF)
        teil.unterstimme(trompete_2, RUF)
        teil.spiele(pfanne, ECHO)
        teil.spiele(marimba, ECHO, oktave=-1, kraft=.8, rolle="unterstimme")
    s.spiele(marimba, SOLO)
    s.spiele(trompete, EINWURF, kraft=.8, rolle="gegen")
    s.unterstimme(trompete_2, EINWURF, kraft=.75)
    s2.spiele(pfanne, SOLO_2)
    s2.unterstimme(marimba, SOLO_2, tiefe=2, kraft=.7)
    c.spiele(sax, ABEND)
    c.spiele(marimba, "r:1 | r:4 c5:8 e5 a4:4 r | r:1 | r:4 h4:8 d5 gis4:4 r | r:1 | r:4 cis5:8 e5 a4:4 r | r:1 | r:4 d5:8 f5 a4:4 r"
             "| r:1 | r:4 h4:8 d5 g4:4 r | r:1 | r:4 a4:8 c5 f4:4 r | r:1 | r:4 gis4:8 h4 d5:4 r | r:1 | r:2 r:8 a4 h4 cis5", kraft=.85, rolle="gegen")
    a2.spiele(pfanne, THEMA)
    a2.spiele(trompete, EINWURF, kraft=.88, rolle="gegen")
    a2.unterstimme(trompete_2, EINWURF, kraft=.8)
    a2.spiele(sax, "r:1 | r | e4:2. cis4:4 | d4:1 | r | r:2 h4:2 | a4:2 f4 | e4:2 r | r:1 | e4:2 g4 | f4:2 a4 | as4:1 | g4:2 cis4 | fis4:2 d4 | e4:2. r:4 | r:1", kraft=.7, rolle="gegen")
    JUBEL = """r:8 fis5 g5 a5 fis5 e5 d5:4 | d5:4 r:8 d5 e5 fis5 c6:4 | h5:4' h5:8 r r h5 d6:4' | d6:4. c6:8 h5:4 r | r:8 a5 fis5 g5 a5 d6 cis6 d6 | c6:4. h5:8~4 a5
             | gis5:8 h5 r d6 cis6:4 a5 | d6:8 a5 r g5:8~4 fis5 | h5:8 a5 r gis5 a5 g5 e5 cis5 | d5:8 d5 r fis5:8~4 a5 | d6:8' d6' r a5' r d6' r:4 | h5:8' d6' r:4 d6:4' r"""
    BLÄSER = """r:1 | r | g5:4' g5:8 r r g5 h5:4' | h5:4. gis5:8 d5:4 r | r:1 | r | e5:4' r:8 gis5 g5:4 e5 | fis5:4' r dis5 c5
              | e5:4' r:8 gis5 g5:4 r | fis5:4. a5:8~4 r | fis5:8' fis5' r e5' r fis5' r:4 | e5:8' fis5' r:4 fis5:4' r"""
    schluss.spiele(pfanne, JUBEL)
    schluss.spiele(marimba, JUBEL, oktave=-1, kraft=.85, rolle="unterstimme")
    schluss.spiele(trompete, BLÄSER, rolle="gegen")
    schluss.unterstimme(trompete_2, BLÄSER)

    # Begleitung
    vorspiel.greife(gitarre, GITARRE, (52, 70), von=3)
    vorspiel.bass(bass, BASS, von=5)
    vorspiel.trommle(trommel, {"cabasa": "o,x,o,x,", "conga": ".,..,.,.", "congahoch": "...o..o."}, bis=4)
    vorspiel.trommle(trommel, EISEN, {8: FÜLLUNG}, von=5)
    for teil in (a1, b1, s, a2, s2, b2):
        teil.greife(gitarre, GITARRE_RUF if teil in (b1, b2) else GITARRE, (52, 70), roll=4, töne=None if teil in (b1, b2) else 3,
                    füllungen={16: SCHLAG_AUF_SCHLAG})
        teil.bass(bass, BASS, füllungen={8: "1-3-5-a-", 16: "1-.1-.1a"})
        teil.trommle(trommel, GLOCKE if teil in (b1, b2) else EISEN, {4: FÜLLUNG_2, 8: FÜLLUNG, 16: FÜLLUNG_3} if teil in (b1, b2) else {8: FÜLLUNG, 16: FÜLLUNG_3})
    # Nur das Schlagzeug: so fällt die neue Tonart auf.
    pause.bass(bass, "1--.....|......a-")
    pause.trommle(trommel, DURCHBRUCH, kraft=1.25)
    a2.tusch(trommel)
    schluss.tusch(trommel)
    for teil in (a1, a2):
        teil.breche(marimba, "1.3.2.4.|1.32.3.4", (53, 72), kraft=.6)
    c.greife(gitarre, "x..x..x.|..x.x...", (52, 70), roll=10, kraft=.9)
    c.bass(bass, "1---.-5-|1-.5--a-", bis=12)
    c.bass(bass, BASS, von=13)
    c.trommle(trommel, ABENDS, bis=12)
    c.trommle(trommel, EISEN, {16: FÜLLUNG_3}, von=13)
    schluss.greife(gitarre, GITARRE, (52, 70), roll=4, bis=10)
    schluss.greife(gitarre, "xx.x.x..|xx..x...", (52, 72), roll=4, von=11)
    schluss.bass(bass, BASS, bis=10)
    schluss.bass(bass, "11.5.1..|11..1...", von=11)
    schluss.trommle(trommel, GLOCKE, {6: FÜLLUNG_2, 10: FÜLLUNG_3}, bis=10)
    schluss.trommle(trommel, {"bass": "xx.x.x..|xx..x...", "schnarr": "xx.x.x..|xx..x...", "becken": "........|....o..."}, von=11)
    return st
