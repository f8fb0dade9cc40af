#pragma once
// Eine Form auf der Anzeige: zeichnet die Abschrift ihres Zustands und nur, was sich daran geändert hat. Mausereignisse
// lässt sie zum Fenster durch.
#include "platform/Zeichenliste.h"
#include "window/Bedienelemente.h"
#include "window/Bildspeicher.h"
#include "window/Funkenflug.h"
#include "window/Maß.h"
#include "window/Schwung.h"

#include <QMargins>
#include <QPainterPath>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>
#include <set>

namespace velmo {

class Knopf;

/// Was alle Formflächen gemeinsam haben.
struct Umgebung {
    Programm &p;
    Bildspeicher bilder;
    Bearbeiter bearbeite;
    /// Das laufende Bild eines Films, möglichst in der Größe; null, wenn keins läuft.
    std::function<const QImage *(const Control *, const QSize &)> filmbild;
};

class Formfläche : public QWidget {
  public:
    Formfläche(QWidget *anzeige, Umgebung &);

    /// Bringt die Fläche auf den Stand der Form; gezogen ist das Steuerelement, das der Spieler gerade zieht. Falsch,
    /// wenn sie schon so stand.
    bool folge(const Form &, const Maß &, const VisualControl *gezogen);

    /// Wünscht der Spieler Ruhe, so bleibt, was sich bewegt, wo es war, bis es so viele ms stillsteht.
    static constexpr int Stillstand = 70;
    /// Steht noch etwas aus?
    bool wartet() const { return ausstehend; }

    /// Nennt die Bilder, die sie zeigt; wahr, wenn sie alles hinter sich verdeckt.
    bool nenneBilder(std::set<Bildwunsch> &) const;
    /// Wie das Steuerelement zuletzt gezeigt wurde; null, wenn es nicht unter den Gezeichneten ist.
    const Stück *stück(const Control &) const;
    /// Zeigt es in dieser Haltung, bis es wieder hingestellt wird.
    void versetze(const Control &, const Haltung &);
    void stelleHin();
    /// Das Bedienelement des Systems zum Steuerelement, und umgekehrt; sonst null.
    QWidget *feld(const Control &) const;
    VisualControl *zu(const QWidget &) const;
    /// Zeigt den Knopf gedrückt, den die Tasten halten; null: keinen.
    void zeigeGedrückt(const Control *);
    /// Ob der Zeiger auf der vordersten Form und diese es ist, auf welchem Steuerelement er liegt, und ob eine
    /// Maustaste gedrückt ist.
    void zeigeZeiger(bool hier, const Control *, bool hält);
    /// Zeichnet das Steuerelement neu.
    void erneuere(const Control &);

  protected:
    void paintEvent(QPaintEvent *) override;
    bool event(QEvent *) override;

  private:
    struct Grund {
        std::string bild;
        Farbe farbe;
        bool operator==(const Grund &) const = default;
    };
    struct Bewegung {
        Rechteck ist, gezeigt;
        qint64 seit; // ms der Uhr
    };
    using Bewegtes = std::pair<const void *, Sorte>; // die Form oder eines ihrer Stücke
    Rechteck beruhigt(Bewegtes, const Rechteck &ist);
    void folgePlatz(const Form &);
    QMargins saumVon(const Form &) const;
    void folgeListe(const Form &, const VisualControl *gezogen);
    void folgeBedienelemente(const Form &);
    void erneuere(const QRect &punkte);
    void folgeSchwung();
    Haltung haltungVon(const Stück &) const;
    QRect ortVon(const Stück &) const;
    QRect bereichVon(const Stück &) const;
    QPoint ursprung() const { return {saum.left(), saum.top()}; }
    void maleSaum(QPainter &);
    void maleGrund(QPainter &, const QRect &ganz);
    void maleStück(QPainter &, const Stück &, QRect ort);
    void maleInHaltung(QPainter &, const Stück &, const QRect &ort);
    void maleAlles(QPainter &, const QRect &bereich);

    Umgebung &u;
    Maß maß;
    std::optional<std::uint64_t> stand;
    const VisualControl *gezogenes = nullptr;
    Grund grund;
    QPainterPath umriss; // leer: das ganze Rechteck
    QMargins saum;       // Bildpunkte ringsum, die die Form nicht bedeckt
    bool wirftSchatten = false;
    QSize größe; // der Form, in Bildpunkten
    Zeichenliste liste;
    bool leuchtet = false; // die Form zeichnet ein Feuerwerk
    Funkenflug funken;
    const Control *berührt = nullptr;
    bool gedrückt = false, zeigerHier = false;
    const Control *versetztes = nullptr;
    Haltung versatz;
    Schwung schwung;
    QTimer schwungtakt;

    std::map<Bewegtes, Bewegung> bewegungen;
    bool ausstehend = false;

    std::map<const Control *, Knopf *> knöpfe;
    std::map<const Control *, Bedienelement> bedienelemente;
};

} // namespace velmo
