#pragma once
// Dateien des Programms: Pfade gelten in jeder Groß- und Kleinschreibung; ersetzt wird durch Danebenschreiben und
// Umbenennen. Was weder gewöhnliche Datei noch Ordner ist, auch ein Verweis ins Leere oder auf sich selbst, fehlt.
// Fehler sind Laufzeitfehler der Art Datei.
#include <filesystem>
#include <string>
#include <vector>

namespace velmo {

/// Der vorhandene Pfad in der Schreibung, die er auf der Platte hat; sonst der Pfad, wie er gegeben ist.
std::filesystem::path findePfad(const std::filesystem::path &);
/// Ob dort, auch über Verweise, eine gewöhnliche Datei liegt.
bool istDatei(const std::filesystem::path &);
/// Die Namen der gewöhnlichen Dateien im Ordner, in keiner Folge; was sich nicht lesen lässt, fehlt.
std::vector<std::string> Dateinamen(const std::filesystem::path &ordner);
std::string liesDatei(const std::filesystem::path &);
/// Ersetzt die Datei im Ganzen; misslingt das, steht die alte noch.
void schreibeDatei(const std::filesystem::path &, const std::string &bytes);
/// Entfernt die Datei; ein Ordner bleibt stehen.
void löscheDatei(const std::filesystem::path &);

} // namespace velmo
