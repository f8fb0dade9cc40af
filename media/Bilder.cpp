#include "media/Bilder.h"

#include "platform/Dateien.h"

#include <algorithm>
#include <filesystem>

namespace velmo {

namespace {

std::string gewandelt(std::string text, char von, char bis, int um) {
    for (char &c : text)
        if (c >= von && c <= bis) c = static_cast<char>(c + um);
    return text;
}
std::string groß(const std::string &text) { return gewandelt(text, 'a', 'z', 'A' - 'a'); }
std::string klein(const std::string &text) { return gewandelt(text, 'A', 'Z', 'a' - 'A'); }

/// Die Dateien unter bilder/ bei ihrem Pfad ohne Endung, klein geschrieben: "wuerfel/204".
std::map<std::string, std::string> verzeichnis(const std::string &ordner) {
    std::map<std::string, std::string> dateien;
    std::error_code fehler;
    const std::filesystem::path wurzel = findePfad(std::filesystem::path(ordner) / "bilder");
    for (const auto &eintrag : std::filesystem::recursive_directory_iterator(wurzel, fehler)) {
        if (!eintrag.is_regular_file(fehler)) continue;
        const auto pfad = eintrag.path().lexically_relative(wurzel).replace_extension();
        dateien[klein(pfad.generic_string())] = eintrag.path().string();
    }
    return dateien;
}

Picture bild(Programm &p, const std::string &stelle, const std::string &name) {
    if (!p.Bilddateien) p.Bilddateien = verzeichnis(p.Ordner);
    const auto datei = p.Bilddateien->find(klein(stelle));
    return datei == p.Bilddateien->end() ? Picture{} : Picture{name, datei->second};
}

template <class C> bool gibBild(Programm &p, const Form &form, Control &c) {
    auto *mitBild = dynamic_cast<C *>(&c);
    const std::string name = std::string(form.Name) + "/" + c.Name;
    if (mitBild) mitBild->Picture = bild(p, "formen/" + name, name);
    return mitBild;
}

/// Der eigene Mauszeiger liegt neben dem Bild seines Elements.
Picture zeiger(Programm &p, const Form &form, const Control &c) {
    const std::string name = std::string(form.Name) + "/" + c.Name + "Zeiger";
    return bild(p, "formen/" + name, name);
}

} // namespace

Picture Bildladen(Programm &p, int Id, const std::string &Typ) {
    const std::string nummer = std::to_string(Id);
    return bild(p, Typ + "/" + nummer, groß(Typ) + " " + nummer);
}

void Entwurfsbilder(Programm &p, Form &form) {
    const std::string name = form.Name;
    form.Picture = bild(p, "formen/" + name + "/" + name, name);
    form.Icon = bild(p, "formen/velmo", "velmo");
    for (Control *c : form.Controls())
        gibBild<Image>(p, form, *c) || gibBild<PictureBox>(p, form, *c) || gibBild<SSCommand>(p, form, *c);
    for (Control *c : form.Controls())
        if (auto *sichtbar = dynamic_cast<VisualControl *>(c)) sichtbar->MouseIcon = zeiger(p, form, *c);
}

} // namespace velmo
