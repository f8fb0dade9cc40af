#include "bench/Namen.h"

#include "bench/Sammelnamen.h"
#include "bench/Zerlegung.h"
#include "platform/Zeichen.h"

#include <algorithm>

namespace velmo {

namespace {

Zugang nurLesbar(std::function<Wert()> lies) { return {std::move(lies), {}}; }

/// Ein Pfad gilt vom Programmordner aus und mit /.
Zugang pfadzugang(Zugang voll, const std::string &ordner) {
    auto lies = [lies = voll.lies, ordner]() -> Wert {
        std::string pfad = alsText(lies());
        std::replace(pfad.begin(), pfad.end(), '\\', '/');
        return klein(pfad).starts_with(klein(ordner) + "/") ? pfad.substr(ordner.size() + 1) : pfad;
    };
    auto setze = [setze = voll.setze, ordner](const Wert &w) {
        const std::string pfad = alsText(w);
        setze(pfad.empty() ? pfad : ordner + "/" + pfad);
    };
    return {lies, setze};
}

/// Der Zugang, den das Aufgezählte unter dem Namen hat.
template <class T> Zugang aufgezählt(T &von, const std::string &gesucht, const std::string &voll) {
    Zugang zugang;
    von.zähleAuf([&](const std::string &name, Zugang z) {
        if (name == gesucht) zugang = std::move(z);
    });
    if (!zugang.lies) throw Schreibfehler("unbekannter Name " + voll);
    return zugang;
}

/// "Zeichnung(N)": das N-te Quadrat, das die Form über sich malt, als "LINKS OBEN BREITE HÖHE RRGGBB"; leer ohne.
Zugang quadrat(const Form &form, const std::string &Name) {
    const auto stelle = static_cast<std::size_t>(liesGanzzahl({Name.substr(10, Name.size() - 11)})) - 1;
    return nurLesbar([&form, stelle]() -> Wert {
        const auto *bild = form.Zeichnung();
        if (!bild || stelle >= bild->size()) return Leer{};
        const auto &[ort, farbe] = (*bild)[stelle];
        std::string text;
        for (const double maß : {ort.Left, ort.Top, ort.Width, ort.Height})
            text += Zahltext(maß) + " ";
        return text + alsText(alsWert(farbe));
    });
}

} // namespace

Namen::Namen(Programm &programm, Prüffläche &fläche) : p(programm) {
    p.Zustand.zähleAuf([this](const std::string &name, Zugang z) { feste[name] = std::move(z); });
    sammle(feste);
    feste["zeit"] = nurLesbar([&fläche] { return double(fläche.Uhr); });
    feste["Screen.Width"] = nurLesbar([this] { return p.Screen().Width; });
    feste["Screen.Height"] = nurLesbar([this] { return p.Screen().Height; });
    feste["Screen.TwipsPerPixelX"] = nurLesbar([this] { return p.Screen().TwipsPerPixelX; });
    feste["Screen.TwipsPerPixelY"] = nurLesbar([this] { return p.Screen().TwipsPerPixelY; });
    feste["Screen.Mode"] = nurLesbar([&fläche]() -> Wert {
        if (!fläche.Modus) return Leer{};
        return std::to_string(fläche.Modus->Breite) + "x" + std::to_string(fläche.Modus->Höhe);
    });
}

Zugang Namen::finde(const std::string &Name) {
    if (const auto hier = feste.find(Name); hier != feste.end()) return hier->second;
    if (Name.starts_with("Region(")) return region(Name);
    const auto punkt = Name.substr(0, Name.find('(')).find('.');
    if (punkt == std::string::npos) throw Schreibfehler("unbekannter Name " + Name);
    return eigenschaft(Name.substr(0, punkt), Name.substr(punkt + 1));
}

Zugang Namen::eigenschaft(const std::string &Form, const std::string &Rest) {
    const Formularname benannt = formular(Form);
    const bool geladen = p.geladene(benannt);
    if (Rest == "Loaded") return nurLesbar([this, benannt] { return p.geladene(benannt) != nullptr; });
    if (Rest == "Visible" && !geladen) return nurLesbar([] { return false; });
    if (Rest.starts_with("Zeichnung(")) return quadrat(form(Form), Rest);
    const auto punkt = Rest.substr(0, Rest.find('(')).find('.');
    if (punkt == std::string::npos) return aufgezählt(form(Form), Rest, Form + "." + Rest);
    const std::string name = Form + "." + Rest.substr(0, punkt), eigenschaft = Rest.substr(punkt + 1);
    Zugang zugang = aufgezählt(control(name), eigenschaft, name + "." + eigenschaft);
    return eigenschaft == "FileName" ? pfadzugang(std::move(zugang), p.Ordner) : zugang;
}

/// "Region(Form,X,Y)": ohne Region gehört die ganze Form dazu.
Zugang Namen::region(const std::string &Name) {
    const auto komma1 = Name.find(','), komma2 = Name.find(',', komma1 + 1);
    if (komma1 == std::string::npos || komma2 == std::string::npos || Name.back() != ')')
        throw Schreibfehler("es heißt Region(FORM,X,Y)");
    Form &f = form(Name.substr(7, komma1 - 7));
    const int x = liesGanzzahl({Name.substr(komma1 + 1, komma2 - komma1 - 1)});
    const int y = liesGanzzahl({Name.substr(komma2 + 1, Name.size() - komma2 - 2)});
    return nurLesbar([this, &f, x, y] {
        const Bildschirm s = p.Screen();
        const bool imRand =
            x >= 0 && y >= 0 && (x + 0.5) * s.TwipsPerPixelX < f.Width && (y + 0.5) * s.TwipsPerPixelY < f.Height;
        return imRand && (!f.region() || f.region()->enthält(x, y));
    });
}

Formularname Namen::formular(const std::string &Name) const {
    const auto formular = p.formular(Name);
    if (!formular) throw Schreibfehler("unbekannte Form " + Name);
    return *formular;
}

Form &Namen::form(const std::string &Name) {
    Form *form = p.geladene(formular(Name));
    if (!form) throw Schreibfehler("die Form " + Name + " ist nicht geladen");
    return *form;
}

Control &Namen::control(const std::string &Name) {
    const auto punkt = Name.find('.');
    if (punkt == std::string::npos) throw Schreibfehler("unbekanntes Steuerelement " + Name);
    Control *c = form(Name.substr(0, punkt)).control(Name.substr(punkt + 1));
    if (!c) throw Schreibfehler("unbekanntes Steuerelement " + Name);
    return *c;
}

void Namen::falscheArt(const std::string &Name) { throw Schreibfehler(Name + " ist ein Steuerelement anderer Art"); }

} // namespace velmo
