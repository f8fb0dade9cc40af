// Keine Schrift ist abgeschnitten oder verdeckt: jede Beschriftung und jeder Satz des Programms, mit den längsten
// Namen, in der Schrift des Fensters an seinem Platz gesetzt, bei jeder Vergrößerung. Die Sätze sammelt ein Mitspieler,
// der ganze Spiele spielt; was er nicht zu hören bekam, steht in den Quellen.
#include "bench/Mitspieler.h"
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "include/Formulare.h"
#include "shell/Formtafel.h"
#include "window/Bedienelemente.h"
#include "window/Gestaltung.h"
#include "window/Liste.h"
#include "window/Malen.h"
#include "window/Schrift.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QListWidget>
#include <QStyle>
#include <QStyleOption>
#include <QTextLayout>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

using namespace velmo;

namespace {

constexpr double Vergrößerungen[] = {0.8, 1, 1.5, 2, 3};
constexpr const char *LängsterName = "Wummwummwumme"; // 13 Buchstaben, breite
constexpr int Spiele = 12;

/// Ein Text an seinem Platz, und was auf derselben Form davor liegt.
struct Satz {
    std::string wo;
    Stück stück;
    std::vector<std::pair<std::string, Rechteck>> davor;
    double formbreite, formhöhe;
    std::optional<Region> region;
};

class Sammlung {
  public:
    void nimm(Programm &p) {
        for (const Form *f : p.Formen())
            if (f->Visible && stände[f->Nummer] != f->Stand()) {
                stände[f->Nummer] = f->Stand();
                nimm(*f);
            }
    }

    void nimm(const Form &f) {
        const Zeichenliste liste = zeichenliste(f);
        for (auto s = liste.begin(); s != liste.end(); ++s) {
            if (!s->sichtbar || s->text.empty()) continue;
            const std::string wo = std::string(f.Name) + "." + s->control->Name;
            texte.insert(s->text);
            if (!gesehen.insert({wo, s->text, s->Width, s->schriftgrad}).second) continue;
            Satz satz{wo, *s, {}, f.Width, f.Height, f.region()};
            for (auto d = s + 1; d != liste.end(); ++d)
                if (d->sichtbar && (d->sorte == Sorte::Knopf || d->sorte == Sorte::Bedienelement))
                    satz.davor.emplace_back(d->control->Name, d->ort());
            sätze.push_back(std::move(satz));
        }
    }

    /// Setzt den Text, den niemand gehört hat, auf die Statuszeile und in die Blase.
    void trageNach(const std::string &text) {
        for (const char *wo : {"Form1.Label1", "Sprech.Label1"}) {
            Satz satz = *std::ranges::find(sätze, wo, &Satz::wo);
            satz.stück.text = text;
            sätze.push_back(std::move(satz));
        }
    }

    void nimmText(const std::string &text) { texte.insert(text); }

    std::vector<Satz> sätze;
    std::set<std::string> texte;

  private:
    std::map<std::uint64_t, std::uint64_t> stände;
    std::set<std::tuple<std::string, std::string, double, double>> gesehen;
};

/// Spielt ganze Spiele und sammelt, was zu sehen ist.
class Sammelspiel {
  public:
    explicit Sammelspiel(Sammlung &sammlung) : sammlung(sammlung) {}

    void spiele(int zahl) {
        for (unsigned saat = 1; saat <= static_cast<unsigned>(zahl); ++saat)
            try {
                spieleEins(saat);
            } catch (const Laufzeitfehler &) { // auch so endet ein Spiel
            }
    }

  private:
    void spieleEins(unsigned saat) {
        fläche.leere();
        fläche.Uhr = 0;
        fläche.Erzeuger.seed(saat);
        Programm programm(fläche, Formtafel(), ordner.Pfad());
        Mitspieler spieler(programm, saat, [](const VisualControl &) {});
        p = &programm;
        fläche.Fahrer = [&] {
            if (!spieler.handleImWarten()) ticke();
            sammlung.nimm(programm);
        };
        starte(programm);
        sammlung.nimm(programm);
        programm.eingabe.drücke(Maustaste::Links, {4800, 3600});
        programm.eingabe.löse(Maustaste::Links, {4800, 3600});
        for (const char *feld : {"Text1", "Text2"})
            dynamic_cast<TextBox &>(*programm.geladene(formular::Menu2)->control(feld)).Text = LängsterName;
        for (const Formularname form : {formular::HoF, formular::frmHilfe, formular::Überf, formular::Dank}) {
            programm.zeige(form);
            for (int i = 0; i < 400; ++i)
                ticke();
            sammlung.nimm(programm);
            programm.entlade(form);
        }
        spieler.beginneSpiel();
        for (int schritt = 0; schritt < 40000 && !programm.geladene(formular::Menu)->Visible; ++schritt) {
            if (!spieler.handle()) ticke();
            sammlung.nimm(programm);
            for (; !fläche.Meldungen.empty(); fläche.Meldungen.pop_front())
                sammlung.nimmText(fläche.Meldungen.front().Text);
            if (schritt % 500 == 100 && programm.geladene(formular::Form1)->Enabled) zeigeDialoge(programm);
        }
    }

    /// Was jederzeit vor dem Brett stehen kann.
    void zeigeDialoge(Programm &programm) {
        for (const Formularname form : {formular::Karten, formular::Exchange}) {
            programm.zeige(form);
            sammlung.nimm(programm);
            programm.entlade(form);
        }
    }

    void ticke() {
        const auto nächste = p->nächsteFälligkeit();
        fläche.Uhr = std::max(fläche.Uhr + 1, nächste.value_or(0));
        p->Fälliges();
    }

    Sammlung &sammlung;
    Prüffläche fläche;
    Programmordner ordner;
    Programm *p = nullptr;
};

/// Die Flächen der Zeilen, in Bildpunkten.
std::vector<QRectF> zeilen(const QString &text, const QFont &font, const QSizeF &platz, int ausrichtung) {
    const QFontMetricsF fm(font);
    const QRectF ganz = fm.boundingRect(QRectF(QPointF(), platz), ausrichtung, text);
    std::vector<QRectF> alle;
    double y = ganz.top();
    for (const QString &absatz : text.split('\n')) {
        QTextLayout satz(absatz, font);
        satz.beginLayout();
        for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
            zeile.setLineWidth(platz.width());
            const double breite = zeile.naturalTextWidth();
            const double links = ausrichtung & Qt::AlignRight     ? platz.width() - breite
                                 : ausrichtung & Qt::AlignHCenter ? (platz.width() - breite) / 2
                                                                  : 0;
            if (breite > 0) alle.emplace_back(links, y, breite, fm.height());
            y += fm.lineSpacing();
        }
        satz.endLayout();
    }
    return alle;
}

class Setzer {
  public:
    explicit Setzer(Prüfung &t) : t(t) {}

    void prüfe(const Satz &s, double v) {
        const Maß maß{v / 12, 1};
        if (s.stück.sorte == Sorte::Beschriftung)
            prüfeBeschriftung(s, maß, v);
        else if (s.stück.sorte == Sorte::Knopf)
            prüfeKnopf(s, maß, v);
    }
    double kleinste() const { return kleinster; }
    const std::string &kleinsteWo() const { return kleinsterWo; }

  private:
    void melde(const Satz &s, double v, const std::string &was) {
        if (gemeldet.insert(s.wo + was + s.stück.text).second)
            std::cout << s.wo << " bei " << v << ": " << was << ": \"" << s.stück.text << "\"\n";
        t.gilt(s.wo.c_str(), false);
    }

    /// Setzt den Text in den Platz; ohne Wert, wenn er nicht passt.
    std::optional<QFont> setze(const Satz &s, const Maß &maß, double v, const QRect &platz, int wie, const QFont &f) {
        const double strecke = maß.jeTwip * 12 / Satzpunkte;
        const QSizeF größe = QSizeF(platz.size()) / strecke;
        const QFont passend = eingepasst(f, größe, wie, text(s.stück.text));
        const QRectF bedarf =
            QFontMetricsF(passend).boundingRect(QRectF(0, 0, größe.width(), 1e6), wie, text(s.stück.text));
        if (bedarf.width() > größe.width() + 0.5 || bedarf.height() > größe.height() + 0.5) {
            melde(s, v, "passt nicht");
            return {};
        }
        const double anteil = double(passend.pixelSize()) / f.pixelSize();
        if (anteil < kleinster) {
            kleinster = anteil;
            kleinsterWo = s.wo + " \"" + s.stück.text + "\"";
        }
        t.gilt(s.wo.c_str(), true);
        return passend;
    }

    void prüfeBeschriftung(const Satz &s, const Maß &maß, double v) {
        if (s.stück.liste) return prüfeListe(s, maß, v);
        const QRect ort = maß.rechteck(s.stück.ort());
        const int wie = ausrichtung(s.stück);
        const QFont f = schrift(s.stück.schriftart, s.stück.schriftgrad, s.stück.fett, Satzpunkte);
        const auto passend = setze(s, maß, v, ort, wie, f);
        if (!passend) return;
        const double strecke = maß.jeTwip * 12 / Satzpunkte;
        for (const QRectF &z : zeilen(text(s.stück.text), *passend, QSizeF(ort.size()) / strecke, wie)) {
            const QRectF r(QPointF(ort.topLeft()) + z.topLeft() * strecke, z.size() * strecke);
            prüfeZeile(s, maß, v, r);
        }
    }

    void prüfeListe(const Satz &s, const Maß &maß, double v) {
        const QStringList alle = text(s.stück.text).split('\n');
        for (int i = 0; i < alle.size(); ++i) {
            Satz zeile = s;
            zeile.stück.text = alle[i].trimmed().toStdString();
            setze(zeile, maß, v, zeilenplatz(s.stück, maß.rechteck(s.stück.ort()), i), Qt::AlignVCenter,
                  schrift(s.stück.schriftart, s.stück.schriftgrad, s.stück.fett, Satzpunkte));
        }
    }

    void prüfeZeile(const Satz &s, const Maß &maß, double v, const QRectF &r) {
        for (const auto &[name, ort] : s.davor)
            if (QRectF(maß.rechteck(ort)).adjusted(0.5, 0.5, -0.5, -0.5).intersects(r))
                melde(s, v, "verdeckt von " + name);
        const QRectF form(maß.rechteck({0, 0, s.formbreite, s.formhöhe}));
        if (!form.adjusted(-1, -1, 1, 1).contains(r)) melde(s, v, "ragt aus der Form");
        if (!s.region) return;
        // Die Buchstaben reichen nicht bis in die Ecken ihrer Zeile.
        const double einzug = r.height() / 5;
        for (const QPointF &ecke : {r.topLeft() + QPointF(0, einzug), r.topRight() + QPointF(0, einzug),
                                    r.bottomLeft() - QPointF(0, einzug), r.bottomRight() - QPointF(0, einzug)})
            if (!s.region->enthält(static_cast<int>(ecke.x() / v), static_cast<int>(ecke.y() / v)))
                melde(s, v, "ragt aus der Blase");
    }

    void prüfeKnopf(const Satz &s, const Maß &maß, double v) {
        const Stück &k = s.stück;
        const QRect platz = knopfschrift(k, maß, maß.rechteck(k.ort()));
        setze(s, maß, v, platz, Qt::AlignCenter | Qt::TextWordWrap,
              schrift(k.schriftart, k.schriftgrad, k.fett || k.erhaben, Satzpunkte));
    }

    Prüfung &t;
    std::set<std::string> gemeldet;
    double kleinster = 1;
    std::string kleinsterWo;
};

/// Die Texte einer Quelle; was nur Zwischenraum trennt, ist einer. Mit jedem, was in seiner Anweisung davor steht.
std::vector<std::pair<std::string, std::string>> texteIn(const std::string &quelle) {
    std::vector<std::pair<std::string, std::string>> alle;
    std::string zeile;
    std::size_t ende = 0; // des letzten Textes
    for (std::size_t i = 0; i < quelle.size(); ++i) {
        if (quelle.compare(i, 2, "//") == 0) i = std::min(quelle.find('\n', i), quelle.size() - 1);
        if (quelle[i] == ';' || quelle[i] == '{') zeile.clear();
        if (quelle[i] == '\'') i += quelle[i + 1] == '\\' ? 3 : 2;
        if (quelle[i] != '"') {
            zeile += quelle[i];
            continue;
        }
        std::string text;
        for (++i; quelle[i] != '"'; ++i) {
            if (quelle[i] == '\\' && quelle[++i] == 'n')
                text += '\n';
            else
                text += quelle[i];
        }
        const bool fortgesetzt = !alle.empty() &&
                                 quelle.find_first_not_of(" \n", ende) == quelle.rfind('"', i - text.size() - 1) &&
                                 ende > 0;
        if (fortgesetzt)
            alle.back().first += text;
        else
            alle.emplace_back(text, zeile);
        ende = i + 1;
    }
    return alle;
}

/// Die Sätze in den Quellen des Spiels, aus mindestens drei Wörtern, die auf der Statuszeile oder in der Blase stehen
/// können. Meldungen und Hilfe brechen um und wachsen oder rollen.
std::set<std::string> geschriebene() {
    std::set<std::string> alle;
    const std::filesystem::path wurzel = VELMO_QUELLEN;
    for (const char *raum : {"assistant", "property", "computer", "board", "shell"})
        for (const auto &datei : std::filesystem::directory_iterator(wurzel / raum)) {
            const std::string name = datei.path().stem().string();
            if (name == "Hilfetext" || name == "Dank" || name == "Konsole") continue;
            std::ifstream strom(datei.path());
            const std::string quelle(std::istreambuf_iterator<char>(strom), {});
            for (const auto &[text, davor] : texteIn(quelle))
                if (std::count(text.begin(), text.end(), ' ') >= 2 && text.find("ehler") == std::string::npos &&
                    davor.find("MsgBox") == std::string::npos && davor.find("FontName") == std::string::npos &&
                    davor.find("*this") == std::string::npos)
                    alle.insert(text);
        }
    return alle;
}

/// Textfelder und Listen der Formen, in ihrer Gestalt und Größe.
void prüfeFelder(Prüfung &t, double v) {
    Prüffläche fläche;
    fläche.Fahrer = [] {};
    const Programmordner ordner;
    Programm p(fläche, Formtafel(), ordner.Pfad());
    QWidget form;
    form.setStyleSheet(feldgestalt(v));
    form.show();
    for (const Formularname name : {formular::Menu2, formular::Exchange})
        for (Control *c : p.lade(name).Controls()) {
            auto *feld = dynamic_cast<VisualControl *>(c);
            if (auto *eingabe = dynamic_cast<TextBox *>(c)) eingabe->Text = LängsterName;
            const Bedienelement b = feld ? bedienelement(*feld, &form, p, [](const Handler &) {}) : Bedienelement{};
            if (!b.widget) continue;
            b.folge({v / 12, 1});
            b.widget->resize(Maß{v / 12, 1}.rechteck({0, 0, feld->Width, feld->Height}).size());
            b.widget->show();
            b.folge({v / 12, 1});
            const QFontMetrics fm(b.widget->font());
            int platz = b.widget->width(), bedarf = 0;
            if (auto *liste = qobject_cast<QListWidget *>(b.widget)) {
                platz = liste->viewport()->width();
                bedarf = liste->sizeHintForColumn(0);
            } else if (auto *auswahl = qobject_cast<QComboBox *>(b.widget)) {
                QStyleOptionComboBox wie;
                wie.initFrom(auswahl);
                platz = auswahl->style()
                            ->subControlRect(QStyle::CC_ComboBox, &wie, QStyle::SC_ComboBoxEditField, auswahl)
                            .width();
                for (int i = 0; i < auswahl->count(); ++i)
                    bedarf = std::max(bedarf, fm.horizontalAdvance(auswahl->itemText(i)));
            } else if (auto *zeile = qobject_cast<QLineEdit *>(b.widget)) {
                QStyleOptionFrame wie;
                wie.initFrom(zeile);
                platz = zeile->style()->subElementRect(QStyle::SE_LineEditContents, &wie, zeile).width() - 4;
                bedarf = fm.horizontalAdvance(zeile->text());
            }
            if (bedarf > platz)
                std::cout << name.Text << '.' << c->Name << " bei " << v << ": braucht " << bedarf << " von " << platz
                          << '\n';
            t.gilt(c->Name, bedarf <= platz);
        }
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    gestalteProgramm();
    Prüfung t;
    Sammlung sammlung;
    Sammelspiel(sammlung).spiele(Spiele);
    std::cout << sammlung.sätze.size() << " Sätze und Beschriftungen\n";
    int nachgetragen = 0;
    for (const std::string &text : geschriebene())
        if (std::ranges::none_of(sammlung.texte, [&](const auto &g) { return g.find(text) != std::string::npos; })) {
            ++nachgetragen;
            std::cout << "nur in den Quellen: " << text << '\n';
            sammlung.trageNach(text);
        }
    std::cout << nachgetragen << " davon nur in den Quellen\n";
    Setzer setzer(t);
    for (const double v : Vergrößerungen) {
        for (const Satz &s : sammlung.sätze)
            setzer.prüfe(s, v);
        prüfeFelder(t, v);
    }
    std::cout << "am kleinsten: " << setzer.kleinste() << " bei " << setzer.kleinsteWo() << '\n';
    return t.ende();
}
