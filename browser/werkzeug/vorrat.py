"""Was einmal umgerechnet ist, bleibt, bis es niemand mehr braucht."""
import hashlib


class Vorrat:
    def __init__(self, ordner):
        self.ordner = ordner
        self.gebraucht = set()
        ordner.mkdir(parents=True, exist_ok=True)

    def hole(self, herkunft, endung, mache):
        """Die Bytes zu einer Herkunft (alles, wovon sie abhängen, als Bytes); fehlen sie, macht sie mache()."""
        fertig = self.ordner / (hashlib.sha256(herkunft).hexdigest() + endung)
        self.gebraucht.add(fertig.name)
        if not fertig.exists():
            daneben = fertig.with_suffix(".neu")
            daneben.write_bytes(mache())
            daneben.replace(fertig)
        return fertig.read_bytes()

    def räume_auf(self):
        for datei in self.ordner.iterdir():
            if datei.name not in self.gebraucht:
                datei.unlink()
