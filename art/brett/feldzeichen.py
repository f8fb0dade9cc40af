"""Die gemalten Zeichen der Felder: Umrisse [(x, y), ...] in Entwurfspunkten um die Mitte, mit ihrer Farbe."""
import math

TON = {"g": "#f0bb3a", "b": "#3f7fc4", "e": "#45a455", "a": "#e0702e"}
HELL = "#fff7e4"


def kreis(x, y, r, von=0, bis=360, n=24):
    return [(x + r * math.cos(math.radians(von + (bis - von) * i / n)),
             y + r * math.sin(math.radians(von + (bis - von) * i / n)))
            for i in range(n + (bis - von < 360))]


def schein(x, y, ton, drehung):
    c, s = math.cos(math.radians(drehung)), math.sin(math.radians(drehung))

    def dreh(p):
        return [(x + c * a - s * b, y + s * a + c * b) for a, b in p]
    return [(dreh([(-9, -4.6), (9, -4.6), (9, 4.6), (-9, 4.6)]), "#fff9e8"),
            (dreh([(-8, -3.6), (8, -3.6), (8, 3.6), (-8, 3.6)]), ton),
            (dreh(kreis(0, 0, 2.5)), "#fff9e8"),
            (dreh(kreis(-5.6, 0, .9)), "#fff9e8"), (dreh(kreis(5.6, 0, .9)), "#fff9e8")]


def zeichen_g():
    return schein(1.6, -2.4, "#b3543c", -14) + schein(-1.2, 1.8, "#3c8a50", 8)


def zeichen_b():
    blatt = [([(-12, -8), (12, -8), (12, 8), (-12, 8)], HELL),
             ([(-11.2, -7.2), (11.2, -7.2), (11.2, 7.2), (-11.2, 7.2)], "#2b5f9f")]

    def strich(a, e, w=.62):
        dx, dy = e[0] - a[0], e[1] - a[1]
        l = math.hypot(dx, dy)
        nx, ny = -dy / l * w, dx / l * w
        return ([(a[0] + nx, a[1] + ny), (e[0] + nx, e[1] + ny), (e[0] - nx, e[1] - ny), (a[0] - nx, a[1] - ny)], HELL)
    haus = [(-6, 5), (-6, -1), (0, -5.6), (6, -1), (6, 5)]
    striche = [strich(a, e) for a, e in zip(haus, haus[1:] + haus[:1])]
    striche += [strich((-1.8, 5), (-1.8, .8)), strich((-1.8, .8), (1.8, .8)), strich((1.8, .8), (1.8, 5)),
                strich((-9, 5), (-9, -5.4), .4), strich((-10, 5), (-8, 5), .4), strich((-10, -5.4), (-8, -5.4), .4)]
    return blatt + striche


def zeichen_e():
    bogen = (kreis(0, -1, 8.4, 180, 360) + [(8.4, 8), (5.4, 8)] + kreis(0, -1, 5.4, 360, 180)[0:]
             + [(-5.4, 8), (-8.4, 8)])
    teile = [(bogen, HELL)]
    for x in (-3.2, 0, 3.2):
        teile.append(([(x - .55, -3.6 + .35 * abs(x)), (x + .55, -3.6 + .35 * abs(x)), (x + .55, 8), (x - .55, 8)],
                      HELL))
    teile.append(([(-5.4, 2.4), (5.4, 2.4), (5.4, 3.5), (-5.4, 3.5)], HELL))
    return teile


def zeichen_a():
    """Kranhaken an seiner Flasche."""
    bogen = kreis(-.4, 3.0, 6.4, 0, 168) + [(-6.2, -.6)] + kreis(-.4, 3.0, 3.2, 160, 0)
    return [([(-1.6, -11), (-.4, -11), (-.4, -8), (-1.6, -8)], HELL),
            ([(6.4, -11), (7.6, -11), (7.6, -8), (6.4, -8)], HELL),
            ([(-2.6, -8.6), (8.6, -8.6), (7.4, -4.2), (-1.4, -4.2)], HELL), (kreis(3, -6.4, 1.2), TON["a"]),
            ([(1.6, -4.4), (4.4, -4.4), (6.0, 3.2), (2.8, 3.2)], HELL), (bogen, HELL)]


ZEICHEN = {"g": zeichen_g, "b": zeichen_b, "e": zeichen_e, "a": zeichen_a}
