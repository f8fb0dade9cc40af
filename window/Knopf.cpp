#include "window/Knopf.h"

#include "window/Farbtöne.h"
#include "window/Malen.h"
#include "window/Schrift.h"

#include <QMouseEvent>

namespace velmo {

namespace {

constexpr const char *Zustandsbilder[] = {"ruhe", "ruhe", "gedrueckt", "gesperrt"};
constexpr int Ecke = 44;        // so weit reichen die Ecken der Zustandsbilder, in ihren Punkten
constexpr double JeEntwurf = 4; // ihre Punkte je Bildpunkt des Entwurfs
constexpr double Niedrig = 18;  // Bildpunkte des Entwurfs

} // namespace

QImage knopfvorlage(Bildspeicher &bilder, const std::string &spielordner, Knopfzustand z) {
    return bilder.roh(spielordner + "/bilder/formen/knopf/" + Zustandsbilder[static_cast<int>(z)] + ".png");
}

QPixmap knopfkörper(const QImage &vorlage, const QSize &größe, double punkt) {
    // Ein niedriger Knopf hat feinere Kanten.
    const double fein = größe.height() < Niedrig * punkt ? 2 : 1;
    const double je = fein * JeEntwurf / punkt;
    QImage groß(QSizeF(größe.width() * je, größe.height() * je).toSize(), QImage::Format_ARGB32_Premultiplied);
    groß.fill(Qt::transparent);
    QPainter p(&groß);
    maleGestreckt(p, vorlage, Ecke, groß.rect(), Ecke);
    return QPixmap::fromImage(groß.scaled(größe, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void helleAuf(QPixmap &körper) {
    QPainter p(&körper);
    p.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    p.fillRect(körper.rect(), QColor(255, 255, 255, 60));
}

Knopf::Knopf(QWidget *form, Bildspeicher &bilder, std::string spielordner)
    : QAbstractButton(form), bilder(bilder), spielordner(std::move(spielordner)) {
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
}

void Knopf::zeige(const Stück &neu, const Maß &m) {
    if (neu == stück && m == maß) return;
    stück = neu;
    maß = m;
    fertig = {};
    setText(velmo::text(stück.text).replace('&', "&&"));
    setAccessibleName(velmo::text(stück.text.empty() ? stück.hinweis : stück.text));
    setToolTip(velmo::text(stück.hinweis));
    setEnabled(!stück.gesperrt);
    // Gesperrt lässt er die Maus zur Form durch.
    setAttribute(Qt::WA_TransparentForMouseEvents, stück.gesperrt);
    update();
}

Knopfzustand Knopf::zustand() const {
    if (!isEnabled()) return Knopfzustand::Gesperrt;
    if (isDown()) return Knopfzustand::Gedrückt;
    return underMouse() ? Knopfzustand::Überfahren : Knopfzustand::Ruhe;
}

QPixmap Knopf::körper(Knopfzustand z, const QSize &größe) const {
    const QImage vorlage = knopfvorlage(bilder, spielordner, z);
    QPixmap bild;
    if (vorlage.isNull()) {
        bild = QPixmap(größe);
        bild.fill(isEnabled() ? farbton::Holz.lighter(z == Knopfzustand::Gedrückt ? 130 : 170) : farbton::Papier);
    } else {
        bild = knopfkörper(vorlage, größe, 12 * maß.jeTwip);
    }
    if (stück.erhaben && isEnabled()) {
        QPainter p(&bild);
        p.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        p.fillRect(bild.rect(), QColor(255, 206, 32, 125)); // leuchtet
    }
    if (z == Knopfzustand::Überfahren) helleAuf(bild);
    return bild;
}

void Knopf::maleInhalt(QPainter &p, const QRect &knopf) const {
    const QRect für = knopfschrift(stück, maß, knopf);
    if (!stück.bild.empty()) {
        const QSize roh = bilder.größe(stück.bild);
        QRect r = für;
        r.setTop(knopf.top() + knopf.bottom() - für.bottom());
        if (!stück.text.empty()) r.setBottom(für.top() - 1);
        const QSize platz = r.size();
        // Vier Punkte des Bildes sind einer des Entwurfs.
        QSize größe(maß.punkt(roh.width() * 3), maß.punkt(roh.height() * 3));
        if (größe.width() > platz.width() || größe.height() > platz.height()) größe.scale(platz, Qt::KeepAspectRatio);
        const int oben = r.top() + (platz.height() - größe.height()) / 2;
        if (!isEnabled()) p.setOpacity(0.45);
        maleBild(p, bilder, stück.bild, QRect(QPoint(r.left() + (r.width() - größe.width()) / 2, oben), größe));
        p.setOpacity(1);
    }
    const int wie = Qt::AlignCenter | Qt::TextWordWrap;
    const QString t = velmo::text(stück.text);
    const QFont f = schrift(stück.schriftart, stück.schriftgrad, stück.fett || stück.erhaben, Satzpunkte);
    // Sehr helle Schrift wäre auf dem hellen Messing nicht zu lesen.
    QColor tinte = farbton::aus(stück.farbe);
    if (stück.farbe == Farbe{0} || tinte.lightness() > 200) tinte = farbton::Tinte;
    maleText(p, maß, für, wie, t, f, isEnabled() ? tinte : farbton::Blass);
}

void Knopf::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.scale(1 / maß.dichte, 1 / maß.dichte);
    const QRect ganz(0, 0, static_cast<int>(std::lround(width() * maß.dichte)),
                     static_cast<int>(std::lround(height() * maß.dichte)));
    const Knopfzustand z = zustand();
    if (fertig.size() != ganz.size() || fertigIn != z) {
        fertig = körper(z, ganz.size());
        fertigIn = z;
    }
    p.drawPixmap(0, 0, fertig);
    const int tiefer = isDown() ? static_cast<int>(maß.strich(1)) : 0;
    maleInhalt(p, ganz.translated(0, tiefer));
}

// Die Maus gehört der Eingabe des Spiels: hier ändert sich nur das Aussehen.
void Knopf::mousePressEvent(QMouseEvent *e) {
    setDown((e->buttons() & Qt::LeftButton) && rect().contains(e->pos()));
    e->ignore();
}
void Knopf::mouseDoubleClickEvent(QMouseEvent *e) { mousePressEvent(e); }
void Knopf::mouseMoveEvent(QMouseEvent *e) {
    if (e->buttons() & Qt::LeftButton) setDown(rect().contains(e->pos()));
    e->ignore();
}
void Knopf::mouseReleaseEvent(QMouseEvent *e) { mousePressEvent(e); }

void Knopf::enterEvent(QEnterEvent *) { update(); }
void Knopf::leaveEvent(QEvent *) { update(); }

} // namespace velmo
