"""Leerer Koffer: langsam, d-Moll. Oboe klagt, Cello tröstet in F-Dur, zuletzt klagen beide; Harfe und
Streicher darunter.

Form: Vorspiel, A (Oboe), B (Cello), Zwiegespräch, A (beide, höher geführt), Ausklang.
"""
from satz import Stück

A = "Dm | Dm/C | Gm6/B | A7sus A7 | Dm/F | Gm7 C7 | Fmaj7 Bmaj7 | Em7b5 A7b9"
B = "Fadd9 | C/E | Dm7 | Am7 | Gm7 | A7sus A7b9"
C = "Bmaj7 | Fadd9/A | Gm7 | Dm7 | Esmaj7 | Bmaj7/D | Gm6 | A7sus A7"
A_ENDE = "Dm | Dm/C | Gm6/B | Esmaj7 A7b9 | Dm Bmaj7 | Gm6 | Dm/A A7b9 | Dm"

# Der Einfall: Quarte hinauf, tastend weiter, seufzend zurück.
KLAGE = """a4:4, d5:4. e5:8 f5:4 | g5:4. f5:8 e5:4 d5:8 r | b4:4 d5:4. f5:8 e5:4 | d5:2_ cis5:4 r:8 a4
         | a4:4 f5:4. g5:8 a5:4 | b5:4. a5:8 g5:4 r:8 e5 | b5:4. a5:8 g5:4. f5:8 | g5:4 e5 cis5:4. r:8"""
TROST = """a3:4. c4:8 f4:4. g4:8 | e4:2. d4:8 c4 | d4:4. f4:8 a4:4. g4:8 | e4:2. r:8 d4
         | g3:4. b3:8 d4:4 f4 | e4:2_ cis4:4. r:8"""
# Im Zwiegespräch antwortet das Cello der Oboe, zuletzt gehen sie zusammen.
FRAGE = """f5:4. d5:8 b4:4 f5 | b5:4 a5:4. g5:8 f5 r | r:1 | r | g5:4. f5:8 es5:4 b4 | d5:4 f5:4. es5:8 d5 r | e5:4. f5:8 g5:4 b5 | a5:4. g5:8 e5:4 cis5:8 r"""
RAT = """r:1 | r | b3:4. c4:8 d4:4 g4 | g4:4 f4:4. e4:8 d4 r | r:1 | r | r:4 d4:4. e4:8 g4:4 | e4:2 a3:4. r:8"""
KLAGE_2 = """a4:4 d5:4. e5:8 f5:4 | f5:4. e5:8 a5:4. r:8 | g5:4. f5:8 e5:4 d5 | b5:4. g5:8 f5 e5 cis5:4
           | d5:4 f5 a5:4. f5:8 | e5:4. d5:8 b4:4. r:8 | a4:4 f5 e5:4. cis5:8 | d5:2. r:4"""

# Was jeweils der andere tut
CELLO = """d3:2. a3:4 | a3:2 f3 | g3:2. b3:4 | a3:2 g3 | f3:2 a3:4 d4 | d4:2 c4 | c4:2 b3:4 f3 | b3:2 a3:4. r:8"""
CELLO_2 = """f3:2 a3:4 d4 | d4:2 c4:4 a3 | b3:2 d4:4 e4 | es4:2 g3 | a3:2 d4:4 f4 | d4:4. e4:8 g3:2 | f3:4 d4 b3:2 | a3:2. r:4"""
OBOE = """r:1 | r:2 c5:4. e5:8 | f5:2. r:4 | r:4 g4:8 a4 c5:2 | b4:2 r:4 d5 | d5:2_ cis5:4. r:8"""

HARFE = "12343432|12354232"


def stück():
    st = Stück("traurig", "Leerer Koffer", tempo=80, saat=5)
    oboe = st.stimme("Oboe", 68, kraft=76, laut=98, ort=54, hall=70, spät=10, vibrato=22)
    cello = st.stimme("Cello", 42, kraft=80, laut=104, ort=82, hall=70, spät=10, vibrato=18)
    harfe = st.stimme("Harfe", 46, kraft=66, laut=104, ort=38, hall=64)
    geigen = st.stimme("Streicher", 49, kraft=66, laut=98, ort=70, hall=80)
    bass = st.stimme("Kontrabass", 45, kraft=74, laut=104, ort=74, hall=50)

    vorspiel = st.teil("Vorspiel", "Dmadd9 | Gm6/B A7b9", kraft=.85)
    a1 = st.teil("A1", A, kraft=.93)
    b = st.teil("B", B)
    c = st.teil("Zwiegespräch", C)
    a2 = st.teil("A2", A_ENDE, kraft=1.05)
    ausklang = st.teil("Ausklang", "Bmaj7 Gm6 | Dm/A A7sus | Dmadd9 | %", kraft=.8)

    # Melodien
    a1.spiele(oboe, KLAGE)
    a1.spiele(cello, CELLO, kraft=.8, rolle="gegen")
    b.spiele(cello, TROST)
    b.spiele(oboe, OBOE, kraft=.8, rolle="gegen")
    c.spiele(oboe, FRAGE)
    c.spiele(cello, RAT)
    a2.spiele(oboe, KLAGE_2)
    a2.spiele(cello, CELLO_2, kraft=.9, rolle="gegen")
    ausklang.spiele(oboe, "r:8 a4 d5 f5 e5:4 d5 | f5:4. d5:8 e5:4 d5 | d5:1~ | d5:4 r r:2")
    ausklang.spiele(cello, "f3:2 g3 | a3:1 | a3:4 f3 d3:2~ | d3:2 r", kraft=.8, rolle="gegen")

    # Begleitung
    for teil in (vorspiel, a1, b, c, a2):
        teil.breche(harfe, HARFE, (50, 70))
        teil.bass(bass, "1...5...|1...1..." if teil is not vorspiel else "1.......|1...1...", lage=(33, 50))
    for teil, punkte in ((a1, ((1, 40), (3, 80), (5, 60), (7, 100), (9, 66))), (b, ((1, 66), (3, 96), (4, 74), (6, 112), (7, 90))), (c, ((1, 80), (4, 104), (5, 76), (8, 110), (9, 80))),
                         (a2, ((1, 84), (4, 116), (5, 96), (6, 110), (9, 60)))):
        teil.fläche(geigen, (53, 74), töne=3 if teil is a1 else None)
        teil.schwelle(geigen, *punkte)
    ausklang.breche(harfe, "1234343.|1234343.|1.2.3.4.|5.......", (50, 70))
    ausklang.fläche(geigen, (53, 74), töne=3)
    ausklang.schwelle(geigen, (1, 60), (2, 80), (5, 8))
    ausklang.bass(bass, "1...1...|1...1...|1.......|........", lage=(33, 50))
    st.verlangsamen(a1.bei(8, 3), a1.bei(9), 70)
    st.tempi.append((b.bei(1), 82))
    st.verlangsamen(b.bei(6, 3), b.bei(7), 68)
    st.tempi.append((c.bei(1), 84))
    st.verlangsamen(c.bei(8, 1), c.bei(9), 70)
    st.tempi.append((a2.bei(1), 78))
    st.verlangsamen(ausklang.bei(1), ausklang.bei(4), 56)
    return st
