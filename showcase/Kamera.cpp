#include "showcase/Kamera.h"

#include "window/Fenster.h"
#include "window/Film.h"

#include <QAbstractButton>
#include <QPixmap>

#include <cmath>

namespace velmo {

namespace {

/// Die Bilder der laufenden Filme, zur Uhr der Szene.
std::map<const Control *, QImage> filmbilder(const Prüffläche &fläche) {
    std::map<const Control *, QImage> bilder;
    for (const auto &[control, lauf] : fläche.Filme) {
        Film film(lauf.Datei);
        if (lauf.Beginn) film.zeigeStand(fläche.Uhr - *lauf.Beginn);
        bilder[control] = film.bild();
    }
    return bilder;
}

/// Der Knopf unter dem Zeiger weiß es von der Maus, die hier niemand bewegt.
void zeigeMaus(Fenster &fenster, const Eingabe &eingabe, double faktor) {
    const Punkt p = eingabe.zeiger();
    QWidget *w = fenster.childAt(static_cast<int>(p.x / 12 * faktor), static_cast<int>(p.y / 12 * faktor));
    auto *knopf = qobject_cast<QAbstractButton *>(w);
    if (!knopf) return;
    knopf->setAttribute(Qt::WA_UnderMouse);
    knopf->setDown(eingabe.hält());
}

} // namespace

QImage aufnahme(Szene &szene, const Rechteck &ausschnitt, double faktor) {
    const auto filme = filmbilder(szene.fläche);
    Umgebung umgebung{szene.p(),
                      {},
                      [](const Handler &) {}, // ein Bild ändert nichts
                      [&](const Control *c, const QSize &) {
                          const auto film = filme.find(c);
                          return film == filme.end() ? nullptr : &film->second;
                      }};
    Fenster fenster(umgebung, [] {});
    fenster.setAttribute(Qt::WA_DontShowOnScreen);
    fenster.resize(static_cast<int>(std::lround(800 * faktor)), static_cast<int>(std::lround(600 * faktor)));
    fenster.show();
    fenster.folge();
    zeigeMaus(fenster, szene.p().eingabe, faktor);
    const QRect punkte = Maß{faktor / 12, 1}.rechteck(ausschnitt);
    return fenster.grab(punkte & fenster.rect()).toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace velmo
