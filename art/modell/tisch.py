"""Der Tisch, auf dem das Brett liegt (bilder/formen/form1/form1.jpg), und das Zeichen des Spiels (bilder/formen/velmo.png)."""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from kasten import *       # noqa: E402,F403
from kasten import _rechne         # noqa: E402
from bauteile import *     # noqa: E402,F403
from pflanzen import *     # noqa: E402,F403
from auto import wagen     # noqa: E402

B, H = 800, 600
BRETT = (10, 70, 741, 427)          # das Brettbild auf der Form, Entwurfspunkte
NOTEN = (114, 506, 532, 120)        # Filz unter den Notenstapeln, läuft unten aus dem Bild
WÜRFEL = (425, 5, 102, 51)          # Mulde der beiden Würfel


def maserung(hell, dunkel, längs=True):
    """Holz mit feiner Maserung und breiten Dielen."""
    m = bpy.data.materials.new("Maserung")
    m.use_nodes = True
    k, v = m.node_tree.nodes, m.node_tree.links
    p = k["Principled BSDF"]
    p.inputs["Roughness"].default_value, p.inputs["Specular"].default_value = .38, .4
    ort = k.new("ShaderNodeNewGeometry").outputs["Position"]
    teil = k.new("ShaderNodeSeparateXYZ")
    v.new(ort, teil.inputs[0])
    lang, quer = (teil.outputs["X"], teil.outputs["Y"]) if längs else (teil.outputs["Y"], teil.outputs["X"])
    diele = _rechne(k, v, "FLOOR", _rechne(k, v, "DIVIDE", quer, 66.0))
    fuge = _rechne(k, v, "FRACT", _rechne(k, v, "DIVIDE", quer, 66.0))
    fuge = _rechne(k, v, "MINIMUM", 1.0, _rechne(k, v, "MULTIPLY", _rechne(k, v, "MINIMUM", fuge, _rechne(k, v, "SUBTRACT", 1.0, fuge)), 80.0))
    gedehnt = k.new("ShaderNodeCombineXYZ")
    v.new(_rechne(k, v, "ADD", _rechne(k, v, "MULTIPLY", lang, .010), _rechne(k, v, "MULTIPLY", diele, 7.3)), gedehnt.inputs[0])
    v.new(_rechne(k, v, "MULTIPLY", quer, .16), gedehnt.inputs[1])
    v.new(diele, gedehnt.inputs[2])
    fein = k.new("ShaderNodeTexNoise")
    fein.inputs["Scale"].default_value, fein.inputs["Detail"].default_value = 1.6, 5
    fein.inputs["Distortion"].default_value = .7
    v.new(gedehnt.outputs[0], fein.inputs["Vector"])
    rampe = k.new("ShaderNodeValToRGB")
    rampe.color_ramp.elements[0].position, rampe.color_ramp.elements[1].position = .34, .66
    rampe.color_ramp.elements[0].color, rampe.color_ramp.elements[1].color = (*rgb(dunkel), 1), (*rgb(hell), 1)
    v.new(fein.outputs["Fac"], rampe.inputs[0])
    ton = _rechne(k, v, "ADD", .62, _rechne(k, v, "MULTIPLY", fuge, .38))
    mal = k.new("ShaderNodeVectorMath")
    mal.operation = "MULTIPLY"
    v.new(rampe.outputs[0], mal.inputs[0])
    v.new(ton, mal.inputs[1])
    v.new(mal.outputs[0], p.inputs["Base Color"])
    return m


def rechteckring(l, o, b, h, innen, außen, z, hoch, stoff_, rund):
    """Leiste um ein Rechteck, von `innen` bis `außen` Punkte davon entfernt."""
    for x, y, bb, tt in ((l + b / 2, o - (innen + außen) / 2, b + 2 * außen, außen - innen),
                         (l + b / 2, o + h + (innen + außen) / 2, b + 2 * außen, außen - innen),
                         (l - (innen + außen) / 2, o + h / 2, außen - innen, h + 2 * innen),
                         (l + b + (innen + außen) / 2, o + h / 2, außen - innen, h + 2 * innen)):
        quader(x, -y, z, bb, tt, hoch, stoff_, rund)


def tisch():
    neu()
    hell = maserung("#dcb988", "#c79c66")
    leiste = maserung("#9a6238", "#774726")
    l, o, b, h = BRETT
    quader(B / 2, -H / 2, -10, B + 200, H + 200, 10, hell, 0)
    rechteckring(l, o, b, h, .8, 7.0, -1, 5.5, leiste, 1.6)
    quader(l + b / 2, -o - h / 2, -1, b + 2, h + 2, 1.2, "#3a2a1e", 0)
    filz = stoff("#31604d", rau=1, glanz=.03, fleck=.07, korn=.5, kornmass=1.6)
    for l, o, b, h in (NOTEN, WÜRFEL):
        quader(l + b / 2, -o - h / 2, -1, b, h, 1.3, filz, 0)
        rechteckring(l, o, b, h, 0, 3.4, -1, 4.2, leiste, 1.3)
    sonne = bpy.data.objects["Sonne"]
    sonne.rotation_euler = Vector((-.42, .40, .82)).to_track_quat("Z", "Y").to_euler()
    bpy.context.scene.camera.rotation_euler = (0, 0, 0)
    rendere(os.path.join(args.ziel, "formen", "form1", "form1.jpg"), 0, 0, B, H, fein=min(args.fein, 2), proben=args.proben // 2,
            durchsichtig=False, mitte=Vector((B / 2, -H / 2, 0)), größe=(3200, 2400))


def zeichen():
    neu(3)
    schattengrund(-3)
    drehkörper(0, 0, -3, [(30, 0), (32, 1.5), (32, 3.2), (30.6, 3.6)], stoff("#2aa0c4", rau=.1, glanz=.6, fleck=.05, korn=.12, kornmass=.25), 72)
    drehkörper(0, 0, 0, [(25, 0), (24, 1.5), (20, 2.4)], stoff("#ecd199", rau=.9, korn=.3), 60)
    drehkörper(0, 3, 1.5, [(19, 0), (17, 1.6), (12, 2.4)], gras("#86b24a"), 48)
    with bei(-9, 9, 2.6):
        palme(0, 0, mass=1.75, drehung=10)
    with bei(8, 9, 3):
        quader(0, 0, 0, 15, 12, 13, putz("#f3ead6"), .6)
        with wand(0, 0, 15, 12, "s"):
            fensterreihe(7.5, 15, 3, 2.4, 3.4)
            fensterreihe(1.8, 15, 3, 2.4, 3.4)
        walmdach(0, 0, 13, 15, 12, 6, ziegel("#c8502f", 2))
        fahne(0, 0, 18, 9, ("gelb", "rot"))
    with bei(-1, -13, 2, -62, .78):
        wagen("#f5b921")
    rendere(os.path.join(args.ziel, "formen", "velmo.png"), 0, 0, 72, 72, fein=256 / 72, proben=args.proben, rand=1,
            mitte=Vector((1.5, 4, 6)))


args = argumente()
for name, bild in (("form1", tisch), ("velmo", zeichen)):
    if not args.nur or name in args.nur:
        bild()
