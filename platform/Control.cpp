#include "platform/Control.h"

#include "platform/Dateien.h"
#include "platform/Form.h"
#include "platform/Laufzeit.h"
#include "platform/Zeichen.h"

#include <algorithm>
#include <filesystem>

namespace velmo {

namespace {

std::vector<VisualControl *> &geschwister(VisualControl &c) { return c.behälter ? c.behälter->Kinder : c.form.Kinder; }

} // namespace

Behälter::Behälter(PictureBox &b) : form(b.form), feld(&b) {}

Control::Control(Behälter wo, const char *Name) : Name(Name), form(wo.form), behälter(wo.feld) {
    form.controls.push_back(this);
}

void Control::geändert() { form.geändert(); }

void Control::zähleAuf(const Namensempfänger &e) { e("Tag", zugang(Tag)); }

VisualControl::VisualControl(Behälter wo, const char *Name, Rechteck r)
    : Control(wo, Name), Left(*this, r.Left), Top(*this, r.Top), Width(*this, r.Width), Height(*this, r.Height) {
    geschwister(*this).push_back(this);
}

void VisualControl::nachVorn() {
    auto &alle = geschwister(*this);
    std::rotate(std::find(alle.begin(), alle.end(), this), std::find(alle.begin(), alle.end(), this) + 1, alle.end());
    geändert();
}

void VisualControl::nachHinten() {
    auto &alle = geschwister(*this);
    const auto hier = std::find(alle.begin(), alle.end(), this);
    std::rotate(alle.begin(), hier, hier + 1);
    geändert();
}

void VisualControl::zähleAuf(const Namensempfänger &e) {
    Control::zähleAuf(e);
    e("Left", zugang(Left));
    e("Top", zugang(Top));
    e("Width", zugang(Width));
    e("Height", zugang(Height));
    e("Visible", zugang(Visible));
    e("Enabled", zugang(Enabled));
    e("ToolTipText", zugang(ToolTipText));
    e("DragMode", zugang(DragMode));
    e("MouseIcon", zugang(MouseIcon));
}

Schriftelement::Schriftelement(Behälter wo, const char *Name, Rechteck r, std::string text)
    : VisualControl(wo, Name, r), beschriftung(*this, std::move(text)) {}

void Schriftelement::zähleAuf(const Namensempfänger &e) {
    VisualControl::zähleAuf(e);
    e("FontName", zugang(FontName));
    e("FontSize", zugang(FontSize));
    e("FontBold", zugang(FontBold));
    e("ForeColor", zugang(ForeColor));
}

void Label::zähleAuf(const Namensempfänger &e) {
    Schriftelement::zähleAuf(e);
    e("Alignment", zugang(Alignment));
    e("Caption", zugang(Caption));
}

void CommandButton::zähleAuf(const Namensempfänger &e) {
    Schriftelement::zähleAuf(e);
    e("Caption", zugang(Caption));
}

void SSCommand::zähleAuf(const Namensempfänger &e) {
    CommandButton::zähleAuf(e);
    e("Picture", zugang(Picture));
    e("Font3D", zugang(Font3D));
}

Image::Image(Behälter wo, const char *Name, Rechteck r) : VisualControl(wo, Name, r), entwurf(r) {}

// Bilder haben eine feste Zahl von Bildpunkten; der Entwurf hat 12 Twips je Bildpunkt.
double Image::natürlicheBreite() const { return entwurf.Width * form.laufzeit.Screen().TwipsPerPixelX / 12; }
double Image::natürlicheHöhe() const { return entwurf.Height * form.laufzeit.Screen().TwipsPerPixelY / 12; }

// Hinten und vorn bleibt er am Fuß des Bildes, zur Seite hin und nach hinten so lang, wie es hoch ist.
Rechteck Image::Schattenwurf() const {
    const double breit = natürlicheBreite() / entwurf.Width, hoch = natürlicheHöhe() / entwurf.Height;
    const double anteil = std::clamp(Height / natürlicheHöhe(), 0.0, 1.0);
    const Rechteck &s = Schattenort, &e = entwurf;
    const double links = (s.Left - e.Left) * breit, rechts = (s.Left + s.Width - e.Left - e.Width) * breit;
    const double vorn = (s.Top + s.Height - e.Top - e.Height) * hoch, tief = s.Height * hoch * anteil;
    const double fuß = Top + (Wächst ? natürlicheHöhe() : Height());
    return {Left + links, fuß + vorn - tief, natürlicheBreite() - links + rechts * anteil, tief};
}

double Image::Flugweg() const { return gebaren == Gebaren::Fliegt ? (entwurf.Top - Top) / entwurf.Height : 0; }

double Image::Drehung() const {
    constexpr double JeHöhe = -18; // Grad
    return JeHöhe * Flugweg();
}

double Image::Deckung() const {
    constexpr double Ganz = 0.4; // bis hierher deckt es ganz, nach einer vollen Höhe gar nicht mehr
    return std::clamp((1 - Flugweg()) / (1 - Ganz), 0.0, 1.0);
}

void Image::geändert() {
    Control::geändert();
    if (gestreckt == Stretch()) return;
    gestreckt = Stretch;
    if (gestreckt) return;
    Width = natürlicheBreite();
    Height = natürlicheHöhe();
}

void Image::zähleAuf(const Namensempfänger &e) {
    VisualControl::zähleAuf(e);
    e("Picture", zugang(Picture));
    e("BorderStyle", zugang(BorderStyle));
    e("Stretch", zugang(Stretch));
}

PictureBox::PictureBox(Behälter wo, const char *Name, Rechteck r)
    : Schriftelement(wo, Name, r), ScaleWidth(*this, r.Width), ScaleHeight(*this, r.Height) {}

void PictureBox::zähleAuf(const Namensempfänger &e) {
    Schriftelement::zähleAuf(e);
    e("Picture", zugang(Picture));
    e("BorderStyle", zugang(BorderStyle));
    e("ScaleWidth", zugang(ScaleWidth));
    e("ScaleHeight", zugang(ScaleHeight));
}

Shape::Shape(Behälter wo, const char *Name, Rechteck r, Gestalt gestalt)
    : VisualControl(wo, Name, r), gestalt(gestalt) {}

void Shape::zähleAuf(const Namensempfänger &e) {
    VisualControl::zähleAuf(e);
    e("BorderWidth", zugang(BorderWidth));
    e("BorderColor", zugang(BorderColor));
}

Line::Line(Behälter wo, const char *Name, double x1, double y1, double x2, double y2)
    : Control(wo, Name), x1(*this, x1), y1(*this, y1), x2(*this, x2), y2(*this, y2) {}

void Line::zähleAuf(const Namensempfänger &e) {
    Control::zähleAuf(e);
    e("x1", zugang(x1));
    e("y1", zugang(y1));
    e("x2", zugang(x2));
    e("y2", zugang(y2));
    e("BorderWidth", zugang(BorderWidth));
    e("BorderColor", zugang(BorderColor));
    e("Visible", zugang(Visible));
}

TextBox::TextBox(Behälter wo, const char *Name, Rechteck r, std::string text, bool MultiLine)
    : Schriftelement(wo, Name, r, std::move(text)), MultiLine(MultiLine) {}

void TextBox::zähleAuf(const Namensempfänger &e) {
    Schriftelement::zähleAuf(e);
    e("Text", zugang(Text));
}

Listenelement::Listenelement(Behälter wo, const char *Name, Rechteck r, std::vector<std::string> zeilen)
    : Schriftelement(wo, Name, r), zeilen(std::move(zeilen)) {}

std::string Listenelement::Text() const { return ListIndex < 0 ? "" : zeilen[static_cast<std::size_t>(ListIndex)]; }

void Listenelement::wähleText(const std::string &text) {
    const auto zeile = std::find(zeilen.begin(), zeilen.end(), text);
    if (zeile == zeilen.end()) throw Laufzeitfehler(Fehlerart::Argument);
    ListIndex = static_cast<double>(zeile - zeilen.begin());
}

void Listenelement::geändert() {
    if (ListIndex < -1 || ListIndex >= ListCount()) throw Laufzeitfehler(Fehlerart::Argument);
    Control::geändert();
}

void Listenelement::zähleAuf(const Namensempfänger &e) {
    Schriftelement::zähleAuf(e);
    e("ListIndex", zugang(ListIndex));
    e("ListCount", {[this] { return Wert(double(ListCount())); }, {}});
    e("Text", {[this] { return Wert(Text()); }, [this](const Wert &w) { wähleText(alsText(w)); }});
    for (int i = 0; i < ListCount(); ++i)
        e("List(" + std::to_string(i) + ")", {[this, i] { return Wert(zeilen[static_cast<std::size_t>(i)]); }, {}});
}

FileListBox::FileListBox(Behälter wo, const char *Name, Rechteck r, const char *Muster)
    : Listenelement(wo, Name, r), endung(klein(Muster + 1)) {}

void FileListBox::setzePath(const std::string &neu) {
    std::error_code fehler;
    if (!std::filesystem::is_directory(neu, fehler)) throw Laufzeitfehler::pfadFehlt();
    ordner = neu;
    Refresh();
}

void FileListBox::Refresh() {
    ListIndex = -1;
    zeilen.clear();
    for (const std::string &name : Dateinamen(ordner))
        if (klein(name).ends_with(endung)) zeilen.push_back(name);
    std::sort(zeilen.begin(), zeilen.end());
    geändert();
}

void VScrollBar::geändert() {
    Control::geändert();
    if (gemeldet == Value()) return;
    if (Value < 0 || Value > 1) throw Laufzeitfehler(Fehlerart::Argument);
    gemeldet = Value;
    if (Change) Change();
}

void VScrollBar::zähleAuf(const Namensempfänger &e) {
    VisualControl::zähleAuf(e);
    e("Value", zugang(Value));
}

Timer::Timer(Behälter wo, const char *Name, double interval, bool an, Handler tick)
    : Control(wo, Name), Interval(*this, interval), Enabled(*this, an), Tick(std::move(tick)),
      nummer(form.laufzeit.nächsteNummer()) {
    Timer::geändert();
}

void Timer::geändert() {
    const double abstand = läuft() ? Interval : 0;
    if (abstand == geplanterAbstand) return;
    geplanterAbstand = abstand;
    if (abstand > 0)
        form.laufzeit.plane(*this);
    else
        form.laufzeit.streiche(*this);
}

void Timer::zähleAuf(const Namensempfänger &e) {
    Control::zähleAuf(e);
    e("Interval", zugang(Interval));
    e("Enabled", zugang(Enabled));
}

MMControl::MMControl(Behälter wo, const char *Name) : Control(wo, Name) {}
MMControl::~MMControl() { form.laufzeit.oberfläche.vergiss(*this); }

void MMControl::Command(Befehl befehl) {
    const bool warten = Wait;
    Wait = false;
    form.laufzeit.oberfläche.ton(*this, befehl, warten);
}

long MMControl::Position() { return form.laufzeit.oberfläche.Position(*this); }
long MMControl::Length() { return form.laufzeit.oberfläche.Length(*this); }

void MMControl::zähleAuf(const Namensempfänger &e) {
    Control::zähleAuf(e);
    e("FileName", zugang(FileName));
    e("Position", {[this] { return Wert(double(Position())); }, {}});
    e("Length", {[this] { return Wert(double(Length())); }, {}});
}

Animation::~Animation() { form.laufzeit.oberfläche.vergiss(*this); }
void Animation::Open(const std::string &Datei) { form.laufzeit.oberfläche.öffneFilm(*this, Datei); }
void Animation::Play() { form.laufzeit.oberfläche.spieleFilm(*this); }

} // namespace velmo
