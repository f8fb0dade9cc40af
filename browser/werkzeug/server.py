#!/usr/bin/python3
"""Ein kleiner Server zum Ausprobieren der Seite: server.py ORDNER [PORT]. Jeder andere, der Dateien ausliefert, geht auch."""
import functools
import http.server
import os
import sys

ARTEN = {".js": "text/javascript", ".wasm": "application/wasm", ".webp": "image/webp", ".woff2": "font/woff2",
         ".opus": "audio/ogg", ".m4a": "audio/mp4", ".webm": "video/webm", ".mp4": "video/mp4",
         ".webmanifest": "application/manifest+json", ".html": "text/html; charset=utf-8", ".css": "text/css"}


class Auskunft(http.server.SimpleHTTPRequestHandler):
    extensions_map = http.server.SimpleHTTPRequestHandler.extensions_map | ARTEN
    protocol_version = "HTTP/1.1"
    gepackt = False

    def translate_path(self, path):
        """Nimmt die gepackte Datei, wo es sie gibt und der Browser sie versteht."""
        self.gepackt = False
        ort = super().translate_path(path)
        if os.path.isdir(ort) and os.path.exists(os.path.join(ort, "index.html")):
            ort = os.path.join(ort, "index.html")
        self.art = self.guess_type(ort)
        self.gepackt = "br" in self.headers.get("Accept-Encoding", "") and os.path.exists(ort + ".br")
        return ort + ".br" if self.gepackt else ort

    def guess_type(self, path):
        return self.art if self.gepackt else super().guess_type(path)

    def end_headers(self):
        if self.gepackt:
            self.send_header("Content-Encoding", "br")
        self.send_header("Vary", "Accept-Encoding")
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    """Der Server auf diesem Rechner; Anschluss 0 nimmt einen freien."""

    def __init__(self, ordner, anschluss, auskunft=Auskunft):
        super().__init__(("127.0.0.1", anschluss), functools.partial(auskunft, directory=ordner))

    def handle_error(self, *_):
        """Ein Browser, der mittendrin auflegt, ist kein Fehler."""


def main():
    with Server(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 8000) as server:
        print(f"http://localhost:{server.server_port}/   Strg+C beendet.", flush=True)
        server.serve_forever()


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        pass
