#include "window/Fenster.h"

#include "include/Programm.h"
#include "window/Farbtöne.h"
#include "window/Gestaltung.h"
#include "window/Rand.h"
#include "window/Schrift.h"
#include "window/Speicher.h"
#include "window/Vorleser.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <ranges>

namespace velmo {

namespace {

constexpr QSize Entwurf(800, 600);
constexpr double Zeigerbild = 768;  // Twips: 64 Bildpunkte des Entwurfs im Geviert
constexpr double Ziehabstand = 120; // Twips
constexpr int Ruhezeit = 150;       // ms
constexpr int Aufräumzeit = 2000;   // ms
constexpr double Ziehgröße = 1.75;  // das Gezogene ist größer, damit man es unter dem Zeiger sieht

/// Die größte bequeme Größe, die auf den Bildschirm passt.
QSize anfangsgröße(const QSize &bildschirm) {
    const QSize platz = bildschirm * 0.85;
    for (const int drittel : {9, 6, 4, 3, 2}) {
        const QSize größe = Entwurf * drittel / 2;
        if (größe.width() <= platz.width() && größe.height() <= platz.height()) return größe;
    }
    return Entwurf.scaled(Entwurf.boundedTo(bildschirm), Qt::KeepAspectRatio);
}

constexpr std::pair<int, Taste> Tastennamen[] = {
    {Qt::Key_Left, Taste::Links},    {Qt::Key_Right, Taste::Rechts}, {Qt::Key_Up, Taste::Auf},
    {Qt::Key_Down, Taste::Ab},       {Qt::Key_Tab, Taste::Tab},      {Qt::Key_Backtab, Taste::Tab},
    {Qt::Key_Escape, Taste::Escape}, {Qt::Key_Space, Taste::Leer},   {Qt::Key_Return, Taste::Eingabe},
    {Qt::Key_Enter, Taste::Eingabe},
};

Tastendruck tastendruck(const QKeyEvent &e) {
    const auto name = std::ranges::find(Tastennamen, e.key(), &std::pair<int, Taste>::first);
    Tastendruck t;
    if (name != std::end(Tastennamen)) t.taste = name->second;
    if (e.key() < 0x80) t.zeichen = static_cast<char>(e.key()); // Qt nennt sie nach ihrem Zeichen
    t.text = e.text().toStdString();
    t.umschalt = e.key() == Qt::Key_Backtab || e.modifiers() & Qt::ShiftModifier;
    t.alsBefehl = e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    t.wiederholt = e.isAutoRepeat();
    return t;
}

} // namespace

/// Das Bild, das der Spieler zieht, über dem Zeiger: was er trifft, bleibt zu sehen.
class Fenster::Ziehbild : public QWidget {
  public:
    explicit Ziehbild(QWidget *anzeige) : QWidget(anzeige) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }
    void zeige(const QPixmap &neu, const QRect &ort) {
        bild = neu;
        setGeometry(ort);
        setVisible(true);
        raise();
    }

  protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawPixmap(rect(), bild); }

  private:
    QPixmap bild;
};

Fenster::Fenster(Umgebung &u, std::function<void()> schließt)
    : u(u), schließt(std::move(schließt)), anzeige(this), ziehbild(new Ziehbild(&anzeige)),
      tastenfokus(u.p, u.bearbeite), tasten(u.p, tastenfokus, u.bearbeite), ring(new Fokusring(&anzeige)),
      blatt(new Tastenblatt(&anzeige)), zettel(new Zettel(this)), leser(std::make_unique<Vorleser>(*this, u)) {
    setWindowTitle("Velmo");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    anzeige.setMouseTracking(true);
    setMinimumSize(Entwurf / 2);
    resize(anfangsgröße(QGuiApplication::primaryScreen()->availableSize()));
    for (const char *taste : {"F11", "Alt+Return", "Alt+Enter"})
        connect(new QShortcut(QKeySequence(taste), this), &QShortcut::activated, this, [this] { wechsleVollbild(); });
    connect(new QShortcut(QKeySequence("F1"), this), &QShortcut::activated, this,
            [this] { blatt->isVisible() ? blatt->hide() : blatt->zeige(maß); });
    tastenfokus.beiWechsel([this] { folgeFokus(); });
    connect(qApp, &QApplication::focusChanged, this, &Fenster::nimmFokus, Qt::QueuedConnection);
    beruhigt.setSingleShot(true);
    beruhigt.setInterval(Ruhezeit);
    beruhigt.callOnTimeout([this] {
        this->u.bilder.eile(false);
        for (auto &[nummer, fläche] : flächen)
            fläche->update();
    });
    stillstand.setSingleShot(true);
    stillstand.setInterval(Formfläche::Stillstand);
    stillstand.callOnTimeout([this] { folge(gleitet); });
    danach.setSingleShot(true);
    danach.setInterval(Aufräumzeit);
    danach.callOnTimeout(gibSpeicherZurück);
    messe();
    anzeige.setStyleSheet(feldgestalt(vergrößerung()));
}

Fenster::~Fenster() = default;

void Fenster::erfülle(const Wünsche &wünsche) {
    if (wünsche == maß.wünsche) return;
    maß.wünsche = wünsche;
    folge();
}

void Fenster::wechsleVollbild() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void Fenster::messe() {
    const double dichte = devicePixelRatioF();
    const double strecke =
        std::min(width() / double(Entwurf.width()), height() / double(Entwurf.height())); // je Bildpunkt des Entwurfs
    const QSize größe(static_cast<int>(Entwurf.width() * strecke), static_cast<int>(Entwurf.height() * strecke));
    anzeige.setGeometry((width() - größe.width()) / 2, (height() - größe.height()) / 2, größe.width(), größe.height());
    const Maß neu{strecke * dichte / 12, dichte, maß.wünsche};
    if (neu == maß) return;
    maß = neu;
    anzeige.setStyleSheet(feldgestalt(vergrößerung()));
}

Formfläche *Fenster::fläche(const Form &form) const {
    const auto hier = flächen.find(form.Nummer);
    return hier == flächen.end() ? nullptr : hier->second;
}

void Fenster::folge(bool gleitende) {
    gleitet = gleitende;
    const auto formen = u.p.Formen();
    bool anders = std::erase_if(flächen, [&](const auto &eintrag) {
        if (std::ranges::any_of(formen, [&](const Form *f) { return f->Nummer == eintrag.first; })) return false;
        eintrag.second->hide();
        eintrag.second->deleteLater();
        danach.start();
        return true;
    });
    for (const Form *form : formen) {
        Formfläche *&fläche = flächen[form->Nummer];
        if (!fläche) {
            fläche = new Formfläche(&anzeige, u);
            if (windowIcon().isNull() && !form->Icon().leer()) setWindowIcon(QIcon(text(form->Icon().Datei)));
        }
        anders |= fläche->folge(*form, maß, u.p.eingabe.gezogen());
    }
    if (std::ranges::any_of(flächen, [](const auto &eintrag) { return eintrag.second->wartet(); })) stillstand.start();
    folgeReihenfolge(formen);
    folgeUmland();
    folgeGezogenem();
    folgeBerührtem();
    tastenfokus.folge();
    folgeRing();
    blatt->folge(maß);
    leser->folge();
    if (anders) räumeAuf();
}

/// Bilder, die niemand mehr sieht, gehen: auch die von Formen hinter einer, die alles verdeckt.
void Fenster::räumeAuf() {
    std::set<Bildwunsch> gezeigt;
    auto fläche = reihenfolge.rbegin();
    const auto nenne = [&] {
        while (fläche != reihenfolge.rend() && !flächen[*fläche++]->nenneBilder(gezeigt)) {
        }
    };
    nenne();
    if (gleitet) {
        nenne();
        u.bilder.liesVoraus(gezeigt);
    }
    u.bilder.behalte(gezeigt);
}

void Fenster::folgeReihenfolge(const std::vector<Form *> &formen) {
    std::vector<std::uint64_t> neu;
    for (const Form *form : formen)
        neu.push_back(form->Nummer);
    if (neu == reihenfolge) return;
    // Gehobenes wird ganz neu gezeichnet: was unten bleibt, bleibt liegen.
    std::erase_if(reihenfolge, [this](std::uint64_t nummer) { return !flächen.contains(nummer); });
    for (auto hier = std::ranges::mismatch(neu, reihenfolge).in1; hier != neu.end(); ++hier)
        flächen[*hier]->raise();
    reihenfolge = std::move(neu);
}

/// Die Tasten gehören dem Bedienelement des Systems, das den Fokus hat, sonst dem Fenster.
void Fenster::folgeFokus() {
    const VisualControl *c = tastenfokus.control();
    const Formfläche *wo = c ? fläche(c->form) : nullptr;
    QWidget *feld = wo ? wo->feld(*c) : nullptr;
    QWidget *nimmt = feld ? feld : this;
    if (feld) feld->installEventFilter(this);
    if (!nimmt->hasFocus() && focusWidget() != nimmt) nimmt->setFocus(Qt::OtherFocusReason);
    folgeRing();
}

void Fenster::folgeRing() {
    for (const auto &[nummer, fläche] : flächen)
        fläche->zeigeGedrückt(tastenfokus.gehalten());
    const VisualControl *frei = tastenfokus.control(), *c = frei ? frei : tastenfokus.stelle();
    const Formfläche *wo = c ? fläche(c->form) : nullptr;
    const Stück *s = wo ? wo->stück(*c) : nullptr;
    // Was ein gehaltenes Bild zeigt, soll der Ring nicht verdecken.
    const bool gehalten = c && c == tastenfokus.gehalten();
    if (!s || !s->sichtbar || !tastenfokus.sichtbar() || (gehalten && s->sorte == Sorte::Bild)) return ring->hide();
    const QRect punkte = maß.rechteck({c->form.Left + s->Left, c->form.Top + s->Top, s->Width, s->Height});
    using enum Fokusring::Lage;
    ring->zeige(maß.fensterrechteck(punkte), maß, !frei ? Gesperrt : gehalten ? Gedrückt : Frei);
}

/// Ein Klick in ein Textfeld oder eine Liste bringt den Fokus dorthin.
void Fenster::nimmFokus() {
    QWidget *feld = QApplication::focusWidget();
    if (!feld || !isAncestorOf(feld)) return;
    for (const auto &[nummer, fläche] : flächen)
        if (VisualControl *c = fläche->zu(*feld)) {
            feld->installEventFilter(this);
            tastenfokus.setze(*c);
            return;
        }
}

/// Die Tabulatortaste führt auch aus den Bedienelementen des Systems den Fokus des Fensters weiter.
bool Fenster::eventFilter(QObject *feld, QEvent *e) {
    const int taste = e->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(e)->key() : 0;
    if (taste != Qt::Key_Tab && taste != Qt::Key_Backtab) return QWidget::eventFilter(feld, e);
    keyPressEvent(static_cast<QKeyEvent *>(e));
    return true;
}

void Fenster::folgeGezogenem() {
    const VisualControl *gezogen = u.p.eingabe.gezogen();
    const auto *bild = dynamic_cast<const Image *>(gezogen);
    const Formfläche *quelle = gezogen ? fläche(gezogen->form) : nullptr;
    if (!bild || !quelle || !quelle->stück(*bild)) return ziehbild->hide();
    const Punkt zeiger = u.p.eingabe.zeiger();
    const Stück &s = *quelle->stück(*bild);
    const double breit = s.Width * Ziehgröße, hoch = s.Height * Ziehgröße;
    const QRect punkte = maß.rechteck({zeiger.x - breit / 2, zeiger.y - hoch - Ziehabstand, breit, hoch});
    ziehbild->zeige(u.bilder.bild(s.bild, punkte.size()), maß.fensterrechteck(punkte));
}

/// Was unter dem Zeiger liegt, zeigt es.
void Fenster::folgeBerührtem() {
    const bool hält = u.p.eingabe.hält();
    const Treffer t = u.p.eingabe.trifft(u.p.eingabe.zeiger());
    const auto formen = u.p.Formen();
    const auto vorderste =
        std::ranges::find_if(formen | std::views::reverse, [](const Form *f) { return f->Visible() && !f->region(); });
    for (const auto &[nummer, fläche] : flächen) {
        const bool hier = t.form && t.form->Nummer == nummer;
        fläche->zeigeZeiger(hier && t.form == *vorderste, hier && !u.p.eingabe.gezogen() ? t.control : nullptr, hält);
    }
}

/// Die Hand zeigt, was sich anfassen lässt.
void Fenster::folgeZeiger(Punkt p) {
    const Treffer t = u.p.eingabe.trifft(p);
    Qt::CursorShape zeiger = Qt::ArrowCursor;
    if (t.control && t.control->Click) zeiger = Qt::PointingHandCursor;
    if (t.control && !t.control->MouseIcon().leer()) return setzeZeiger(t.control->MouseIcon());
    if (t.control && t.control->DragMode) zeiger = Qt::OpenHandCursor;
    if (u.p.eingabe.gezogen()) zeiger = Qt::ClosedHandCursor;
    if (anzeige.cursor().shape() != zeiger) anzeige.setCursor(zeiger);
}

/// Ein eigener Zeiger, so groß wie das Fenster ihn zeigt; Qt hält ihn in seiner Mitte.
void Fenster::setzeZeiger(const Picture &eigener) {
    const int breit = maß.punkt(Zeigerbild);
    QPixmap bild = u.bilder.bild(eigener.Datei, {breit, breit});
    bild.setDevicePixelRatio(maß.dichte);
    const QCursor zeiger(bild);
    if (anzeige.cursor() != zeiger) anzeige.setCursor(zeiger);
}

Punkt Fenster::ort(const QMouseEvent &e) const {
    const QPointF p = (e.position() - QPointF(anzeige.pos())) * maß.dichte / maß.jeTwip;
    return {p.x(), p.y()};
}

void Fenster::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto punkte = [&](const QRect &r) {
        return QRectF(r.x() * maß.dichte, r.y() * maß.dichte, r.width() * maß.dichte, r.height() * maß.dichte)
            .toAlignedRect();
    };
    const auto [szene, ton] = umland(u.p);
    const bool füllt = szene && 2 * szene->Width > u.p.Screen().Width;
    const QPixmap bild =
        füllt ? u.bilder.bild(szene->Picture().Datei, maß.rechteck({0, 0, szene->Width, szene->Height}).size())
              : QPixmap();
    p.scale(1 / maß.dichte, 1 / maß.dichte);
    maleRand(p, punkte(rect()), punkte(anzeige.geometry()), bild, farbton::aus(ton));
}

/// Das Fenster rings um die Anzeige gehört zu der Szene darin.
void Fenster::folgeUmland() {
    const Umland neu = umland(u.p);
    if (neu == umgebend) return;
    umgebend = neu;
    update();
}

void Fenster::resizeEvent(QResizeEvent *) {
    u.bilder.eile(isVisible());
    beruhigt.start();
    messe();
    folge();
}

void Fenster::closeEvent(QCloseEvent *e) {
    e->ignore();
    schließt();
}

void Fenster::changeEvent(QEvent *e) {
    if (e->type() == QEvent::ActivationChange && isActiveWindow())
        frageSchreibtisch(this, [this](const Wünsche &w) { erfülle(w); });
    if (e->type() == QEvent::ActivationChange && !isActiveWindow()) tastenfokus.verliere();
    QWidget::changeEvent(e);
}

void Fenster::keyPressEvent(QKeyEvent *e) {
    if (blatt->isVisible())
        blatt->hide();
    else if (!tasten.drücke(tastendruck(*e)))
        QWidget::keyPressEvent(e);
}

void Fenster::keyReleaseEvent(QKeyEvent *e) {
    if (!tasten.löse(tastendruck(*e))) QWidget::keyReleaseEvent(e);
}

void Fenster::mouseMoveEvent(QMouseEvent *e) {
    const Punkt p = ort(*e);
    u.bearbeite([&] {
        u.p.eingabe.bewege(p);
        folgeZeiger(p);
    });
}

namespace {

std::optional<Maustaste> maustaste(const QMouseEvent &e) {
    if (e.button() == Qt::LeftButton) return Maustaste::Links;
    if (e.button() == Qt::RightButton) return Maustaste::Rechts;
    return std::nullopt;
}

} // namespace

void Fenster::mousePressEvent(QMouseEvent *e) {
    tastenfokus.verliere();
    tastenfokus.setzeSichtbar(false);
    // Ist sonst keine Taste unten, hält auch keine: ihr Loslassen kann an einen Kasten gegangen sein.
    if (e->buttons() == e->button()) u.p.eingabe.gibFrei();
    if (const auto taste = maustaste(*e)) u.bearbeite([&] { u.p.eingabe.drücke(*taste, ort(*e)); });
}

void Fenster::mouseReleaseEvent(QMouseEvent *e) {
    if (const auto taste = maustaste(*e)) u.bearbeite([&] { u.p.eingabe.löse(*taste, ort(*e)); });
}

/// Zwei rasche Drücke sind zwei, außer wo ein Doppelklick etwas bedeutet.
void Fenster::mouseDoubleClickEvent(QMouseEvent *e) {
    const VisualControl *c = u.p.eingabe.trifft(ort(*e)).control;
    if (!c || !c->DblClick) return mousePressEvent(e);
    u.bearbeite([&] { u.p.eingabe.doppelklick(ort(*e)); });
}

} // namespace velmo
