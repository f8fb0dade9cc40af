#include "platform/Dateien.h"

#include "platform/Laufzeitfehler.h"
#include "platform/Zeichen.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace velmo {

namespace fs = std::filesystem;

namespace {

/// Klein geschrieben, auch Umlaute und Akzente: in UTF-8 das zweite Byte nach C3, außer dem Malzeichen.
std::string kleinGeschrieben(std::string text) {
    text = klein(std::move(text));
    for (std::size_t i = 1; i < text.size(); ++i) {
        const auto zweites = static_cast<unsigned char>(text[i]);
        const bool groß = zweites >= 0x80 && zweites <= 0x9E && zweites != 0x97;
        if (text[i - 1] == '\xC3' && groß) text[i] = static_cast<char>(zweites + 0x20);
    }
    return text;
}

bool gleichOhneSchreibung(const std::string &a, const std::string &b) {
    return kleinGeschrieben(a) == kleinGeschrieben(b);
}

bool istOrdner(const fs::path &pfad) {
    std::error_code fehler;
    return fs::is_directory(pfad, fehler);
}

/// Die Einträge des Ordners. Was sich nicht lesen lässt, fehlt.
std::vector<fs::path> Einträge(const fs::path &ordner) {
    std::vector<fs::path> alle;
    std::error_code fehler;
    for (fs::directory_iterator hier(ordner, fehler); !fehler && hier != fs::directory_iterator();
         hier.increment(fehler))
        alle.push_back(hier->path());
    return alle;
}

/// Wirft, wenn dort weder eine gewöhnliche Datei noch ein Ordner liegt.
void brauche(const fs::path &pfad) {
    if (!istDatei(pfad) && !istOrdner(pfad)) throw Laufzeitfehler::dateiFehlt();
}

/// Eine schreibgeschützte Datei bleibt, wie sie ist: umbenennen ließe sich auch über sie hinweg, und dem Verwalter des
/// Rechners verwehrt das System nichts.
void prüfeSchreibrecht(const fs::path &pfad) {
    constexpr auto schreiben = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code fehler;
    for (const fs::path &teil : {pfad, pfad.parent_path()})
        if (fs::exists(teil, fehler) && (fs::status(teil, fehler).permissions() & schreiben) == fs::perms::none)
            throw Laufzeitfehler(Fehlerart::Datei);
    if (istOrdner(pfad)) throw Laufzeitfehler(Fehlerart::Datei);
    if (istDatei(pfad) && !std::ofstream(pfad, std::ios::binary | std::ios::app))
        throw Laufzeitfehler(Fehlerart::Datei);
}

} // namespace

bool istDatei(const fs::path &pfad) {
    std::error_code fehler;
    return fs::is_regular_file(pfad, fehler);
}

std::vector<std::string> Dateinamen(const fs::path &ordner) {
    std::vector<std::string> namen;
    for (const fs::path &eintrag : Einträge(ordner))
        if (istDatei(eintrag)) namen.push_back(eintrag.filename().string());
    return namen;
}

fs::path findePfad(const fs::path &gesucht) {
    std::error_code fehler;
    if (fs::exists(gesucht, fehler)) return gesucht;
    fs::path gefunden;
    for (const fs::path &teil : gesucht) {
        if (fs::exists(gefunden / teil, fehler)) {
            gefunden /= teil;
            continue;
        }
        const std::vector<fs::path> alle = Einträge(gefunden.empty() ? "." : gefunden);
        const auto hier = std::find_if(alle.begin(), alle.end(), [&](const fs::path &e) {
            return gleichOhneSchreibung(e.filename().string(), teil.string());
        });
        if (hier == alle.end()) return gesucht;
        gefunden /= hier->filename();
    }
    return gefunden;
}

std::string liesDatei(const fs::path &name) {
    const fs::path pfad = findePfad(name);
    brauche(pfad);
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei || istOrdner(pfad)) throw Laufzeitfehler(Fehlerart::Datei);
    std::ostringstream bytes; // in Blöcken: der Film hat Megabytes
    bytes << datei.rdbuf();
    return std::move(bytes).str();
}

void schreibeDatei(const fs::path &name, const std::string &bytes) {
    const fs::path pfad = findePfad(name);
    if (!pfad.parent_path().empty() && !istOrdner(pfad.parent_path())) throw Laufzeitfehler::pfadFehlt();
    prüfeSchreibrecht(pfad);
    fs::path daneben = pfad;
    daneben += ".neu";
    std::error_code fehler;
    if (!istOrdner(daneben)) fs::remove(daneben, fehler); // was noch liegt, muss keine Datei sein
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
    brauche(pfad);
    prüfeSchreibrecht(pfad);
    std::error_code fehler;
    if (!fs::remove(pfad, fehler)) throw Laufzeitfehler(Fehlerart::Datei);
}

} // namespace velmo
