// Charakterdateien, die keine Szene schreiben mag: eine Zeile von einem Megabyte, beliebige Bytes, lange Namen.
#include "shell/Charakterdatei.h"

#include "bench/Programmordner.h"
#include "bench/Prüfung.h"
#include "platform/Laufzeitfehler.h"

#include <filesystem>
#include <optional>
#include <random>

using namespace velmo;

namespace {

/// Was das Lesen der Bytes ergibt; ohne Wert ein Laufzeitfehler.
std::optional<Charakter> lies(const Programmordner &ordner, const std::string &bytes) {
    ordner.schreibe("probe.cha", bytes);
    try {
        return liesCharakter((std::filesystem::path(ordner.Pfad()) / "probe.cha").string());
    } catch (const Laufzeitfehler &) {
        return std::nullopt;
    }
}

bool verweigert(const Programmordner &ordner, const std::string &name) {
    try {
        schreibeCharakter(std::string(ordner.Pfad()) + "/" + name + ".cha", {name, "", "Rot", 141});
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Art() == Fehlerart::Datei;
    }
    return false;
}

} // namespace

int main() {
    Prüfung t;
    const Programmordner ordner;
    const std::string megabyte(1 << 20, 'x');
    t.gilt("ein Megabyte in einer Zeile", !lies(ordner, megabyte));
    t.gilt("ein Name von einem Megabyte", !lies(ordner, megabyte + "\r\n\r\nRot\r\n141\r\n"));
    t.gilt("ein Megabyte nach der vierten Zeile stört nicht",
           lies(ordner, "A\r\nB\r\nRot\r\n141\r\n" + megabyte).has_value());
    t.gilt("die letzte Zeile braucht kein Ende", lies(ordner, "A\r\nB\r\nRot\r\n 141 ").has_value());
    t.gilt("leere Datei", !lies(ordner, ""));

    // Beliebige Bytes geben einen Charakter oder einen Laufzeitfehler, nichts sonst; die Saat ist fest.
    std::minstd_rand zufall(7);
    int gelesen = 0;
    for (int i = 0; i < 300; ++i) {
        std::string bytes;
        for (unsigned n = zufall() % 64; n > 0; --n)
            bytes += zufall() % 3 == 0 ? "\r\n" : std::string(1, static_cast<char>(zufall()));
        gelesen += lies(ordner, bytes + (i % 2 ? "\r\n9\r\n9\r\n9\r\n9" : "")).has_value();
    }
    t.gilt("manche lassen sich lesen, andere nicht", gelesen > 0 && gelesen < 300);

    t.gilt("ein Name mit / führt nicht hinaus", verweigert(ordner, "../außen"));
    t.gilt("ein Name mit \\ auch nicht", verweigert(ordner, "a\\b"));
    t.gilt("ein zu langer Name", verweigert(ordner, std::string(5000, 'n')));
    return t.ende();
}
