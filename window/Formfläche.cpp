#include "window/Formfläche.h"

#include "include/Programm.h"
#include "surface/Malplatz.h"
#include "surface/Schrittfolge.h"
#include "surface/Tasten.h"
#include "window/Farbtöne.h"
#include "window/Knopf.h"
#include "window/Malen.h"
#include "window/Schmuck.h"
#include "window/Schrift.h"
#include "window/Umriss.h"

#include <QDateTime>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QToolTip>

#include <algorithm>
#include <tuple>

namespace velmo {

namespace {

/// Drückt den Knopf in seiner Mitte, wie es die Maus täte.
void drücke(Eingabe &eingabe, const VisualControl &c) {
    const Punkt ecke = Eingabe::ort(c), mitte{ecke.x + c.Width / 2, ecke.y + c.Height / 2};
    eingabe.drücke(Maustaste::Links, mitte);
    eingabe.löse(Maustaste::Links, mitte);
}

} // namespace

Formfläche::Formfläche(QWidget *anzeige, Umgebung &u) : QWidget(anzeige), u(u) {
    setMouseTracking(true);
    schwungtakt.setInterval(static_cast<int>(Bildzeit));
    schwungtakt.setTimerType(Qt::PreciseTimer);
    schwungtakt.callOnTimeout([this] { folgeSchwung(); });
    hide();
}

bool Formfläche::folge(const Form &form, const Maß &m, const VisualControl *gezogen) {
    if (gezogen && &gezogen->form != &form) gezogen = nullptr;
    if (stand == form.Stand() && m == maß && gezogen == gezogenes && !ausstehend) return false;
    ausstehend = false;
    const bool ganz = !stand || m != maß;
    stand = form.Stand();
    maß = m;
    gezogenes = gezogen;
    folgePlatz(form);
    folgeListe(form, gezogen);
    leuchtet = form.Zeichnung();
    if (leuchtet) erneuere(funken.folge(*form.Zeichnung(), maß));
    folgeBedienelemente(form);
    if (ganz) update();
    setVisible(form.Visible);
    return true;
}

/// Wo etwas zu zeigen ist, das dort ist.
Rechteck Formfläche::beruhigt(Bewegtes was, const Rechteck &ist) {
    if (!maß.wünsche.ruhig) return ist;
    const qint64 nun = QDateTime::currentMSecsSinceEpoch();
    auto [hier, frisch] = bewegungen.try_emplace(was, Bewegung{ist, ist, 0});
    Bewegung &b = hier->second;
    const auto gleich = [](const Rechteck &a, const Rechteck &c) {
        return a.Left == c.Left && a.Top == c.Top && a.Width == c.Width && a.Height == c.Height;
    };
    if (!gleich(b.ist, ist)) b.seit = nun;
    b.ist = ist;
    if (nun - b.seit >= Stillstand) b.gezeigt = ist;
    ausstehend |= !gleich(b.gezeigt, ist);
    return b.gezeigt;
}

/// Der Saum in Bildpunkten.
QMargins Formfläche::saumVon(const Form &form) const {
    const Saum s = velmo::saum(form);
    if (!s.Schatten) return {maß.punkt(s.links), maß.punkt(s.oben), maß.punkt(s.rechts), maß.punkt(s.unten)};
    const int schatten = static_cast<int>(std::ceil(maß.strich(10) / maß.dichte) * maß.dichte);
    return {schatten, schatten, schatten, schatten};
}

void Formfläche::folgePlatz(const Form &form) {
    größe = maß.rechteck({0, 0, form.Width, form.Height}).size();
    umriss = form.region() ? umrissVon(*form.region(), u.p.Screen().TwipsPerPixelX * maß.jeTwip) : QPainterPath();
    saum = saumVon(form);
    wirftSchatten = velmo::saum(form).Schatten;
    const Rechteck platz = beruhigt({this, {}}, {form.Left, form.Top, 0, 0});
    const QPoint ecke(maß.punkt(platz.Left), maß.punkt(platz.Top));
    setGeometry(maß.fensterrechteck(QRect(ecke, größe).marginsAdded(saum)));
    setAttribute(Qt::WA_OpaquePaintEvent, umriss.isEmpty() && !wirftSchatten);
    const Grund neu{form.Picture().Datei, form.BackColor};
    if (neu == grund) return;
    grund = neu;
    update();
}

void Formfläche::folgeListe(const Form &form, const VisualControl *gezogen) {
    Zeichenliste neu = zeichenliste(form);
    if (gezogen) blendeVerdeckendes(neu, gezogen);
    for (Stück &s : neu) {
        s.hinweis = mitTaste(s.hinweis, form.Name, s.control->Name);
        if (maß.wünsche.ruhig) s.drehung = 0;
        const Rechteck ort = beruhigt({s.control, s.sorte}, s.ort());
        std::tie(s.Left, s.Top, s.Width, s.Height) = std::tie(ort.Left, ort.Top, ort.Width, ort.Height);
    }
    std::swap(neu, liste);
    const Zeichenliste &alt = neu;
    for (std::size_t i = 0; i < std::max(alt.size(), liste.size()); ++i) {
        if (i < alt.size() && i < liste.size() && alt[i] == liste[i]) continue;
        if (i < alt.size() && alt[i].sichtbar) erneuere(malbereich(alt[i], maß));
        if (i < liste.size() && liste[i].sichtbar) erneuere(malbereich(liste[i], maß));
        if (i < alt.size() && i < liste.size() && !maß.wünsche.ruhig) schwung.bemerke(alt[i], liste[i]);
    }
    folgeSchwung();
}

/// Solange etwas in Bewegung ist, wird es mit jedem Bild der Anzeige neu gezeichnet.
void Formfläche::folgeSchwung() {
    const auto lebendes = schwung.lebendes();
    for (const Control *c : lebendes)
        if (const Stück *s = stück(*c)) erneuere(schwungbereich(*s, maß));
    if (lebendes.empty())
        schwungtakt.stop();
    else if (!schwungtakt.isActive())
        schwungtakt.start();
}

void Formfläche::folgeBedienelemente(const Form &form) {
    for (const Stück &s : liste) {
        QWidget *widget = nullptr;
        if (s.sorte == Sorte::Knopf) {
            Knopf *&knopf = knöpfe[s.control];
            auto *c = const_cast<VisualControl *>(static_cast<const VisualControl *>(s.control));
            if (!knopf) {
                knopf = new Knopf(this, u.bilder, u.p.Ordner);
                connect(knopf, &Knopf::clicked, this, [this, c] { u.bearbeite([&] { drücke(u.p.eingabe, *c); }); });
            }
            knopf->zeige(s, maß);
            widget = knopf;
        } else if (s.sorte == Sorte::Bedienelement) {
            auto *c = const_cast<VisualControl *>(static_cast<const VisualControl *>(s.control));
            auto [hier, frisch] = bedienelemente.try_emplace(s.control);
            if (frisch) hier->second = bedienelement(*c, this, u.p, u.bearbeite);
            if (!hier->second.widget) continue;
            hier->second.folge(maß);
            widget = hier->second.widget;
            widget->setEnabled(!s.gesperrt && form.Enabled);
            widget->setToolTip(text(s.hinweis));
        }
        if (!widget) continue;
        widget->setGeometry(maß.fensterrechteck(maß.rechteck(s.ort()).translated(ursprung())));
        widget->setVisible(s.sichtbar);
    }
}

const Stück *Formfläche::stück(const Control &c) const {
    const auto hier = std::find_if(liste.begin(), liste.end(),
                                   [&](const Stück &s) { return s.control == &c && s.sorte != Sorte::Schatten; });
    return hier == liste.end() ? nullptr : &*hier;
}

void Formfläche::versetze(const Control &c, const Haltung &haltung) {
    const Stück *s = stück(c);
    if (!s) return;
    if (versetztes == &c) erneuere(bereichVon(*s));
    versetztes = &c;
    versatz = haltung;
    erneuere(bereichVon(*s));
}

void Formfläche::stelleHin() {
    const Stück *s = versetztes ? stück(*versetztes) : nullptr;
    if (s) erneuere(bereichVon(*s));
    versetztes = nullptr;
    if (s) erneuere(bereichVon(*s));
}

bool Formfläche::nenneBilder(std::set<Bildwunsch> &gezeigt) const {
    if (isHidden()) return false;
    gezeigt.insert({grund.bild, größe});
    for (const Stück &s : liste)
        if (s.sichtbar && !s.bild.empty())
            gezeigt.insert({s.bild, s.sorte == Sorte::Knopf ? QSize() : bildgröße(s, maß)});
    return testAttribute(Qt::WA_OpaquePaintEvent) && geometry().contains(parentWidget()->rect());
}

void Formfläche::zeigeZeiger(bool hier, const Control *c, bool hält) {
    if (hier != zeigerHier) {
        zeigerHier = hier;
        for (const Stück &s : liste)
            if (s.nurUnterZeiger) erneuere(malbereich(s, maß));
    }
    if (c == berührt && hält == gedrückt) return;
    for (const Control *anders : {berührt, c}) {
        const Stück *s = anders ? stück(*anders) : nullptr;
        if (s && s->wieKnopf) erneuere(*anders);
    }
    berührt = c;
    gedrückt = hält;
}

void Formfläche::erneuere(const Control &c) {
    if (const Stück *s = stück(c)) erneuere(malbereich(*s, maß));
}

void Formfläche::erneuere(const QRect &punkte) {
    update(maß.fensterrechteck(punkte.translated(ursprung())).adjusted(-1, -1, 1, 1));
}

Haltung Formfläche::haltungVon(const Stück &s) const {
    return s.control == versetztes && s.sorte != Sorte::Schatten ? versatz : schwung.haltung(s);
}

QRect Formfläche::ortVon(const Stück &s) const {
    const Punkt um = haltungVon(s).versatz;
    return malort(s, maß).translated(maß.punkt(um.x), maß.punkt(um.y));
}

QRect Formfläche::bereichVon(const Stück &s) const {
    const Haltung h = haltungVon(s);
    const QRect bereich = malbereich(s, maß).translated(maß.punkt(h.versatz.x), maß.punkt(h.versatz.y));
    return h.drehung == 0 && h.maß == 1 ? bereich : gedreht(bereich);
}

void Formfläche::maleSaum(QPainter &p) {
    const QRect ganz(QPoint(), größe);
    if (wirftSchatten) {
        // Was die Form verdeckt, braucht keinen.
        p.setClipRegion(QRegion(ganz.marginsAdded(saum)) - ganz.adjusted(2, 2, -2, -2));
        return maleSchatten(p, ganz, saum.left());
    }
    // Das Bild spiegelt sich über seine Kanten hinaus.
    for (const bool waagrecht : {true, false})
        for (const bool hinten : {true, false}) {
            const int um = hinten ? (waagrecht ? größe.width() : größe.height()) * 2 : 0;
            p.save();
            p.translate(waagrecht ? um : 0, waagrecht ? 0 : um);
            p.scale(waagrecht ? -1 : 1, waagrecht ? 1 : -1);
            maleBild(p, u.bilder, grund.bild, ganz);
            p.restore();
        }
}

void Formfläche::maleGrund(QPainter &p, const QRect &ganz) {
    if (maleBild(p, u.bilder, grund.bild, ganz)) return;
    if (leuchtet)
        maleNacht(p, ganz);
    else
        malePapier(p, maß, ganz, farbton::aus(grund.farbe), wirftSchatten);
}

/// Ein Bild wie ein Knopf: unter dem Zeiger heller, gedrückt tiefer.
void Formfläche::maleStück(QPainter &p, const Stück &s, QRect ort) {
    const bool unterZeiger = s.wieKnopf && s.control == berührt && !s.gesperrt;
    if (unterZeiger && gedrückt) ort.translate(0, static_cast<int>(maß.strich(1)));
    p.setOpacity(s.deckung);
    maleInHaltung(p, s, ort);
    p.setOpacity(1);
    if (!unterZeiger || gedrückt) return;
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    p.setOpacity(0.2);
    maleBild(p, u.bilder, s.bild, ort);
    p.setOpacity(1);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void Formfläche::maleAlles(QPainter &p, const QRect &bereich) {
    const QRect ganz(QPoint(), größe);
    p.setClipRect(ganz);
    maleGrund(p, ganz);
    if (leuchtet) funken.male(p, maß);
    for (const Stück &s : liste) {
        const QRect ort = ortVon(s);
        if (!s.sichtbar || (s.nurUnterZeiger && !zeigerHier) || !bereichVon(s).intersects(bereich)) continue;
        if (s.sorte == Sorte::Film) {
            if (const QImage *film = u.filmbild(s.control, ort.size())) p.drawImage(ort, *film);
            continue;
        }
        maleStück(p, s, ort);
    }
    for (const Stück &s : liste)
        if (s.sichtbar && s.sorte == Sorte::Bild) schwung.maleStaub(p, maß, s);
}

/// In seiner Haltung: gedreht und gestreckt um die Mitte.
void Formfläche::maleInHaltung(QPainter &p, const Stück &s, const QRect &ort) {
    const Haltung h = haltungVon(s);
    if (h.drehung == 0 && h.breite == 1 && h.maß == 1) return male(p, u.bilder, maß, s, ort);
    const QPointF mitte = QRectF(ort).center();
    p.save();
    p.translate(mitte);
    p.rotate(h.drehung);
    p.scale(h.maß * h.breite, h.maß);
    p.translate(-mitte);
    if (h.bild.empty()) {
        male(p, u.bilder, maß, s, ort);
    } else {
        Stück anders = s;
        anders.bild = h.bild;
        male(p, u.bilder, maß, anders, ort);
    }
    p.restore();
}

void Formfläche::paintEvent(QPaintEvent *e) {
    const auto punkte = [this](const QRect &r) {
        return QRectF(r.x() * maß.dichte, r.y() * maß.dichte, r.width() * maß.dichte, r.height() * maß.dichte)
            .toAlignedRect();
    };
    const QRect bereich = punkte(e->rect()).translated(-ursprung());
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.scale(1 / maß.dichte, 1 / maß.dichte);
    p.translate(ursprung());
    if (umriss.isEmpty()) {
        if (!QRect(QPoint(), größe).contains(bereich)) maleSaum(p);
        return maleAlles(p, bereich);
    }
    // Eine Form mit Umriss wird gezeichnet und dann mit glattem Rand ausgeschnitten.
    const double linie = maß.strich(1.5);
    const int rand = static_cast<int>(linie) + 1;
    const QRect teil = bereich.intersected(umriss.boundingRect().toAlignedRect().adjusted(-rand, -rand, rand, rand));
    if (teil.isEmpty()) return;
    QPixmap blatt(teil.size());
    blatt.fill(Qt::transparent);
    {
        QPainter q(&blatt);
        q.setRenderHints(p.renderHints());
        q.translate(-teil.topLeft());
        maleAlles(q, teil);
    }
    p.setPen(QPen(farbton::aus(farbe::Blasenrand), linie, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(blatt);
    p.setBrushOrigin(teil.topLeft());
    p.drawPath(umriss);
}

bool Formfläche::event(QEvent *e) {
    if (e->type() != QEvent::ToolTip) return QWidget::event(e);
    const auto *wo = static_cast<QHelpEvent *>(e);
    const QPoint hier = (QPointF(wo->pos()) * maß.dichte).toPoint() - ursprung();
    const auto s = std::find_if(liste.rbegin(), liste.rend(), [&](const Stück &s) {
        return s.sichtbar && s.sorte != Sorte::Schatten && s.sorte != Sorte::Rahmen && s.sorte != Sorte::Linie &&
               ortVon(s).contains(hier);
    });
    if (s == liste.rend() || s->hinweis.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(wo->globalPos(), text(s->hinweis), this);
    return true;
}

QWidget *Formfläche::feld(const Control &c) const {
    const auto hier = bedienelemente.find(&c);
    return hier == bedienelemente.end() ? nullptr : hier->second.widget;
}

void Formfläche::zeigeGedrückt(const Control *gehalten) {
    for (const auto &[c, knopf] : knöpfe)
        knopf->setDown(c == gehalten || (knopf->isDown() && knopf->underMouse()));
}

VisualControl *Formfläche::zu(const QWidget &w) const {
    const auto hier = std::ranges::find(bedienelemente, &w, [](const auto &eintrag) { return eintrag.second.widget; });
    return hier == bedienelemente.end() ? nullptr
                                        : const_cast<VisualControl *>(static_cast<const VisualControl *>(hier->first));
}

} // namespace velmo
