#include "platform/Bilderordner.h"

#include "platform/Dateien.h"
#include "platform/Zeichen.h"

#include <filesystem>

namespace velmo {

namespace {

/// Die gewöhnlichen Dateien bei ihrem Pfad ohne Endung, klein geschrieben. Was sich nicht lesen lässt, fehlt.
std::map<std::string, std::string> verzeichnis(const std::filesystem::path &wurzel) {
    namespace fs = std::filesystem;
    std::map<std::string, std::string> dateien;
    std::error_code fehler;
    fs::recursive_directory_iterator hier(wurzel, fs::directory_options::skip_permission_denied, fehler);
    for (; !fehler && hier != fs::recursive_directory_iterator(); hier.increment(fehler)) {
        std::error_code unlesbar;
        if (!hier->is_regular_file(unlesbar)) continue;
        const fs::path stelle = hier->path().lexically_relative(wurzel).replace_extension();
        dateien[klein(stelle.generic_string())] = hier->path().string();
    }
    return dateien;
}

} // namespace

std::string Bilderordner::datei(const std::string &stelle) {
    if (!dateien) dateien = verzeichnis(findePfad(ordner));
    const auto hier = dateien->find(klein(stelle));
    return hier == dateien->end() ? "" : hier->second;
}

} // namespace velmo
