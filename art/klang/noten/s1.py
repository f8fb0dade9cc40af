"""Liegestuhl: Lounge in Es-Dur. Vibraphon führt, Flöte hat den Mittelteil; Besen, Bass, E-Piano, Streicher.

Form: Vorspiel, A A B A, Soli über A, B und A, A, Schluss. Im zweiten B geht das Vibraphon unter der Flöte mit.
"""
from satz import Stück

A = "Esmaj9 | Cm9 | Fm9 | B13sus B13 | Gm7 | C7b9b13 | Fm9 B13b9 | Es69 B13sus"
A_SCHLUSS = "Esmaj9 | Cm9 | Fm9 | B13sus B13 | Gm7 | C7b9b13 | Fm9 B13 | Es69 Es13"
A_ENDE = "Esmaj9 | Cm9 | Fm9 | B13sus B13 | Gm7 | C7b9b13 | Fm9 B13 | Es69 C7b9"
B = "Asmaj9 | Asm69 | Gm7 | C9sus C7b9 | Fm9 | Dm7b5 G7b9b13 | Cm9 F13 | Fm9 B13b9"

# Der Einfall: vom Quintton in Achteln hinauf, oben hängen bleiben, in den Leitton sinken.
THEMA = """r:8 b4 es5 f5 g5:4. d5:8 | es5:2 r:8 b4 es5 g5 | as5:4. g5:8 es5:4 c5 | f5:4. es5:8 d5:2
         | r:8 d5 f5 g5 c6:4. b5:8 | as5:2 r:8 g5 f5 e5 | g5:4. f5:8 d5:4 ces5 | b4:2. r:4"""
THEMA_2 = """r:8 b4 es5 f5 g5:4. d5:8 | es5:4 g5:8 b5 c6:4. b5:8 | as5:4. g5:8 es5:4 c5:8 es5 | f5:8 g5 f5 es5 d5:2
           | r:8 d5 g5 b5 d6:4. c6:8 | b5:4 as5:8 g5 e5:4 des5 | c5:4. es5:8 d5:8 c5 b4 f4 | g4:2~8 r:8 r:4"""
MITTE = """c6:2. b5:4 | ces6:2 b5:4 as5 | c6:4 b5:2 f5:4 | g5:4. f5:8 e5:4. r:8
         | as5:2. es5:4 | f5:4. as5:8 g5:4. es5:8 | d5:4 es5 g5 a5 | as5:4. g5:8 f5:8 d5 ces5 as4"""
SOLO = """g5:8 f5 d5 b4 c5 d5 f5:4 | es5:8 g5 b5 d6 c6:4. r:8 | r:8 c6 as5 g5 f5 es5 c5 as4 | g4:8 b4 c5 es5 d5:4. r:8
        | r:4 d6:8 c6 b5:8t g5 f5 d5:4 | e5:8 g5 as5 b5 des6:4 b5:8 as5 | g5:8 as5 c6 g5 f5 d5 c5 g4 | b4:4. c5:8 b4:2"""
SOLO_FLÖTE = """r:4 b5:8 g5 f5 d5 es5 f5 | g5:4. es5:8 d5:8t c5 b4 c5:4 | r:8 as5 c6 es6 d6 c6 as5 g5 | c6:4 b5:8 g5 f5:4. d5:8
              | b5:8 d6 c6 b5 g5:4 r:8 f5 | as5:8t b5 as5 e5:8 g5 b5 des6 c6 as5 | as5:4. c6:8 b5:8t g5 f5 d5:8 c5 | b4:2 r:2"""

# Gegenstimmen
ANTWORT = """r:1 | r:2 r:8 b4 c5 d5 | c5:2. r:4 | r:2 as4:8 g4 f4 as4 | b4:2 d5 | c5:2. b4:4 | as4:2 g4:4 as4 | g4:2 r"""
DANK = """r:1 | r:2 r:8 g5 b5 c6 | c6:2. b5:4 | g5:2 f5:8 d5 es5 f5 | d6:2. b5:4 | b5:4. as5:8 g5:2 | c6:2 f5:4 d5 | es5:2 r"""
TENOR = "es4:1 | es4:2. f4:4 | d4:2 d4 | f4:2 e4 | es4:2. c4:4 | as4:2 f4 | g4:2 es4 | c4:2 d4"

PIANO = "x--.o--v|---.o-..|x-..o-.v|--.oo-o-"
PIANO_RUHIG = "x---..-v|------..|x--..o--|x---o--."
PIANO_FREI = "..x-...v|-.o..x..|..xo...v|--..o-.."
PIANO_GEBROCHEN = "1.3.2.4.|.1324.3."
BASS = "1--.5-a-|1--15-a-|1-.15--a|1--.5-3a"
BESEN = {"fell": "o---o---", "schnarr": "..x...x.", "fuß": "..o...o.", "bass": "o......,|o..,o..."}
RIDE = {"ride": "x.xox.xo", "fuß": "..o...o.", "schnarr": "..,..,o.|..o..,o,", "bass": "o......,|o..,,..."}
FÜLLUNG = {"schnarr": "x.xxx.xxX.xx.oXo", "tommitte": ".....o...o.oo...", "tomtief": "....,........o.o", "bass": "o...o...o.......", "fuß": "..o...o."}
FÜLLUNG_2 = {"schnarr": "x..ox.oxx.xx..XX", "tomhoch": "........,,,.....", "tommitte": "...........,,,..", "tomtief": "..............,,", "bass": "o.....o.o..o....", "fuß": "..o...o."}


def stück():
    st = Stück("s1", "Liegestuhl", tempo=105.8, saat=1, swing=.59)
    vibra = st.stimme("Vibraphon", 11, kraft=88, laut=110, ort=50, hall=52, pedal=True)
    flöte = st.stimme("Flöte", 73, kraft=80, laut=98, ort=82, hall=60, spät=6, vibrato=18)
    piano = st.stimme("E-Piano", 4, kraft=64, laut=98, ort=40, hall=40, chor=35, spät=4)
    geigen = st.stimme("Streicher", 49, kraft=66, laut=98, ort=70, hall=70)
    bass = st.stimme("Bass", 32, kraft=86, laut=112, ort=64, hall=16, spät=3)
    trommel = st.schlagzeug(40, kraft=90, laut=120, hall=28)

    vorspiel = st.teil("Vorspiel", "Esmaj9 | Asmaj9 | Gm7 C7b9b13 | Fm9 B13sus", kraft=.9)
    a1 = st.teil("A1", A, kraft=.94)
    a2 = st.teil("A2", A_SCHLUSS)
    b1 = st.teil("B1", B)
    a3 = st.teil("A3", A)
    solo = st.teil("Solo Vibraphon", A_SCHLUSS)
    b2 = st.teil("B2", B, kraft=1.06)
    solo2 = st.teil("Solo Flöte", A)
    a4 = st.teil("A4", A_ENDE, kraft=.95)
    schluss = st.teil("Schluss", "Fm9 B13 | Gm7 C7b9b13 | Fm9 | Emaj9 | Es69 | %", kraft=.85)

    # Melodien
    vorspiel.spiele(vibra, "r:1 | r:8 b4 c5 es5 g5:4 r | r:1 | r:1", kraft=.8)
    a1.spiele(vibra, THEMA)
    a2.spiele(vibra, THEMA_2)
    a2.spiele(flöte, ANTWORT, kraft=.8, rolle="gegen")
    b1.spiele(flöte, MITTE)
    b1.spiele(vibra, TENOR, kraft=.7, rolle="gegen")
    a3.spiele(vibra, THEMA)
    a3.spiele(flöte, DANK, kraft=.85, rolle="gegen")
    solo.spiele(vibra, SOLO)
    b2.spiele(flöte, MITTE)
    b2.unterstimme(vibra, MITTE, tiefe=1)
    solo2.spiele(flöte, SOLO_FLÖTE)
    a4.spiele(vibra, THEMA_2.replace("g4:2~8 r:8 r:4", "g4:2. r:4"))
    # Der Einfall dreimal, immer höher gelegt; der letzte Akkord kommt von oben herab.
    schluss.spiele(vibra, "r:8 c5 es5 g5 f5:4. d5:8 | r:8 d5 f5 b5 as5:4. e5:8 | r:8 es5 g5 as5 c6:2 | r:8 ces5 es5 fis5 as5:2 | g5:1 | r:8 b5 es6 f6 g6:2")
    schluss.spiele(flöte, "r:1 | r:1 | r:2 g5:2 | ges5:1 | f5:2 b5 | b5:2. r:4", kraft=.8, rolle="gegen")

    # Begleitung
    vorspiel.breche(piano, "1.3.2.4.|1.32.4..|1.3.1.3.|1.3.1324", (55, 72), kraft=1.3)
    vorspiel.bass(bass, "1------a|1----5-a", von=3)
    vorspiel.trommle(trommel, BESEN, {4: FÜLLUNG}, von=3)

    for teil in (a1, a2, a3, solo, solo2, a4):
        muster = PIANO_RUHIG if teil in (a1, a4) else PIANO_FREI if teil in (solo, solo2) else PIANO
        teil.greife(piano, muster, (54, 72), roll=8 if muster is PIANO_RUHIG else 4)
        teil.bass(bass, BASS)
    b1.breche(piano, PIANO_GEBROCHEN, (54, 72), kraft=1.25)
    b2.greife(piano, "x---o-.v|----o---", (54, 72), roll=8)
    for teil in (b1, b2):
        teil.bass(bass, "1--.5--a|1--15-a-")
        teil.fläche(geigen, (52, 74))
        teil.schwelle(geigen, (1, 70), (4, 104), (5, 78), (8, 112), (9, 90))
    for teil in (a1, a2, a4):
        teil.trommle(trommel, BESEN, {8: FÜLLUNG})
    for teil in (b1, a3, solo, b2, solo2):
        teil.trommle(trommel, RIDE, {8: FÜLLUNG_2 if teil in (b1, b2) else FÜLLUNG})
    a3.fläche(geigen, (52, 72), kraft=.85, töne=3)
    a3.schwelle(geigen, (1, 60), (5, 96), (9, 70))
    a4.fläche(geigen, (52, 72), kraft=.85, töne=3)
    a4.schwelle(geigen, (1, 80), (8, 100), (9, 80))
    schluss.greife(piano, "x--.o---|x--.o---|x-------|x-------|x-------|--------", (54, 72), roll=14)
    schluss.bass(bass, "1--.1-a-|1--.1-a-|1--.5--a|1------a|1-------|--------")
    schluss.fläche(geigen, (52, 74))
    schluss.schwelle(geigen, (1, 70), (4, 108), (6, 60), (7, 20))
    schluss.trommle(trommel, BESEN, {4: {"becken": ",", "fell": "o---o---"}, 5: {"becken": "o", "bass": "o"}, 6: {"triangel": "..,."}})
    st.verlangsamen(schluss.bei(3), schluss.bei(6), 66)
    return st
