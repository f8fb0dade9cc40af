#include "bench/Programmordner.h"

#include "platform/Dateien.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace velmo {

namespace fs = std::filesystem;

namespace {

constexpr auto Schreibrechte = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

std::string neuerOrdner() {
    std::string muster = (fs::temp_directory_path() / "velmo-XXXXXX").string();
    if (!mkdtemp(muster.data())) throw std::runtime_error("kein Ordner " + muster);
    return muster;
}

/// Der Ordner, in dem dieses Programm liegt; das Mitgelieferte liegt daneben.
const fs::path &auslieferung() {
    static const fs::path ordner = fs::read_symlink("/proc/self/exe").parent_path();
    return ordner;
}

/// Echte Ordner, die Dateien als Verweise: wer eine ersetzt, lässt die ausgelieferte stehen.
void spiegle(const fs::path &von, const fs::path &nach) {
    fs::create_directory(nach);
    for (const auto &eintrag : fs::directory_iterator(von)) {
        const fs::path ziel = nach / eintrag.path().filename();
        if (eintrag.is_directory())
            spiegle(eintrag.path(), ziel);
        else
            fs::create_symlink(eintrag.path(), ziel);
    }
}

} // namespace

Programmordner::Programmordner() : wurzel(neuerOrdner()) {
    if (fs::exists(auslieferung() / "bilder"))
        spiegle(fs::canonical(auslieferung() / "bilder"), fs::path(wurzel) / "bilder");
    if (fs::exists(auslieferung() / "ani.hvi"))
        fs::create_symlink(fs::canonical(auslieferung() / "ani.hvi"), fs::path(wurzel) / "ani.hvi");
}

Programmordner::~Programmordner() {
    std::error_code fehler;
    fs::permissions(wurzel, fs::perms::owner_all, fs::perm_options::add, fehler);
    for (const auto &eintrag : fs::recursive_directory_iterator(wurzel, fehler))
        if (eintrag.is_directory(fehler) && !eintrag.is_symlink(fehler))
            fs::permissions(eintrag.path(), fs::perms::owner_all, fs::perm_options::add, fehler);
    fs::remove_all(wurzel, fehler);
}

fs::path Programmordner::ort(const std::string &pfad) const {
    const fs::path relativ = fs::path(pfad).lexically_normal();
    if (pfad.empty() || relativ.is_absolute() || *relativ.begin() == "..")
        throw std::invalid_argument("der Pfad liegt nicht im Programmordner");
    fs::path hier = wurzel;
    for (const fs::path &teil : relativ)
        if (!teil.empty()) hier = findePfad(hier / teil);
    return hier;
}

void Programmordner::schreibe(const std::string &pfad, const std::string &bytes) const {
    const fs::path ziel = ort(pfad);
    fs::create_directories(ziel.parent_path());
    fs::remove(ziel);
    std::ofstream(ziel, std::ios::binary) << bytes;
}

void Programmordner::legeOrdnerAn(const std::string &pfad) const { fs::create_directories(ort(pfad)); }

void Programmordner::lösche(const std::string &pfad) const { fs::remove_all(ort(pfad)); }

void Programmordner::sperre(const std::string &pfad) const {
    const fs::path ziel = ort(pfad);
    if (!fs::exists(ziel)) throw std::invalid_argument("gibt es nicht");
    // Die Rechte eines Verweises wären die der ausgelieferten Datei.
    if (fs::is_symlink(ziel)) schreibe(pfad, liesDatei(ziel));
    fs::permissions(ziel, Schreibrechte, fs::perm_options::remove);
}

} // namespace velmo
