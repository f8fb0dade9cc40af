#pragma once
// Der Ordner der mitgelieferten Bilder: welche Datei an einer Stelle liegt, ohne Endung und gleich in welcher
// Schreibung.
#include <map>
#include <optional>
#include <string>

namespace velmo {

class Bilderordner {
  public:
    /// Gelesen wird der Ordner bei der ersten Frage.
    explicit Bilderordner(std::string ordner) : ordner(std::move(ordner)) {}
    /// Der Pfad der Datei an einer Stelle wie "wuerfel/204"; leer, wenn dort keine gewöhnliche liegt.
    std::string datei(const std::string &stelle);

  private:
    std::string ordner;
    std::optional<std::map<std::string, std::string>> dateien;
};

} // namespace velmo
