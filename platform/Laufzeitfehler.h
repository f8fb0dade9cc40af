#pragma once
// Laufzeitfehler: was das Programm beendet, wenn niemand es fängt. Keine Spielroutine fängt sie, außer denen, deren
// Regel das Fangen von Dateifehlern verlangt.
#include <exception>
#include <string>

namespace velmo {

enum class Fehlerart { Argument, Überlauf, Index, Typ, Datei };

class Laufzeitfehler : public std::exception {
  public:
    /// Ein Fehler der Art mit ihrer üblichen Nummer und Beschreibung; Datei heißt hier "Fehler beim Zugriff auf
    /// Pfad/Datei".
    explicit Laufzeitfehler(Fehlerart art);
    static Laufzeitfehler dateiFehlt();
    static Laufzeitfehler dateiende();
    static Laufzeitfehler pfadFehlt();

    Fehlerart Art() const { return art; }
    /// Die Beschreibung des Systems, etwa "Überlauf".
    const std::string &Beschreibung() const { return beschreibung; }
    /// Der Bericht am Programmende: "Laufzeitfehler '6': Überlauf".
    const char *what() const noexcept override { return bericht.c_str(); }

  private:
    Laufzeitfehler(Fehlerart art, int nummer, std::string beschreibung);

    Fehlerart art;
    std::string beschreibung;
    std::string bericht;
};

/// Das Programm hat sich selbst beendet (Anweisung Ende); wird bis ganz oben durchgereicht.
struct Programmende {};

} // namespace velmo
