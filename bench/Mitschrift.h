#pragma once
// Was in einem langen Lauf geschah, Ereignis für Ereignis: als Signatur, als Protokoll und im Vergleich mit einem
// fremden.
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>

namespace velmo {

/// Der Lauf weicht von dem fremden Protokoll ab; der Text nennt Spiel und Ereignis.
struct Abweichung : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Mitschrift {
  public:
    /// Schreibt das Protokoll in die Datei; gibt es sie schon, vergleicht er mit ihr und wirft Abweichung.
    void protokolliere(const std::string &datei);
    void beginneSpiel(int nummer);
    void ereignis(const std::string &zeile);
    /// Der Lauf ist zu Ende: ein fremdes Protokoll derselben Spiele auch. Der Text sagt, was verglichen oder
    /// geschrieben wurde.
    std::string schließe();

    /// FNV-1a mit 64 Bit über alle Zeilen, jede mit ihrem Zeilenende, in UTF-8.
    std::string Signatur() const;

  private:
    void nimm(const std::string &zeile);
    [[noreturn]] void weicheAb(const std::string &dort, const std::string &hier) const;

    std::uint64_t summe = 0xcbf29ce484222325;
    int spiel = 0, nummer = 0; // das Ereignis im Spiel
    std::string davor;
    std::string pfad;
    std::ofstream ausgabe;
    std::ifstream fremdes;
};

} // namespace velmo
