"""Das Spiel durch die Augen eines Vorleseprogramms: Sitzungsbus, Bildschirm ohne Gerät, und was AT-SPI davon zeigt."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

GEBRAUCHT = ["Xvfb", "dbus-run-session"]
FEHLT = 77  # für CTest: nicht geprüft


class Prüfung:
    def __init__(self):
        self.ja = self.nein = 0

    def gilt(self, was, wahr):
        if wahr:
            self.ja += 1
        else:
            self.nein += 1
            print("gilt nicht:", was)

    def ende(self):
        print(f"{self.ja} passed, {self.nein} failed")
        return 1 if self.nein else 0


def beginne(*noch):
    """Startet das Skript in einem eigenen Sitzungsbus neu. Fehlt etwas, endet es ungeprüft; mit CI=true gescheitert."""
    fehlt = [p for p in GEBRAUCHT + list(noch) if not shutil.which(p)]
    try:
        import gi
        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        fehlt.append("gir1.2-atspi-2.0")
    if not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"):
        fehlt.append("at-spi2-core")
    if fehlt:
        print("ausgelassen: es fehlen", " ".join(fehlt))
        sys.exit(1 if os.environ.get("CI") == "true" else FEHLT)
    if "VELMO_EIGENER_BUS" not in os.environ:
        os.environ["VELMO_EIGENER_BUS"] = "1"
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable] + sys.argv)


class Spiel:
    """Das laufende Programm und sein Baum."""

    def __init__(self, programm, ton="dummy"):
        from gi.repository import Gio, GLib
        lesen, schreiben = os.pipe()
        self.ordner = tempfile.TemporaryDirectory()
        self.schirm = subprocess.Popen(
            ["Xvfb", "-displayfd", str(schreiben), "-screen", "0", "1024x768x24", "-nolisten", "tcp"],
            pass_fds=[schreiben], stderr=subprocess.DEVNULL)
        os.close(schreiben)
        os.environ["DISPLAY"] = ":" + os.read(lesen, 16).decode().strip()
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))), None,
                      Gio.DBusCallFlags.NONE, 10000)
        from gi.repository import Atspi
        Atspi.init()
        Atspi.set_timeout(5000, 15000)
        self.Atspi, self.schleife = Atspi, GLib.MainContext.default()
        self.ansagen = []  # (Zeit, Text)
        self.hörer = Atspi.EventListener.new(self.höre)
        self.hörer.register("object:state-changed:showing")
        umgebung = dict(os.environ, QT_QPA_PLATFORM="xcb", SDL_AUDIODRIVER=ton, HOME=self.ordner.name,
                        XDG_CONFIG_HOME=self.ordner.name, XDG_RUNTIME_DIR=self.ordner.name,
                        LC_ALL="C.UTF-8")
        self.tonserver = None if ton == "dummy" else self.beginneTonserver(umgebung)
        self.prozess = subprocess.Popen([programm], env=umgebung, stderr=subprocess.PIPE, text=True)
        self.app = self.bis(self.anwendung, "das Programm meldet sich")

    @staticmethod
    def beginneTonserver(umgebung):
        server = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "-L", "module-null-sink",
             "-L", "module-native-protocol-unix auth-anonymous=1"], env=umgebung, stderr=subprocess.DEVNULL)
        while not os.path.exists(umgebung["XDG_RUNTIME_DIR"] + "/pulse/native") and server.poll() is None:
            time.sleep(0.05)
        return server

    def töne(self):
        """Wie viele Ströme der Tonserver gerade spielt."""
        umgebung = dict(os.environ, HOME=self.ordner.name, XDG_RUNTIME_DIR=self.ordner.name)
        return subprocess.run(["pactl", "list", "short", "sink-inputs"], env=umgebung, capture_output=True,
                              text=True).stdout.count("\n")

    def höre(self, ereignis, *_):
        try:
            if ereignis.detail1 and ereignis.source.get_role() == self.Atspi.Role.NOTIFICATION:
                ereignis.source.clear_cache()
                self.ansagen.append((time.monotonic(), ereignis.source.get_name()))
        except Exception:  # das Objekt ist schon fort
            pass

    def bis(self, frage, was, sekunden=20):
        ende = time.monotonic() + sekunden
        while True:
            while self.schleife.iteration(False):
                pass
            try:
                antwort = frage()
            except Exception:  # der Baum hat sich unter der Frage geändert
                antwort = None
            if antwort:
                return antwort
            if time.monotonic() > ende:
                raise TimeoutError(was + "\n" + self.bild())
            time.sleep(0.01)

    def anwendung(self):
        tisch = self.Atspi.get_desktop(0)
        for i in range(tisch.get_child_count()):
            app = tisch.get_child_at_index(i)
            if app and app.get_name() in ("velmo", "Velmo"):
                app.set_cache_mask(self.Atspi.Cache.NONE)
                return app
        return None

    def alle(self, von=None, tiefe=0):
        """Alles, was zu sehen ist, mit seiner Tiefe, von vorn nach hinten."""
        von = von or self.app
        for i in range(von.get_child_count()):
            kind = von.get_child_at_index(i)
            if kind is None:
                continue
            yield kind, tiefe
            yield from self.alle(kind, tiefe + 1)

    def suche(self, name, rolle=None, von=None):
        """Das erste Objekt, dessen ganzer Name dem Muster gleicht."""
        for objekt, _ in self.alle(von):
            if re.fullmatch(name, objekt.get_name() or "") and (not rolle or objekt.get_role_name() == rolle):
                return objekt
        return None

    def objekt(self, name, rolle=None, von=None, sekunden=20):
        return self.bis(lambda: self.suche(name, rolle, von), f"{rolle or 'Objekt'} {name}", sekunden)

    def gibt(self, name, rolle=None):
        return self.suche(name, rolle) is not None

    def frei(self, objekt):
        return objekt.get_state_set().contains(self.Atspi.StateType.SENSITIVE)

    def drücke(self, objekt):
        aktion = objekt.get_action_iface()
        for i in range(aktion.get_n_actions()):
            if aktion.get_action_name(i) == "Press":
                return aktion.do_action(i)
        raise AssertionError(f"{objekt.get_name()} lässt sich nicht drücken")

    def klicke(self, name, rolle="push button", von=None):
        self.drücke(self.bis(lambda: (o := self.suche(name, rolle, von)) and self.frei(o) and o, f"{name} ist frei"))

    def schreibe(self, name, text):
        self.objekt(name, "text").get_editable_text_iface().set_text_contents(text)

    def wähle(self, liste, zeile, rolle="list"):
        self.klicke(zeile, "list item", self.objekt(liste + "(: .*)?", rolle))

    def bild(self):
        """Der Baum, wie er sich vorliest."""
        zeilen = []
        try:
            for objekt, tiefe in self.alle():
                aktion = objekt.get_action_iface()
                namen = [aktion.get_action_name(i) for i in range(aktion.get_n_actions())] if aktion else []
                stand = [] if self.frei(objekt) else ["gesperrt"]
                if objekt.get_state_set().contains(self.Atspi.StateType.FOCUSED):
                    stand.append("Fokus")
                zeilen.append("  " * tiefe + f"[{objekt.get_role_name()}] {objekt.get_name()!r}"
                              + (f" ({objekt.get_description()})" if objekt.get_description() else "")
                              + (" " + ", ".join(stand) if stand else "") + (" " + "/".join(namen) if namen else ""))
        except Exception as fehler:
            zeilen.append(str(fehler))
        return "\n".join(zeilen)

    def ende(self):
        if self.prozess.poll() is None:
            self.prozess.terminate()
        self.prozess.communicate(timeout=10)
        if self.tonserver:
            self.tonserver.kill()
            self.tonserver.wait(10)
        self.schirm.terminate()
        self.schirm.wait(10)
