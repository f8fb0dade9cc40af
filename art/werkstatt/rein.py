"""Korn aus gerenderten Bildern nehmen: geglättet wird das Licht, nicht die Farbe der Dinge.

Das Bild geteilt durch die Farben der Flächen ist das Licht auf ihnen; das ändert sich langsam. Ein Filter mittelt es in
immer weiteren Schritten, doch nur zwischen Punkten gleicher Neigung, Farbe und ähnlicher Helligkeit. So bleiben Kanten,
Muster und Schatten scharf.
"""
import numpy as np

STUFEN = 5                                # Schritte von 1 bis 16 Bildpunkten
KERN = np.array([1, 4, 6, 4, 1], np.float32) / 16
NEIGUNG, FARBE, HELL = 0.15, 0.08, 0.7    # so viel Unterschied gilt noch als gleich; HELL im Verhältnis, je Stufe halb
DUNKEL = 0.02                             # damit Schwarzes sich teilen lässt


def _verschoben(a, dy, dx):
    """Das Bild um so viele Punkte verschoben; der Rand wiederholt sich."""
    h, b = a.shape[:2]
    return a[np.clip(np.arange(h) + dy, 0, h - 1)][:, np.clip(np.arange(b) + dx, 0, b - 1)]


def _abstand(a, weg, gleich):
    d = (_verschoben(a, *weg) - a) / gleich
    return d * d if d.ndim == 2 else (d * d).sum(axis=2)


def _glätte(licht, farbe, neigung):
    for stufe in range(STUFEN):
        hell = np.log(licht.mean(axis=2) + DUNKEL)
        summe, gewicht = np.zeros_like(licht), np.zeros(licht.shape[:2], np.float32)
        for iy, ky in enumerate(KERN):
            for ix, kx in enumerate(KERN):
                weg = (iy - 2) << stufe, (ix - 2) << stufe
                w = kx * ky * np.exp(-_abstand(neigung, weg, NEIGUNG) - _abstand(farbe, weg, FARBE)
                                     - _abstand(hell, weg, HELL * 0.5 ** stufe))
                summe += w[..., None] * _verschoben(licht, *weg)
                gewicht += w
        licht = summe / gewicht[..., None]
    return licht


def reinige(bild, farbe, neigung):
    """Das Bild ohne Korn; alle drei linear, Zeilen mal Spalten mal 3."""
    teiler = farbe + DUNKEL
    return _glätte(bild / teiler, farbe, neigung) * teiler


def fürs_auge(bild):
    """Linear nach sRGB, 0 bis 1."""
    bild = np.clip(bild, 0, 1)
    return np.where(bild <= 0.0031308, bild * 12.92, 1.055 * np.maximum(bild, 0.0031308) ** (1 / 2.4) - 0.055)
