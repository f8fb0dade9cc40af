"""Kleines Beispiel des Baukastens: ein Haus mit Garten im Rechteck von 100 x 80 Entwurfspunkten."""
from kasten import *


def mache(datei):
    neu()
    schattengrund()
    with am_brett(50, 62):                      # Fußpunkt vorn in der Mitte, in Entwurfspunkten
        quader(0, 12, 0, 44, 24, 26, putz("creme"), .6)
        quader(0, 12, 0, 45.5, 25.5, 3, mauer("stein"), .4)
        for seite, breite, zahl in (("s", 44, 4), ("w", 24, 2), ("o", 24, 2)):
            with wand(0, 12, 44, 24, seite):
                fensterreihe(15, breite, zahl, 4.5, 7, läden="grün")
                if seite != "s":
                    fensterreihe(5, breite, zahl, 4.5, 7)
        with wand(0, 12, 44, 24, "s"):
            tür(0, 1, 5, 8, "rot")
            for x in (-15, 15):
                fenster(x, 4.5, 7, 7, sprossen=(2, 1))
                markise(x, 14, 9)
        walmdach(0, 12, 26, 44, 24, 11)
        fahne(-16, 12, 32, 12, ("blau", "weiß"))
        palme(-32, 4)
        kugelbaum(31, 10)
        nadelbaum(33, 26)
        ahorn(-34, 22)
        busch(16, -5, blüten="rosa")
        schirm(-14, -8)
        liege(-20, -9)
        hecke([(8, -14), (36, -14), (36, 4)])
        laterne(-6, -7)
        zypresse(26, 20)
        eukalyptus(-32, 38)
        schirmakazie(10, 36)
    rendere(datei, 0, 0, 100, 80)
