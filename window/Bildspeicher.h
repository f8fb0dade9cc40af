#pragma once
// Die Bilder in der Größe, in der sie gezeigt werden. Gehalten wird, was zu sehen ist, und ein kleiner Vorrat dessen,
// was eben noch zu sehen war; die Bilder der Platte werden gelesen und vergessen.
#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QThreadPool>

#include <future>
#include <map>
#include <set>
#include <string>
#include <tuple>

namespace velmo {

/// Ein Bild in einer Größe; ohne Größe eines in jeder.
struct Bildwunsch {
    std::string Datei;
    QSize größe;
    bool operator==(const Bildwunsch &) const = default;
    bool operator<(const Bildwunsch &b) const { return schlüssel() < b.schlüssel(); }

  private:
    std::tuple<const std::string &, int, int> schlüssel() const { return {Datei, größe.width(), größe.height()}; }
};

class Bildspeicher {
  public:
    Bildspeicher();
    /// Das Bild der Datei in der Größe; ein leeres, wenn es sich nicht lesen lässt. In Eile ist es eines von anderer
    /// Größe, wenn es eines gibt.
    QPixmap bild(const std::string &Datei, const QSize &);
    /// Dasselbe, ohne ein Bild der Anzeige aufzuhalten: ist es noch nicht gelesen, so liest es ein anderer Faden, und
    /// es ist noch leer.
    QPixmap baldigesBild(const std::string &Datei, const QSize &);
    /// Lässt einen anderen Faden lesen, was bald zu sehen sein kann. Behalten wird es wie die gezeigten.
    void liesVoraus(const std::set<Bildwunsch> &);
    /// Ob ein anderer Faden lesen darf; sonst ist auch ein baldiges Bild gleich da.
    bool nebenher = false;
    /// Das Bild, wie es auf der Platte steht; leer, wenn es sich nicht lesen lässt. Nur die kleinen bleiben.
    QImage roh(const std::string &Datei);
    /// Die Größe auf der Platte.
    QSize größe(const std::string &Datei);
    /// Solange der Spieler am Fenster zieht, genügen die Bilder der alten Größe; danach gehen sie.
    void eile(bool an);
    /// Lässt gehen, was nicht unter den gezeigten ist.
    void behalte(const std::set<Bildwunsch> &gezeigt);

  private:
    bool istDa(const Bildwunsch &) const;
    QImage erhalte(const Bildwunsch &);
    std::future<QImage> &bestelle(const Bildwunsch &);

    std::map<Bildwunsch, QPixmap> fertige;
    std::map<Bildwunsch, std::future<QImage>> unterwegs;
    QThreadPool leser;               // der andere Faden
    QCache<QString, QPixmap> vorrat; // Kosten in KiB
    QCache<QString, QImage> rohe;    // ebenso
    std::map<std::string, QSize> größen;
    bool inEile = false;
};

} // namespace velmo
