"""Das Zeichen des Spiels fürs Menü des Rechners: groß die Insel des Fensters, klein eine einfachere Zeichnung davon."""
from befehl import vorhanden
from stift import *

INSEL = "bilder/formen/velmo.png"
KLEIN = 32                # bis dahin wäre die gerenderte Insel ein Brei

# Auf 32 Punkten: Meer, Strand, Wiese, Haus mit rotem Dach, Palme, gelber Wagen.
EINFACH = """<ellipse cx="16" cy="22" rx="15.5" ry="9.5" fill="#1c86ab"/><ellipse cx="16" cy="21" rx="15.5" ry="9.3"
fill="#2aa0c4"/><ellipse cx="16" cy="20.6" rx="12.6" ry="7.3" fill="#ecd199"/><ellipse cx="16" cy="19.2" rx="10.5"
ry="5.2" fill="#86b24a"/><rect x="16" y="11" width="9" height="8" fill="#f3ead6"/><path d="M14.6 11.6L18 6.6H23L26.4
11.6Z" fill="#c8502f"/><path d="M17.6 13.4h2v2.6h-2zM21.6 13.4h2v2.6h-2z" fill="#4d8fa8"/><path d="M9.4 19Q9 12 11 7"
fill="none" stroke="#8a5a2c" stroke-width="1.8" stroke-linecap="round"/><path d="M11 7Q6 3 3 8Q7 6.4 11 7Q10 11 6.4
13Q12 12 11 7Q14 3.4 17 6.6Q14 6 11 7Q13 10 14.4 12.4Q10.6 11 11 7" fill="#3f8f3c" stroke="#2f7a33" stroke-width="1.4"
stroke-linejoin="round"/><path d="M9 23.4Q9 21.4 11 21.4L12.6 18.6H17.4L19 21.4Q21 21.4 21 23.4V25H9Z" fill="#f5b921"
stroke="#a8701c" stroke-width=".7"/><path d="M13.2 19.6H16.8L17.8 21.4H12.2Z" fill="#d7eef4"/><circle cx="12" cy="25"
r="1.7" fill="#3a2a1e"/><circle cx="18" cy="25" r="1.7" fill="#3a2a1e"/>"""


def mache(datei):
    breit = int(Path(datei).stem)
    if breit <= KLEIN:
        return ausgeben(datei, f'<svg xmlns="http://www.w3.org/2000/svg" width="{breit}" height="{breit}" '
                        f'viewBox="0 0 32 32">{EINFACH}</svg>')
    maß = f"{breit}x{breit}"
    rufe("convert", vorhanden(INSEL), "-trim", "+repage", "-filter", "Lanczos", "-resize", maß, "-background", "none",
         "-gravity", "center", "-extent", maß, "-strip", "-define", "png:compression-level=9", ziel(datei))
