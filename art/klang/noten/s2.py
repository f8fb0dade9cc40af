"""Nachmittag am Kai: Bossa in a-Moll. Flöte und Saxophon über Gitarre, Bass und leisem Schlagzeug.

Form: Vorspiel, A A B, Gitarrensolo über A, halbes B, A zu zweit, Schluss auf der Stelle.
"""
from satz import Stück

A = """Am9 | % | Dm9 | Dm9 G13 | Cmaj9 | Fmaj7#11 | Hm7b5 | E7b9
     | Am9 | Am7/G | Fism7b5 | Fmaj9 | Dm9 | E7b9b13 | Am69 | Am69 E7b9"""
B_1 = "Fmaj9 | Fm6 B9 | Em7 | A7b9 | Dm9 | G13 G7b13 | Cmaj9 | C69"
B_2 = "Fism7b5 | H7b9 | Em9 | Em7 A13 | Dm9 | G9sus | E7sus | E7b9"

# Zwei punktierte Viertel und ein Ausklang: der Einfall bleibt im Takt hängen und sinkt nach.
THEMA = """h4:4. c5:8~4 e5 | c5:4. h4:8~2 | c5:4. d5:8~4 f5 | e5:4. d5:8 h4:4. r:8
         | r:8 g4 h4 d5 e5:4. h4:8 | a4:4. e5:8~4 h4 | r:8 d5 f5 a5 g5:4. f5:8 | e5:4. d5:8 gis4:2
         | e5:4. g5:8~4 h5 | g5:4. e5:8~2 | a5:4. e5:8~4 c5 | g5:4. e5:8~8 c5 d5 e5
         | f5:4. e5:8~4 d5 | c5:4. h4:8~4 gis4 | a4:4. h4:8~4 e5 | h4:2 r"""
THEMA_2 = """r:8 h4 c5 e5:8~4 g5:4 | fis5:4. e5:8~2 | r:8 c5 d5 f5:8~4 a5:4 | g5:4. f5:8 e5:4 d5
           | r:8 g4 h4 d5 g5:4. e5:8 | h5:4. a5:8~4 e5 | r:8 d5 f5 a5 d6:4. a5:8 | gis5:4. f5:8 e5 d5 h4 gis4
           | e5:4. g5:8~4 h5 | a5:4. g5:8~4 e5 | g5:4. fis5:8~8 e5 c5 e5 | a5:4. g5:8~8 e5 c5 g5
           | f5:8t e5 d5 c5:4 d5:4. f5:8 | e5:4. d5:8~4 gis4 | a4:4. h4:8 c5:8 e5 d5:4 | c5:4. h4:8~4 r"""
THEMA_3 = """h4:8 a4 h4 c5:8~8 d5 e5:4 | d5:8t e5 d5 c5:8 h4:8~2 | c5:8 h4 c5 d5:8~8 e5 f5:4 | e5:8 f5 e5 d5 h4:4. r:8
           | r:8 g4 h4 d5 e5:4. h4:8 | a4:4. e5:8~4 h4 | r:8 d5 f5 a5 g5:8 f5 e5 f5 | e5:4. d5:8 gis4:2
           | e5:4. g5:8~8 a5 h5:4 | g5:4. e5:8~2 | a5:4. e5:8~8 d5 c5:4 | g5:8 a5 g5 e5~ e5 c5 d5 e5
           | f5:8 g5 f5 e5~ e5 d5 c5 d5 | c5:4. h4:8~8 a4 gis4:4 | a4:4. h4:8~4 e5 | h4:2 r"""
MITTE_1 = """a4:2~8 g4:8 f4 c4 | as4:2~8 g4:8 f4 d4 | a4:4. g4:8~4 h3 | cis4:4. b4:8~4 a4
           | g4:4. f4:8~8 e4 d4 a3 | e4:4. d4:8 es4:4. d4:8 | h3:4. d4:8~2 | e4:4. g4:8~4 r"""
MITTE_2 = """r:8 c5 a4 e4 fis4:2 | e4:4. dis4:8~4 a4 | h4:2~8 g4:8 e4 fis4 | g4:4 e4 fis4 cis5
           | c5:2~8 h4:8 a4 f4 | a4:4. g4:8~4 d4 | e4:2~8 a4:8 h4 d5 | c5:4. h4:8 gis4:4. r:8"""
SOLO = """r:4 e4:8 g4 h4:4. c5:8 | d5:8 c5 h4 g4 a4:4 r | r:8 f4 a4 c5 e5:4 d5:8 c5 | g4:4 a4:8 h4~ h4 a4 g4 f4
        | e4:8 g4 h4 d5 c5:4. h4:8 | a4:4 e5:8 d5~ d5 c5 h4 a4 | f4:8 a4 h4 d5 c5 h4 a4 f4 | gis4:8t a4 h4 d5:4 r:8 f5 e5 d5
        | c5:4. h4:8 a4 g4 e4 g4 | <e4 c5>:8 <g4 h4> r <e4 a4> <c4 g4>:4 r | <e4 a4>:8 <fis4 h4> r <a4 c5> <a4 e5>:4. r:8 | <g4 e5>:8 <f4 d5> r <e4 c5> <c4 g4>:4 r
        | f4:8 a4 c5 e5 f5:4. e5:8 | gis4:8 d5 c5 gis4 f4 e4 d4 e4 | c4:8 e4 a4 h4 fis4:4. e4:8 | e4:2 r"""

# Gegenstimmen
ANTWORT = """r:1 | r:2 r:8 a4 h4 c5 | a4:2. r:4 | r:2 f5:4 e5 | d5:2 r | e5:4. c5:8~4 g5 | f5:2 d5 | h4:2. r:4
           | r:2 r:8 e5 g5 a5 | e5:2 c5 | e5:2. r:4 | c5:2 a4 | a4:2. r:4 | r:2 gis4:4 h4 | c5:2. r:4 | r:1"""
ZWEITE = """e4:4. a4:8~4 g4 | fis4:4. e4:8~2 | f4:4. a4:8~4 d5 | c5:4. a4:8 f4:4. r:8
          | r:8 e4 g4 h4 h4:4. g4:8 | e4:4. a4:8~4 g4 | r:8 h4 d5 f5 d5:4. d5:8 | h4:4. gis4:8 d4:2
          | c5:4. e5:8~4 g5 | e5:4. c5:8~2 | e5:4. c5:8~4 a4 | e5:4. c5:8~8 a4 a4 c5
          | d5:4. c5:8~4 a4 | gis4:4. gis4:8~4 d4 | e4:4. fis4:8~4 c5 | fis4:2 r"""

GITARRE = "x.x-.x-v|-.x-.x-.|x.x-.x-v|-.xx-.x-"
GITARRE_FREI = "x..x..x-|..x-..x.|..x..x-v|-..x.x.."
GITARRE_GEBROCHEN = "1.32.43.|1.2.43.2"
GITARRE_DICHT = "x.xx-.xv|-.x-.xx-|x.x-.x-v|-.xx-.x-"
BASS = "1--.5--5|1--.5--a"
LEISE = {"schüttel": ",o,o,o,o", "rand": "x..x..x.|..x..x..", "bass": "x..ox..o", "fuß": "..o...o."}
MEHR = {"hihat": "o,xoo,xo", "rand": "x..x..x.|..x..x..", "bass": "x..ox..o", "schüttel": ",o,o,o,o", "fuß": "..o...o."}
FÜLLUNG = {"schüttel": ",o,o,o,o", "rand": "x..x..x.", "congahoch": "....x.xx....x...", "conga": "..x.......xx....", "congatief": "x..x....x....xXX", "bass": "x..xx.xx"}
FÜLLUNG_2 = {"hihat": "o,xo....", "rand": "x..x....", "schnarr": "....x.o.x.......", "tomhoch": "......x..xx.....", "tommitte": "..........xxx...", "tomtief": "x...........xxxx", "bass": "x..xx.xx"}


def stück():
    st = Stück("s2", "Nachmittag am Kai", tempo=146, saat=2)
    flöte = st.stimme("Flöte", 73, kraft=80, laut=108, ort=52, hall=56, spät=9, vibrato=20)
    sax = st.stimme("Saxophon", 66, kraft=78, laut=110, ort=80, hall=50, spät=12, vibrato=16)
    solo = st.stimme("Sologitarre", 24, kraft=88, laut=108, ort=58, hall=44, spät=5)
    gitarre = st.stimme("Gitarre", 24, kraft=62, laut=96, ort=36, hall=34)
    geigen = st.stimme("Streicher", 49, kraft=60, laut=100, ort=76, hall=70)
    bass = st.stimme("Bass", 32, kraft=84, laut=108, hall=14)
    trommel = st.schlagzeug(0, kraft=72, laut=118, hall=30)

    vorspiel = st.teil("Vorspiel", "Am9 | Fmaj9 | Am9 | Fmaj9 | Am9 | Fmaj9 | Dm9 | E7b9b13", kraft=.9)
    a1 = st.teil("A1", A, kraft=.95)
    a2 = st.teil("A2", A)
    b1 = st.teil("B1", B_1 + " | " + B_2)
    s = st.teil("Solo", A, kraft=.97)
    b2 = st.teil("B2", B_2, kraft=1.05)
    a3 = st.teil("A3", A, kraft=1.03)
    schluss = st.teil("Schluss", "Am9 | Fmaj9 | Am9 | Fmaj9 | Dm9 | E7b9b13 | Am69 | %", kraft=.86)

    # Melodien
    vorspiel.spiele(flöte, "r:1 | r | r | r | r:8 h4 c5 e5:8~4 d5:8 c5 | a4:4. c5:8~2 | r:8 a4 c5 e5:8~4 d5:8 c5 | e5:4. d5:8 gis4:2", kraft=.9)
    a1.spiele(flöte, THEMA)
    a2.spiele(flöte, THEMA_2)
    a2.spiele(sax, ANTWORT, kraft=.75, rolle="gegen", oktave=-1)
    b1.spiele(sax, MITTE_1 + " | " + MITTE_2)
    s.spiele(solo, SOLO)
    b2.spiele(sax, MITTE_2)
    b2.spiele(flöte, MITTE_2, oktave=1, kraft=.85)
    a3.spiele(flöte, THEMA_3)
    a3.spiele(sax, ZWEITE, kraft=.85, rolle="gegen")
    schluss.spiele(flöte, "h4:4. c5:8~4 e5 | a5:8 g5 f5 e5~ e5:2 | h4:4. c5:8~4 e5 | a5:4. g5:8~4 e5 | f5:4. e5:8~4 c5 | e5:4. d5:8 gis4:2 | h4:1~ | h4:2. r:4")
    schluss.spiele(sax, "r:1 | r:2 c4:8 e4 g4 a4 | g4:2 r | r:2 g4:8 a4 h4 c5 | a4:2. r:4 | r:1 | fis4:1~ | fis4:2. r:4", kraft=.75, rolle="gegen")
    schluss.spiele(solo, "r:1 | r | r | r | r | r | r:8 e4 a4 h4 c5 e5 fis5 h5~ | h5:2 r", kraft=.8)

    # Begleitung
    vorspiel.greife(gitarre, GITARRE, (52, 70), roll=7)
    vorspiel.bass(bass, BASS, von=5)
    vorspiel.trommle(trommel, {"schüttel": ",o,o,o,o"}, von=3, bis=4)
    vorspiel.trommle(trommel, LEISE, {8: FÜLLUNG}, von=5)
    for teil in (a1, a2, b1, s, b2, a3):
        if teil is b1:
            teil.breche(gitarre, GITARRE_GEBROCHEN, (52, 70), kraft=1.35)
        else:
            muster = GITARRE if teil is a1 else GITARRE_FREI if teil is s else GITARRE_DICHT
            teil.greife(gitarre, muster, (52, 70), roll=7, töne=3 if teil is s else None)
        teil.bass(bass, BASS, füllungen={8: "1-35-6-a", 16: "1--.5-3a"})
        füllungen = {8: FÜLLUNG_2} if teil is b2 else {8: FÜLLUNG, 16: FÜLLUNG_2}
        teil.trommle(trommel, MEHR if teil in (b1, b2, a3) else LEISE, füllungen)
    for teil in (b1, b2, a3):
        teil.tusch(trommel)
    a2.fläche(geigen, (55, 74), von=9, töne=3, kraft=.9)
    a2.schwelle(geigen, (9, 40), (13, 96), (17, 60))
    b1.fläche(geigen, (55, 76), töne=3)
    b1.schwelle(geigen, (1, 70), (6, 108), (9, 60), (15, 112), (17, 70))
    b2.fläche(geigen, (55, 76))
    b2.schwelle(geigen, (1, 76), (6, 114), (9, 80))
    a3.fläche(geigen, (55, 74), töne=3, kraft=.9)
    a3.schwelle(geigen, (1, 70), (12, 104), (17, 60))
    schluss.greife(gitarre, GITARRE, (52, 70), roll=7, bis=6)
    schluss.greife(gitarre, "x-------|--------", (52, 72), roll=45, von=7)
    schluss.bass(bass, BASS, bis=6)
    schluss.bass(bass, "1------.|1---....", von=7)
    schluss.fläche(geigen, (55, 74), von=5, töne=3)
    schluss.schwelle(geigen, (5, 50), (7, 90), (9, 10))
    schluss.trommle(trommel, LEISE, {6: FÜLLUNG}, bis=6)
    schluss.trommle(trommel, {"triangel": "o.......", "bass": "o......."}, von=7, bis=7)
    st.verlangsamen(schluss.bei(6), schluss.bei(8), 104)
    return st
