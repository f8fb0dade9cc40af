"""Was einmal umgerechnet ist, bleibt, bis es niemand mehr braucht."""
import hashlib


class Vorrat:
    def __init__(self, ordner):
        self.ordner = ordner
        self.gebraucht = set()
        ordner.mkdir(parents=True, exist_ok=True)

    def hole(self, herkunft, endungen, mache):
        """Je Endung die Bytes zu einer Herkunft (alles, wovon sie abhängen, als Bytes); fehlt etwas, macht mache() alle."""
        name = hashlib.sha256(herkunft).hexdigest()
        dateien = [self.ordner / (name + endung) for endung in endungen]
        self.gebraucht.update(datei.name for datei in dateien)
        if not all(datei.exists() for datei in dateien):
            for datei, daten in zip(dateien, mache()):
                daneben = datei.with_suffix(datei.suffix + ".neu")
                daneben.write_bytes(daten)
                daneben.replace(datei)
        return [datei.read_bytes() for datei in dateien]

    def räume_auf(self):
        for datei in self.ordner.iterdir():
            if datei.name not in self.gebraucht:
                datei.unlink()
