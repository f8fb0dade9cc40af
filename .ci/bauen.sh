# Gemeinsames von spielen, testen und .ci/run: holt fehlende Debian-Pakete und baut. Wird eingelesen, im Ordner des
# Verzeichnisses. Ein zweiter Aufruf ohne Neues kostet eine Frage an dpkg und einen Blick von ninja.

Baupakete="g++ cmake ninja-build qt6-base-dev libsdl2-dev libfluidsynth-dev pkgconf libvpx-dev"
# Was das Spiel erst beim Spielen braucht: Schriften, auch für die Bilder der Prüfung, und den Klangsatz der Musik.
Schriftpakete="fonts-comic-neue fonts-lato fonts-urw-base35 fonts-dejavu-core"
Spielpakete="$Schriftpakete timgm6mb-soundfont"
# Für die Seite im Browser: der Übersetzer, und was Bilder, Töne, Film und Schriften für sie umwandelt.
Browserpakete="emscripten node-acorn cmake ninja-build webp ffmpeg opus-tools fluidsynth timgm6mb-soundfont
    python3-fonttools python3-brotli"
# Worin die Seite geprüft wird; WebKitGTK braucht einen Bildschirm.
Browserprobe="chromium chromium-driver firefox-esr webkit2gtk-driver xvfb xauth python3-numpy python3-pil"
# Für die Prüfungen am wirklichen Fenster: Bildschirm und Ton ohne Gerät, und was Vorleseprogramme mit ihm verbindet.
Fensterpakete="xvfb dbus at-spi2-core gir1.2-atspi-2.0 python3-gi pulseaudio pulseaudio-utils"

# Die Prüfungen legen viele kleine Dateien an; im Arbeitsspeicher geht das viermal so schnell.
[ ! -w /dev/shm ] || export TMPDIR=/dev/shm

# Als Verwalter, ohne Rückfrage.
alsVerwalter() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo -n "$@"; fi
}

# holePakete PAKET...: installiert, was fehlt.
holePakete() {
    if ! command -v dpkg-query >/dev/null; then
        [ -f build/build.ninja ] || echo "Gebraucht werden, wie Debian sie nennt: $*" >&2
        return 0
    fi
    da=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' "$@" 2>/dev/null | sed -n 's/^ii *//p')
    fehlend=
    for paket in "$@"; do
        printf '%s\n' "$da" | grep -qx "$paket" || fehlend="$fehlend $paket"
    done
    [ -n "$fehlend" ] || return 0
    echo "Installiere:$fehlend"
    protokoll=$(mktemp)
    if ! { alsVerwalter apt-get update -qq &&
        alsVerwalter env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $fehlend; } \
        >"$protokoll" 2>&1; then
        cat "$protokoll" >&2
        echo "Diese Pakete fehlen und ließen sich nicht installieren:$fehlend" >&2
        exit 1
    fi
    rm -f "$protokoll"
}

# baue VOREINSTELLUNG ORDNER [CMAKE-WORT...]: mit CI=true sind Warnungen Fehler, mit ziel=NAME entsteht nur das.
baue() {
    voreinstellung=$1 ordner=$2
    shift 2
    streng=OFF
    [ "${CI:-}" != true ] || streng=ON
    if [ $streng = ON ] || [ ! -f "$ordner/build.ninja" ]; then
        protokoll=$(mktemp)
        cmake --preset "$voreinstellung" -DVELMO_STRENG=$streng "$@" >"$protokoll" 2>&1 || {
            cat "$protokoll" >&2
            exit 1
        }
        rm -f "$protokoll"
    fi
    ninja -C "$ordner" ${ziel:-}
}
