"""Die Stücke des Spiels in der Reihenfolge ihrer Dateien."""
from noten import s1, s2, s3, s4, traurig, win


def alle():
    return [blatt.stück() for blatt in (s1, s2, s3, s4, traurig, win)]
