"""Die leuchtende Blume, die im Menü erscheint: bilder/formen/menu/shape1.png, aus dem Bild des Menüs geschnitten."""
from befehl import rufe, vorhanden, ziel


def mache(datei):
    """Aufgehellt mit weichem Schein; passt auf die Stelle 3330, 4490 des Menüs."""
    b, h = 448, 424
    rufe("convert", vorhanden("bilder/formen/menu/menu.jpg"), "-crop", f"{b}x{h}+1110+1497", "+repage", "-modulate",
         "120,128", "(", "-size", f"{b}x{h}", "radial-gradient:rgba(255,226,130,0.38)-rgba(255,220,120,0)", ")",
         "-compose", "screen", "-composite", "(", "-size", f"{b}x{h}", "xc:black", "-fill", "white", "-draw",
         f"roundrectangle 26,26 {b - 27},{h - 27} 120,120", "-blur", "0x14", ")",
                    "-alpha", "off", "-compose", "CopyOpacity", "-composite", ziel(datei))
