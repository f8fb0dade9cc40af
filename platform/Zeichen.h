#pragma once
// Texte sind innen UTF-8; Längen und Schnitte zählen Zeichen. Dateien sind Windows-1252.
#include <string>
#include <string_view>

namespace velmo {

int Zeichenzahl(std::string_view text);
/// Die ersten n Zeichen; n < 0 ist ein Laufzeitfehler (Argument).
std::string Links(std::string_view text, int n);
/// Die letzten n Zeichen; n < 0 ist ein Laufzeitfehler (Argument).
std::string Rechts(std::string_view text, int n);

/// Die Buchstaben A bis Z klein oder groß; alle anderen Zeichen bleiben.
std::string klein(std::string text);
std::string groß(std::string text);

std::string ausWindows1252(std::string_view bytes);
/// Zeichen, die es dort nicht gibt, werden "?".
std::string nachWindows1252(std::string_view text);

} // namespace velmo
