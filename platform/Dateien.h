#pragma once
// Dateien des Programms: Pfade gelten in jeder Groß- und Kleinschreibung; ersetzt wird durch Danebenschreiben und
// Umbenennen. Fehler sind Laufzeitfehler der Art Datei.
#include <filesystem>
#include <string>

namespace velmo {

/// Der vorhandene Pfad in der Schreibung, die er auf der Platte hat; sonst der Pfad, wie er gegeben ist.
std::filesystem::path findePfad(const std::filesystem::path &);
std::string liesDatei(const std::filesystem::path &);
/// Ersetzt die Datei im Ganzen; misslingt das, steht die alte noch.
void schreibeDatei(const std::filesystem::path &, const std::string &bytes);
/// Entfernt die Datei; ein Ordner bleibt stehen.
void löscheDatei(const std::filesystem::path &);

} // namespace velmo
