#include "platform/Dateien.h"

#include "platform/Laufzeitfehler.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace velmo {

namespace fs = std::filesystem;

namespace {

bool gleichOhneSchreibung(const std::string &a, const std::string &b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
        return x == y || (x < 0x80 && y < 0x80 && std::tolower(x) == std::tolower(y));
    });
}

/// Eine schreibgeschützte Datei bleibt, wie sie ist: umbenennen ließe sich auch über sie hinweg, und dem Verwalter des
/// Rechners verwehrt das System nichts.
void prüfeSchreibrecht(const fs::path &pfad) {
    constexpr auto schreiben = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code fehler;
    for (const fs::path &teil : {pfad, pfad.parent_path()})
        if (fs::exists(teil, fehler) && (fs::status(teil, fehler).permissions() & schreiben) == fs::perms::none)
            throw Laufzeitfehler(Fehlerart::Datei);
    if (fs::is_directory(pfad, fehler)) throw Laufzeitfehler(Fehlerart::Datei);
    if (fs::exists(pfad, fehler) && !std::ofstream(pfad, std::ios::binary | std::ios::app))
        throw Laufzeitfehler(Fehlerart::Datei);
}

} // namespace

fs::path findePfad(const fs::path &gesucht) {
    std::error_code fehler;
    if (fs::exists(gesucht, fehler)) return gesucht;
    fs::path gefunden;
    for (const fs::path &teil : gesucht) {
        if (fs::exists(gefunden / teil, fehler)) {
            gefunden /= teil;
            continue;
        }
        const auto ordner = fs::directory_iterator(gefunden.empty() ? "." : gefunden, fehler);
        const auto hier = std::find_if(begin(ordner), end(ordner), [&](const fs::directory_entry &e) {
            return gleichOhneSchreibung(e.path().filename().string(), teil.string());
        });
        if (hier == end(ordner)) return gesucht;
        gefunden /= hier->path().filename();
    }
    return gefunden;
}

std::string liesDatei(const fs::path &name) {
    const fs::path pfad = findePfad(name);
    std::error_code fehler;
    if (!fs::exists(pfad, fehler)) throw Laufzeitfehler::dateiFehlt();
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei || fs::is_directory(pfad, fehler)) throw Laufzeitfehler(Fehlerart::Datei);
    std::ostringstream bytes; // in Blöcken: der Film hat Megabytes
    bytes << datei.rdbuf();
    return std::move(bytes).str();
}

void schreibeDatei(const fs::path &name, const std::string &bytes) {
    const fs::path pfad = findePfad(name);
    std::error_code fehler;
    if (!pfad.parent_path().empty() && !fs::is_directory(pfad.parent_path(), fehler)) throw Laufzeitfehler::pfadFehlt();
    prüfeSchreibrecht(pfad);
    fs::path daneben = pfad;
    daneben += ".neu";
    std::ofstream datei(daneben, std::ios::binary | std::ios::trunc);
    datei << bytes;
    datei.close();
    if (datei) fs::rename(daneben, pfad, fehler);
    if (datei && !fehler) return;
    fs::remove(daneben, fehler);
    throw Laufzeitfehler(Fehlerart::Datei);
}

void löscheDatei(const fs::path &name) {
    const fs::path pfad = findePfad(name);
    std::error_code fehler;
    if (!fs::exists(pfad, fehler)) throw Laufzeitfehler::dateiFehlt();
    prüfeSchreibrecht(pfad);
    if (!fs::remove(pfad, fehler)) throw Laufzeitfehler(Fehlerart::Datei);
}

} // namespace velmo
