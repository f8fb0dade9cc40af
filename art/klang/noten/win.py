"""Schlüsselübergabe: Fanfare in B-Dur für den Sieger. Trompeten, Hörner, Posaunen, Pauken; Streicher und Glockenspiel.

Form: Ruf, Marsch, Steigerung, Schluss.
"""
from satz import Stück

RUF = "b4:4! f4:8t' f4' f4' b4:4 d5 | f5:2~8 r:8 d5 es5 | ges5:4! des5:8t' des5' des5' ges5:4 as5 | b5:2 a5:4. r:8"
MARSCH = """f5:4. d5:8 b4:4' f5' | a5:4. g5:8 f5:4 d5 | es5:4. d5:8 c5:4' g5' | b5:4. a5:8 g5:4 f5
          | f5:4. g5:8 a5:4' c6' | h5:4. as5:8 g5:4 f5 | es5:8 f5 g5 b5 a5:4' f5' | b5:4. r:8 r f5 g5 a5"""
STEIGERUNG = "b5:4! es5:8t' g5' b5' es6:4 d6 | c6:4. a5:8 f5:2 | f5:8 a5 d6:4 b5:8 a5 g5 f5 | es5:4' g5' a5:8 b5 c6 d6"
SCHLUSS = "d6:2! b5:8t' b5' b5' f5:4 | b5:2 c6:2 | d6:1~ | d6:4 r:4 b5:4!' r"

WIRBEL = {"schnarr": "x..oooo.x...o.o.", "bass": "x.......x......."}
ZUG = {"schnarr": "o.x.o.xo|o.xoo.xo", "bass": "x...x..."}
FÜLLUNG = {"schnarr": "o.ooo.ooxoxoxxxx", "bass": "x.......x......."}
TUSCH = {"becken": "x.......", "bass": "x...x...", "schnarr": "x.x.o.xo"}


def stück():
    st = Stück("win", "Schlüsselübergabe", tempo=136, saat=6)
    trompete = st.stimme("Trompete 1", 56, kraft=98, laut=114, ort=56, hall=60)
    trompete_2 = st.stimme("Trompete 2", 56, kraft=84, laut=98, ort=76, hall=60)
    horn = st.stimme("Hörner", 60, kraft=82, laut=98, ort=40, hall=64, spät=4)
    posaune = st.stimme("Posaunen", 57, kraft=86, laut=110, ort=92, hall=60, spät=4)
    tuba = st.stimme("Tuba", 58, kraft=90, laut=116, ort=84, hall=40)
    pauke = st.stimme("Pauken", 47, kraft=84, laut=104, ort=64, hall=56)
    geigen = st.stimme("Streicher", 48, kraft=62, laut=66, ort=60, hall=60)
    glocken = st.stimme("Glockenspiel", 9, kraft=100, laut=122, ort=44, hall=50, ausdruck=127)
    trommel = st.schlagzeug(48, kraft=72, laut=104, hall=50)

    ruf = st.teil("Ruf", "B | % | Gesadd9 | Fsus4 F7")
    marsch = st.teil("Marsch", "B6 | Gm7 | Cm7 | F9 | Dm7 | G7b9 | Cm7 F9 | B6 F9", kraft=.9)
    steigerung = st.teil("Steigerung", "Esmaj7 | F9/Es | Dm7 Gm7 | Cm7 F13")
    schluss = st.teil("Schluss", "B | Ges6 Asadd9 | Badd9 | B", kraft=1.06)

    for teil, weise in ((ruf, RUF), (marsch, MARSCH), (steigerung, STEIGERUNG), (schluss, SCHLUSS)):
        teil.spiele(trompete, weise)
        teil.unterstimme(trompete_2, weise, tiefe=1, kraft=.92)
        teil.unterstimme(horn, weise, tiefe=2, kraft=.92)
    marsch.spiele(glocken, MARSCH, oktave=1, kraft=.9)
    steigerung.spiele(glocken, STEIGERUNG, oktave=1)
    steigerung.spiele(geigen, "g5:2 b5 | a5:2 c6:4 es6 | d6:2 g5:4 b5 | g5:2 a5:4 f5", kraft=.9, rolle="gegen")
    schluss.spiele(glocken, "f6:8 d6 b5 d6 f6 d6 b5 d6 | ges6:8 des6 b5 des6 es6 c6 as5 c6 | d6:8 f6 b6 f6 d6 f6 b6 f6 | b6:4 r r:2", kraft=.85, rolle="gegen")

    ruf.greife(posaune, "x-------|x---....|x-------|x---x--.", (46, 62), kraft=.85)
    ruf.bass(tuba, "1-------|1---....|1-------|1---1--.", lage=(34, 46))
    ruf.bass(pauke, "1...1111|1...1.1.|1...1...|1...1.1.", lage=(41, 53), kraft=.9)
    ruf.trommle(trommel, WIRBEL, {4: FÜLLUNG})
    for teil in (marsch, steigerung):
        teil.greife(posaune, "..x...x.|..x..xx.", (46, 62), kraft=.8)
        teil.bass(tuba, "1.-.5.-.|1.-.5.a.", lage=(34, 46))
        teil.bass(pauke, "1...5...|1...5.5.", lage=(41, 53), kraft=.8)
        teil.trommle(trommel, ZUG, {1: TUSCH, teil.takte: FÜLLUNG})
    marsch.fläche(geigen, (55, 77), kraft=.85)
    marsch.schwelle(geigen, (1, 70), (5, 100), (9, 110))
    schluss.greife(posaune, "x---x---|x---x---|x-------|x-..x...", (46, 62))
    schluss.bass(tuba, "1---1---|1---1---|1-------|1-..1...", lage=(34, 46))
    schluss.bass(pauke, "1.1.1111|1...1...|1111111111111111|1...1...", lage=(41, 53))
    schluss.fläche(geigen, (58, 79), bis=3)
    schluss.greife(geigen, "x-..x...", (58, 79), von=4)
    schluss.trommle(trommel, {"becken": "x...|x...x...|x...", "schnarr": "x.ooooooxoooxoxo|x...x...|oooooooooooooxxx", "bass": "x...x..."}, {4: {"becken": "x...x...", "bass": "x...x...", "schnarr": "x...x..."}})
    # Das Blech schwillt in jeden nächsten Teil hinein.
    for stimme in (trompete, trompete_2, horn, posaune, tuba):
        ruf.schwelle(stimme, (1, 92), (4, 106), (5, 118))
        marsch.schwelle(stimme, (1, 94), (8, 96), (9, 122))
        steigerung.schwelle(stimme, (1, 90), (4, 98), (5, 120))
        schluss.schwelle(stimme, (1, 100), (5, 100))
    st.verlangsamen(schluss.bei(2), schluss.bei(4), 104)
    return st
