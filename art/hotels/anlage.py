"""Gerüst der Hotelanlagen: die Rechtecke der Baustufen und was mehrere Hotels gemeinsam brauchen.

Eine Stufe ist eine Routine ohne Argumente. Sie baut um den Fußpunkt ihres Rechtecks: x = 0 ist seine Mitte,
y = 0 seine Unterkante. Was in Tiefe y in Höhe z endet, liegt im Bild (y + z) / 1,414 Punkte über der Unterkante.
"""
from kasten import *
from knoten import Baum, Wert


# ---------------------------------------------------------------- Flächen, Kippen

def kippe(o, grad=90, achse="X"):
    """Richtet ein eben gebautes Teil um eine Achse des geltenden Rahmens auf; 90 Grad: oben wird vorn."""
    o.matrix_world = geltend() @ dreh(grad, achse) @ geltend().inverted() @ o.matrix_world
    return o


def umriss(b, t, ecke=4.0, x=0.0, y=0.0, teile=6):
    """Rechteck mit runden Ecken, von y an nach hinten."""
    p = []
    for mx, my, w in ((b / 2 - ecke, ecke, 270), (b / 2 - ecke, t - ecke, 0), (-b / 2 + ecke, t - ecke, 90),
                      (-b / 2 + ecke, ecke, 180)):
        p += [(x + mx + ecke * math.cos(math.radians(w + 90 * i / teile)),
               y + my + ecke * math.sin(math.radians(w + 90 * i / teile)))
              for i in range(teile + 1)]
    return p


def kreis(x, y, r, quer=1.0, teile=32):
    return [(x + r * math.cos(2 * math.pi * i / teile), y + r * quer * math.sin(2 * math.pi * i / teile))
            for i in range(teile)]


def boden(b, t, stoff_, y=0.6, x=0.0, ecke=5.0, hoch=0.25, saum=4.0):
    """Eigenes Stück Land unter einer Stufe; über die Breite des Saums verliert es sich im Land ringsum."""
    saum = min(saum, .45 * min(b, t))
    ringe = umriss(b, t, ecke, x, y) + umriss(b - 2 * saum, t - 2 * saum, max(ecke - saum, 1), x, y + saum)
    n = len(ringe) // 2
    me = netz_aus([(*p, 0) for p in ringe],
                  [(i, (i + 1) % n, n + (i + 1) % n, n + i) for i in range(n)] + [tuple(range(n, 2 * n))])
    me.attributes.new("Saum", "FLOAT", "POINT").data.foreach_set("value", [0.0] * n + [1.0] * n)
    o = objekt("Boden", me, ausgefranst(als_stoff(stoff_)), lage(z=hoch))
    o.visible_shadow = False
    return o


def ausgefranst(stoff_):
    """Derselbe Stoff, der nach dem Feld "Saum" des Netzes in Flecken durchsichtig wird."""
    m = stoff_.copy()
    baum = Baum(m)
    ende = baum.knoten["Material Output"]
    fleck = baum.rauschen(baum.neu("NewGeometry", aus="Position"), .5, 3)
    deckt = baum.neu("Attribute", aus="Fac", attribute_name="Saum") * 2 + fleck * 3 - 2
    deckt = baum.neu("Clamp", {0: deckt})
    fläche = Wert(baum, ende.inputs["Surface"].links[0].from_socket)
    baum.setze(ende, {"Surface": baum.neu("MixShader", {0: deckt, 1: baum.neu("BsdfTransparent"), 2: fläche})})
    return m


def erde(farbe):
    return stoff(farbe, rau=.95, glanz=.08, fleck=.14, fleckmaß=.09, korn=.5, kornmaß=1.0)


def wellblech(farbe, maß=2.2):
    return stoff(farbe, rau=.4, glanz=.5, fleck=.06, muster=("ziegel", maß, 400, .08), musterhub=.9)


# ---------------------------------------------------------------- Häuser, Türme

def haus(x, y, z, b, t, h, stoff_, reihen=(), drehung=0.0, rund=.5, tun=None):
    """Kasten mit Fensterreihen [(Höhe, Achsmaß, Breite, Höhe des Fensters, {mehr}), ...] an den sichtbaren Wänden."""
    with bei(x, y, z, drehung):
        quader(0, 0, 0, b, t, h, stoff_, rund)
        for seite in "swo" if drehung else "s":
            breite = b if seite == "s" else t
            with wand(0, 0, b, t, seite):
                for hoch, achse, fb, fh, *mehr in reihen:
                    fensterreihe(hoch, breite - 1.5, max(1, round((breite - 1.5) / achse)), fb, fh,
                                 **(mehr[0] if mehr else {}))
                if tun and seite == "s":
                    tun()


def rundfenster(x, y, z, r, winkel, b, h, **wie):
    """Fenster rund um einen Turm."""
    for w in winkel:
        with bei(x, y, z, w), bei(0, -r * .97):
            fenster(0, 0, b, h, **wie)


def kegeldach(x, y, z, r, h, stoff_, knauf="gold", über=1.2, seiten=32):
    """Spitzes Turmdach mit leichtem Schwung."""
    R = r + über
    drehkörper(x, y, z, [(R * .9, -.8), (R, 0), (R * .78, h * .16), (R * .5, h * .45), (R * .22, h * .77), (.05, h)],
               stoff_, seiten)
    if knauf:
        spitze(x, y, z + h - 1.2, .9, metall(knauf))


def zinnenring(x, y, z, r, stoff_, zahl=10, maß=2.0):
    for i in range(zahl):
        with bei(x, y, z, 360 * (i + .5) / zahl):
            quader(0, -r, 0, maß, maß * .8, maß, stoff_, .25)


def wimpel(x, y, z, hoch, farben=("rot",), b=6.0, h=3.6, drehung=-12.0):
    """Fahne auf einem Dach, etwas größer als das Vorbild, damit sie im Kleinen zu sehen ist."""
    fahne(x, y, z, hoch, farben, b, h, drehung)


def stern(r, dick, stoff_, z=0.0, zacken=5, innen=.42):
    """Liegender Stern um den Ursprung, Spitze nach hinten; mit `kippe` aufrichten."""
    p = [((innen if i % 2 else 1) * r * math.sin(math.pi * i / zacken),
          (innen if i % 2 else 1) * r * math.cos(math.pi * i / zacken))
         for i in range(2 * zacken)]
    return prisma(p, z, dick, stoff_, .25)


def rechteckprofil(x, y, z, b, t, profil, stoff_, rund=.25, drehung=0.0):
    """Körper über einem Rechteck; profil: [(Einzug ringsum, Höhe), ...] von unten nach oben."""
    p, f = [], []
    for ein, hoch in profil:
        B, T = max(b / 2 - ein, .02), max(t / 2 - ein, .02)
        p += [(-B, -T, hoch), (B, -T, hoch), (B, T, hoch), (-B, T, hoch)]
    for k in range(len(profil) - 1):
        f += [(4 * k + i, 4 * k + (i + 1) % 4, 4 * k + 4 + (i + 1) % 4, 4 * k + 4 + i) for i in range(4)]
    n = 4 * (len(profil) - 1)
    f += [(3, 2, 1, 0), (n, n + 1, n + 2, n + 3)]
    return objekt("Rechteckprofil", netz_aus(p, f), stoff_, lage(x, y, z, drehung), rund)


def mansarde(x, y, z, b, t, h, stoff_, gauben=0, einzug=None, sims="weiß", first="gold", gaubenmaß=1.0):
    """Mansarddach: Traufsims, steile geschweifte Seiten, flacher Deckel, Gauben vorn."""
    e = einzug or h * .34
    quader(x, y, z - .8, b + 2.4, t + 2.4, 1.6, sims, .4)
    rechteckprofil(x, y, z + .6, b, t, [(0, 0), (e * .45, h * .30), (e * .78, h * .66), (e, h)], stoff_)
    quader(x, y, z + .4 + h, b - 2 * e + 1.2, t - 2 * e + 1.2, 1.0, sims, .3)
    rechteckprofil(x, y, z + 1.2 + h, b - 2 * e, t - 2 * e, [(0, 0), (min(b, t) / 2 - e - .6, h * .18)], stoff_, .1)
    if first:
        for s in (-1, 1):
            spitze(x + s * (b / 2 - e), y - t / 2 + e, z + h + 1, .7, metall(first))
    m = gaubenmaß
    for i in range(gauben):
        gx = x - b / 2 + e * .5 + (b - e) * (i + .5) / gauben
        with bei(gx, y - t / 2 + e * .36, z + h * .12, maß=m):
            quader(0, 1.5, 0, 4.6, 5, 5.2, sims, .3)
            with bei(0, -1.0):
                fenster(0, .8, 2.8, 4.2, rahmen="creme", bogen=True, sprossen=(1, 0), sims=False, rand=.4)
            with bei(0, 4, 4.9):
                kippe(zylinder(0, 0, 0, 2.6, 5.6, stoff_, rund=.2))


def überstand(teile, rechteck):
    """Wie weit die Teile über (links, oben, rechts, unten) des Rechtecks ragen, in Entwurfspunkten."""
    links, oben, breite, höhe = (w / TWIPS for w in rechteck)
    graph = bpy.context.evaluated_depsgraph_get()
    weit = [-1e9] * 4
    for o in teile:
        e = o.evaluated_get(graph)
        me = e.to_mesh()
        n = len(me.vertices)
        if not n:
            continue
        p = np.empty(3 * n, np.float64)
        me.vertices.foreach_get("co", p)
        p = np.c_[p.reshape(n, 3), np.ones(n)] @ np.array(o.matrix_world).T
        u, v = p[:, 0], -(p[:, 1] + p[:, 2]) / TIEFE
        weit = [max(a, b) for a, b in zip(weit, (links - u.min(), oben - v.min(), u.max() - links - breite,
                                                 v.max() - oben - höhe))]
        e.to_mesh_clear()
    return weit
