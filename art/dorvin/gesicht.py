"""Dorvins Augen und sein Mund, die sich für sich bewegen: bilder/formen/assistent/augel, auger, reden."""
from stift import *


def auge():
    iris = (kugel("iris", [(0, "#9a5a2a"), (.55, "#6b3a17"), (1, "#33180a")], .5, .62, .6)
            + kugel("pupille", [(0, "#000"), (.8, "#0c0604"), (1, "#1c0e06")], .5, .5, .5))
    strahlen = "".join(f'<path d="M32 30L{32 + 26 * math.cos(a):.1f} {30 + 25 * math.sin(a):.1f}" '
                       f'stroke="{"#c98544" if i % 2 else "#4a250d"}" stroke-width="1.4" opacity=".45"/>' for i,
                       a in enumerate(k * math.pi / 16 for k in range(32)))
    bild = (f'<ellipse cx="32" cy="30" rx="28" ry="27" fill="#1d0d05"/><ellipse cx="32" cy="30" rx="25.6" ry="24.6" '
            f'fill="url(#iris)"/>{strahlen}'
            '<ellipse cx="32" cy="30" rx="14.5" ry="14.5" fill="url(#pupille)"/>'
            '<path d="M8 22A26 26 0 0 1 56 22Q44 10 32 12Q18 11 8 22Z" fill="#120602" opacity=".35"/>'
            '<ellipse cx="22.5" cy="19.5" rx="8" ry="7" fill="#fff"/><circle cx="42" cy="40" r="3.6" fill="#fff" '
            'opacity=".8"/>'
            '<path d="M14 42Q32 60 50 42" fill="none" stroke="#e0a060" stroke-width="3" opacity=".35" '
            'stroke-linecap="round"/>')
    return svg(64, 60, bild, iris)


def mund():
    defs = (verlauf("rachen", [(0, "#3a0b0a"), (.5, "#6e1a17"), (1, "#8c2a22")])
            + kugel("zunge", [(0, "#f08a80"), (.7, "#cf5a55"), (1, "#a33b3b")], .45, .2, .8)
            + verlauf("lippe", [(0, "#a64a3c"), (.6, "#d9705c"), (1, "#b4513f")])
            + '<clipPath id="m"><path d="M12 14Q96 34 180 14Q168 84 96 84Q24 84 12 14Z"/></clipPath>')
    bild = ('<path d="M4 8Q96 32 188 8Q180 91 96 91Q12 91 4 8Z" fill="url(#lippe)"/><path d="M20 62Q96 102 172 62" '
            'stroke="#ffd0b8" stroke-width="4" opacity=".35" fill="none" transform="translate(0 3)"/>'
            '<path d="M12 14Q96 34 180 14Q168 84 96 84Q24 84 12 14Z" fill="url(#rachen)"/>'
            '<g clip-path="url(#m)"><ellipse cx="96" cy="82" rx="54" ry="27" fill="url(#zunge)"/>'
            '<path d="M96 58V84" stroke="#9a3836" stroke-width="3" opacity=".5"/>'
            '<path d="M8 8H184V26Q96 46 8 26Z" fill="#fffaf0"/><path d="M8 26Q96 46 184 26" stroke="#cbb9a4" '
            'stroke-width="2.5" fill="none"/><path d="M0 0H192V22Q96 40 0 22Z" fill="#2a0605" opacity=".28"/></g>')
    return svg(192, 92, f'<g transform="translate(12 0) scale(.84 1)">{bild}</g>', defs)


def mache(datei):
    ausgeben(datei, mund() if datei.endswith("reden.png") else auge())
