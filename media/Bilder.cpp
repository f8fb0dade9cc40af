#include "media/Bilder.h"

#include "platform/Zeichen.h"

namespace velmo {

namespace {

Picture bild(Programm &p, const std::string &stelle, const std::string &name) {
    const std::string datei = p.Bilder.datei(stelle);
    return datei.empty() ? Picture{} : Picture{name, datei};
}

template <class C> bool gibBild(Programm &p, const Form &form, Control &c) {
    auto *mitBild = dynamic_cast<C *>(&c);
    const std::string name = std::string(form.Name) + "/" + c.Name;
    if (mitBild) mitBild->Picture = bild(p, "formen/" + name, name);
    return mitBild;
}

/// Der eigene Mauszeiger und der Schatten liegen neben dem Bild ihres Elements.
Picture beiwerk(Programm &p, const Form &form, const Control &c, const char *was) {
    const std::string name = std::string(form.Name) + "/" + c.Name + was;
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
    for (Control *c : form.Controls()) {
        if (auto *sichtbar = dynamic_cast<VisualControl *>(c)) sichtbar->MouseIcon = beiwerk(p, form, *c, "Zeiger");
        if (auto *image = dynamic_cast<Image *>(c)) image->Schatten = beiwerk(p, form, *c, "Schatten");
    }
}

} // namespace velmo
