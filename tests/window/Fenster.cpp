// Was nur am Fenster zu sehen ist: Größe, Schleife, Schließen, Fehler. Läuft ohne Bildschirm und ohne Lautsprecher.
#include "bench/Prüfung.h"
#include "tests/window/Lauf.h"
#include "window/Ordner.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

using namespace velmo;

namespace {

double strecke() { return std::min(fenster()->width() / 800.0, fenster()->height() / 600.0); }

/// Wo das Fenster den Bildpunkt des Entwurfs zeigt.
QPointF ortImFenster(QPointF punkt) {
    const double s = strecke();
    return punkt * s + QPointF(fenster()->width() - 800 * s, fenster()->height() - 600 * s) / 2;
}

/// Eine Taste an dem Bildpunkt des Entwurfs, wo das Fenster ihn zeigt; unten sind danach diese.
void maus(QPointF punkt, QEvent::Type art, Qt::MouseButton taste, Qt::MouseButtons unten) {
    QWidget &w = *fenster();
    const QPointF ort = ortImFenster(punkt);
    QMouseEvent e(art, ort, w.mapToGlobal(ort), taste, unten, Qt::NoModifier);
    QApplication::sendEvent(&w, &e);
}

void klick(double x, double y) {
    maus({x, y}, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    maus({x, y}, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}

/// Der Mauszeiger, wenn die Maus dorthin fährt.
QCursor zeigerBei(double x, double y) {
    maus({x, y}, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    return fenster()->childAt(ortImFenster({x, y}).toPoint())->cursor();
}

bool sichtbar(const Programm &p, Formularname form) { return p.geladene(form) && p.geladene(form)->Visible; }

void prüfeWegDurchsMenü(Prüfung &t) {
    Lauf<> l;
    l.schritte = {
        [&] {
            if (QWidget *kasten = QApplication::activeModalWidget()) kasten->close(); // ohne Film
            return sichtbar(l.p, formular::Intro);
        },
        [] {
            QKeyEvent taste(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
            QApplication::sendEvent(fenster(), &taste);
            return true;
        },
        [&] { return sichtbar(l.p, formular::Menu) && !l.p.geladene(formular::Intro); },
        [&] {
            klick(16 + 650, 137); // Ende
            return true;
        },
    };
    t.gleich("Taste im Film, dann Ende im Menü", l.laufe([&] { starte(l.p); }), 0);
}

void prüfeKlickBeiJederGröße(Prüfung &t) {
    Lauf<> l;
    int getroffen = 0;
    for (const QSize größe : {QSize(800, 600), QSize(1600, 1200), QSize(1900, 700), QSize(500, 900)}) {
        l.schritte.push_back([größe] {
            fenster()->resize(größe);
            return true;
        });
        l.schritte.push_back([&] {
            auto &würfeln = dynamic_cast<VisualControl &>(*l.p.geladene(formular::Form1)->control("WüButton"));
            würfeln.Click = [&] { ++getroffen; };
            klick((würfeln.Left + 10) / 12, (würfeln.Top + 10) / 12);
            return true;
        });
    }
    l.schritte.push_back([] { return fenster()->close() || true; });
    t.gleich("geschlossen", l.laufe([&] { l.p.zeige(formular::Form1); }), 0);
    t.gleich("der Knopf trifft bei jeder Größe", getroffen, 4);
}

void prüfeZweiteTaste(Prüfung &t) {
    Lauf<> l;
    l.schritte = {[&] {
        auto &haus = dynamic_cast<VisualControl &>(*l.p.geladene(formular::Form1)->control("royn2"));
        const Punkt ecke = Eingabe::ort(haus);
        const QPointF ort(ecke.x / 12 + 9, ecke.y / 12 + 9);
        haus.Visible = true;
        maus(ort, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        for (const auto art : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
            maus(ort, art, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
            maus(ort, QEvent::MouseButtonRelease, Qt::RightButton, Qt::LeftButton);
        }
        t.gilt("die zweite Taste lässt nicht los", !haus.Visible);
        maus(ort, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        t.gilt("die erste schon", haus.Visible);
        maus(ort, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton); // ihr Loslassen bleibt aus
        haus.Visible = true;
        maus(ort, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        t.gilt("ein verlorenes Loslassen hält nichts auf", !haus.Visible);
        return fenster()->close() || true;
    }};
    t.gleich("zwei Tasten enden", l.laufe([&] { l.p.zeige(formular::Form1); }), 0);
}

void prüfeSchließenImWarten(Prüfung &t) {
    Lauf<> l;
    l.schritte = {[&] { return sichtbar(l.p, formular::Form1); }, [] { return fenster()->close() || true; }};
    t.gleich("Schließen mitten in einem Warten endet", l.laufe([&] {
        l.p.zeige(formular::Form1);
        l.p.warteBis([] { return false; });
    }),
             0);
}

/// Wie das Programm an dem Fehler endet und was der Kasten dazu sagt.
template <class F> std::pair<int, QString> endeAn(F fehler) {
    Lauf<> l;
    QString satz;
    l.schritte = {[&] { // der Kasten kommt nach dem Ende der Schleife
        QWidget *kasten = QApplication::activeModalWidget();
        if (!kasten) return false;
        for (const QLabel *zeile : kasten->findChildren<QLabel *>())
            satz += zeile->text();
        return kasten->close();
    }};
    const int stand = l.laufe([&] {
        l.p.zeige(formular::Form1);
        throw fehler;
    });
    return {stand, satz};
}

void prüfeFehler(Prüfung &t) {
    const auto regel = endeAn(Laufzeitfehler(Fehlerart::Überlauf));
    t.gilt("ein Laufzeitfehler endet mit 1", regel == std::pair(1, QString("Laufzeitfehler '6': Überlauf")));
    const auto rechner = endeAn(std::system_error(std::make_error_code(std::errc::too_many_files_open)));
    t.gleich("ein Fehler des Rechners auch", rechner.first, 1);
    t.gilt("mit seinem Satz", rechner.second.startsWith("Velmo muss enden, weil dem Rechner etwas misslang: "));
}

/// Beim Programm liegt alles in einem Ordner; fürs System eingerichtet sind es zwei, und der eigene ist danach da.
void prüfeOrdner(Prüfung &t) {
    const Programmordner wurzel;
    const auto unter = [&](const char *was) { return QString::fromStdString(wurzel.Pfad()) + was; };
    qputenv("XDG_DATA_HOME", unter("/daten").toUtf8());
    wurzel.legeOrdnerAn("games");
    t.gleich("ohne System", findeOrdner(unter("/games")).Eigenes, std::string());
    wurzel.legeOrdnerAn("share/games/velmo");
    t.gleich("bilder liegen daneben", findeOrdner(unter("")).Mitgeliefertes, wurzel.Pfad());
    const Ordner zwei = findeOrdner(unter("/games"));
    t.gleich("das Mitgelieferte", zwei.Mitgeliefertes, wurzel.Pfad() + "/share/games/velmo");
    t.gleich("das Eigene", zwei.Eigenes, wurzel.Pfad() + "/daten/velmo");
    t.gilt("mit Charakteren", std::filesystem::is_directory(zwei.Eigenes + "/charakter"));
}

void prüfeRuhe(Prüfung &t) {
    Lauf<> l;
    int erwacht = 0;
    auto *schleife = QAbstractEventDispatcher::instance();
    QTimer::singleShot(700, [&] { // alles ist gezeichnet
        const auto zähler = QObject::connect(schleife, &QAbstractEventDispatcher::awake, [&] { ++erwacht; });
        QTimer::singleShot(600, [zähler] {
            QObject::disconnect(zähler);
            fenster()->close();
        });
    });
    t.gleich("Ruhe endet", l.oberfläche.laufe(l.p, [&] { l.p.zeige(formular::HoF); }), 0);
    t.gilt("ohne Zeitgeber schläft die Schleife", erwacht <= 5);
}

void prüfeSchritte(Prüfung &t) {
    Lauf<> l;
    Zeit dauer = 0;
    bool getickt = false;
    l.schritte = {[&] { return dauer > 0 && (fenster()->close() || true); }};
    t.gleich("Schritte enden", l.laufe([&] {
        l.p.zeige(formular::Form1);
        l.p.zeige(formular::Menu2);
        Form &form = *l.p.geladene(formular::Menu2);
        auto &uhr = dynamic_cast<Timer &>(*l.p.geladene(formular::Form1)->control("Timer1"));
        uhr.Tick = [&] { getickt = true; };
        l.p.DoEvents(); // zeigt sie zum ersten Mal
        uhr.Enabled = true;
        // Ist der Rechner gerade beschäftigt, gilt ein späteres Mal.
        for (int mal = 0; mal == 0 || (mal < 5 && dauer >= 600); ++mal) {
            const Zeit vorher = l.oberfläche.jetzt();
            for (int i = 0; i < 150; ++i) {
                form.Left += mal % 2 ? -20 : 20;
                l.oberfläche.zeigeSchritt(form, 2);
            }
            dauer = l.oberfläche.jetzt() - vorher;
        }
        uhr.Enabled = false;
    }),
             0);
    t.gilt("150 Schritte zu 2 ms dauern 0,3 s", dauer >= 250 && dauer < 600);
    t.gilt("und halten die Zeitgeber an", !getickt);
}

void prüfeMeldungsarten(Prüfung &t) {
    Lauf<> l;
    std::vector<bool> mitZeichen;
    const auto schließeKasten = [&] {
        QWidget *kasten = QApplication::activeModalWidget();
        if (!kasten) return false;
        const auto zeilen = kasten->findChildren<QLabel *>();
        mitZeichen.push_back(std::ranges::any_of(zeilen, [](const QLabel *l) { return !l->pixmap().isNull(); }));
        return kasten->close();
    };
    l.schritte = {schließeKasten, schließeKasten, [] { return fenster()->close() || true; }};
    t.gleich("zwei Meldungen", l.laufe([&] {
        l.p.zeige(formular::Form1);
        l.p.MsgBox("schlicht");
        l.p.MsgBox("ernst", Meldungsart::Kritisch);
    }),
             0);
    t.gilt("nur die ernste hat ein Zeichen", mitZeichen == std::vector{false, true});
}

void prüfeFragen(Prüfung &t) {
    Lauf<> l;
    const auto beantworte = [](const std::function<void(QWidget &, QLineEdit &)> &tu) {
        return [tu] {
            QWidget *kasten = QApplication::activeModalWidget();
            if (!kasten) return false;
            auto &feld = *kasten->findChild<QLineEdit *>();
            feld.setText("ä");
            tu(*kasten, feld);
            return true;
        };
    };
    const auto taste = [&](Qt::Key k) {
        return beantworte([k](QWidget &, QLineEdit &feld) {
            QKeyEvent e(QEvent::KeyPress, k, Qt::NoModifier);
            QApplication::sendEvent(&feld, &e);
        });
    };
    const auto knopf = [&](const QString &schrift) {
        return beantworte([schrift](QWidget &kasten, QLineEdit &) {
            for (auto *k : kasten.findChildren<QPushButton *>())
                if (k->text() == schrift) k->click();
        });
    };
    l.schritte = {taste(Qt::Key_Return), taste(Qt::Key_Escape), knopf("OK"), knopf("Abbrechen"),
                  [] { return fenster()->close() || true; }};
    std::vector<std::optional<std::string>> antworten;
    t.gleich("vier Fragen", l.laufe([&] {
        l.p.zeige(formular::Form1);
        for (int i = 0; i < 4; ++i)
            antworten.push_back(l.p.InputBox("Anzahl", ""));
    }),
             0);
    t.gilt("die Eingabetaste und OK antworten, Esc und Abbrechen nicht",
           antworten == std::vector<std::optional<std::string>>{"ä", std::nullopt, "ä", std::nullopt});
}

void prüfeZeiger(Prüfung &t) {
    Lauf<> l;
    QCursor figur, brett;
    int breite = 0;
    l.schritte = {[] {
                      fenster()->resize(1600, 1200);
                      return true;
                  },
                  [&] {
                      figur = zeigerBei(286, 122); // zwischen den Augen
                      breite = static_cast<int>(64 * strecke());
                      brett = zeigerBei(780, 590);
                      return fenster()->close() || true;
                  }};
    t.gleich("über die Figur", l.laufe([&] {
        l.p.zeige(formular::Form1);
        l.p.zeige(formular::Assistent);
        l.p.geladene(formular::Assistent)->Top = 368;
    }),
             0);
    t.gilt("sie hat ihren eigenen Zeiger", figur.shape() == Qt::BitmapCursor);
    t.gleich("so groß wie das Fenster ihn zeigt", figur.pixmap().deviceIndependentSize().toSize().width(), breite);
    t.gilt("daneben nicht", brett.shape() != Qt::BitmapCursor);
}

void prüfeVorauslesen(Prüfung &t) {
    const Programmordner ordner;
    const Bildwunsch grund{ordner.Pfad() + "/bilder/formen/form1/form1.jpg", {400, 300}};
    Bildspeicher gleich, voraus;
    const QImage bild = gleich.bild(grund.Datei, grund.größe).toImage();
    voraus.nebenher = true;
    voraus.liesVoraus({grund});
    t.gilt("vorausgelesen ist es dasselbe Bild", voraus.bild(grund.Datei, grund.größe).toImage() == bild);
    voraus.eile(false); // hält nichts mehr
    voraus.liesVoraus({grund});
    voraus.behalte({});
    t.gilt("was nicht behalten wurde, liest sie noch einmal", voraus.bild(grund.Datei, grund.größe).toImage() == bild);
    t.gilt("es ist eines", bild.size() == grund.größe);
}

} // namespace

int main(int argc, char **argv) {
    return prüfeOhneBildschirm(argc, argv,
                               {prüfeWegDurchsMenü, prüfeKlickBeiJederGröße, prüfeZweiteTaste, prüfeSchließenImWarten,
                                prüfeFehler, prüfeOrdner, prüfeRuhe, prüfeSchritte, prüfeMeldungsarten, prüfeFragen,
                                prüfeZeiger, prüfeVorauslesen});
}
