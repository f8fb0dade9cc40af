#include "window/Bildspeicher.h"

#include "window/Schrift.h"

#include <QImageReader>

#include <chrono>
#include <memory>

namespace velmo {

namespace {

constexpr int VorratKiB = 1 << 10, RoheKiB = 512;

int kosten(const QSize &g) { return static_cast<int>(qint64(g.width()) * g.height() * 4 / 1024 + 1); }

QString vorratsname(const Bildwunsch &w) {
    return QString("%1 %2 %3").arg(w.größe.width()).arg(w.größe.height()).arg(text(w.Datei));
}

QImage lies(QImageReader &leser) {
    QImage bild = leser.read();
    return std::move(bild).convertToFormat(bild.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                  : QImage::Format_RGB32);
}

/// JPEG entpackt sich gleich in Achteln nahe der Größe: ein Vielfaches rascher und kleiner. Was durchscheint, ist
/// klein.
QImage gelesen(const std::string &Datei, const QSize &größe) {
    QImageReader leser(text(Datei));
    if (leser.format() == "jpeg") leser.setScaledSize(größe);
    QImage bild = lies(leser);
    if (bild.isNull() || bild.size() == größe) return bild;
    return bild.scaled(größe, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

Bildspeicher::Bildspeicher() : vorrat(VorratKiB), rohe(RoheKiB) { leser.setMaxThreadCount(1); }

QImage Bildspeicher::roh(const std::string &Datei) {
    const QString name = text(Datei);
    if (const QImage *da = rohe.object(name)) return *da;
    QImageReader leser(name);
    const QImage bild = lies(leser);
    rohe.insert(name, new QImage(bild), kosten(bild.size()));
    return bild;
}

QSize Bildspeicher::größe(const std::string &Datei) {
    const auto [hier, neu] = größen.try_emplace(Datei);
    if (neu) hier->second = QImageReader(text(Datei)).size();
    return hier->second;
}

QPixmap Bildspeicher::bild(const std::string &Datei, const QSize &größe) {
    if (Datei.empty() || größe.isEmpty()) return {};
    const Bildwunsch wunsch{Datei, größe};
    if (const auto da = fertige.find(wunsch); da != fertige.end()) return da->second;
    if (inEile)
        if (const auto da = fertige.lower_bound({Datei, {}}); da != fertige.end() && da->first.Datei == Datei)
            return da->second;
    QPixmap fertig;
    if (const std::unique_ptr<QPixmap> da(vorrat.take(vorratsname(wunsch))); da)
        fertig = *da;
    else
        fertig = QPixmap::fromImage(erhalte(wunsch));
    if (!fertig.isNull()) fertige[wunsch] = fertig;
    return fertig;
}

/// Was schon ein anderer Faden liest, wird nicht zweimal gelesen.
QImage Bildspeicher::erhalte(const Bildwunsch &wunsch) {
    const auto anderswo = unterwegs.find(wunsch);
    if (anderswo == unterwegs.end()) return gelesen(wunsch.Datei, wunsch.größe);
    QImage bild = anderswo->second.get();
    unterwegs.erase(anderswo);
    return bild;
}

bool Bildspeicher::istDa(const Bildwunsch &w) const {
    return !nebenher || w.Datei.empty() || w.größe.isEmpty() || fertige.contains(w) || vorrat.contains(vorratsname(w));
}

std::future<QImage> &Bildspeicher::bestelle(const Bildwunsch &wunsch) {
    auto [hier, neu] = unterwegs.try_emplace(wunsch);
    if (neu) {
        const auto auftrag =
            std::make_shared<std::packaged_task<QImage()>>([wunsch] { return gelesen(wunsch.Datei, wunsch.größe); });
        hier->second = auftrag->get_future();
        leser.start([auftrag] { (*auftrag)(); });
    }
    return hier->second;
}

QPixmap Bildspeicher::baldigesBild(const std::string &Datei, const QSize &größe) {
    const Bildwunsch wunsch{Datei, größe};
    if (!istDa(wunsch) && bestelle(wunsch).wait_for(std::chrono::seconds(0)) != std::future_status::ready) return {};
    return bild(Datei, größe);
}

void Bildspeicher::liesVoraus(const std::set<Bildwunsch> &wünsche) {
    for (const Bildwunsch &w : wünsche)
        if (!istDa(w)) bestelle(w);
}

void Bildspeicher::eile(bool an) {
    inEile = an;
    if (an) return;
    fertige.clear();
    vorrat.clear();
}

void Bildspeicher::behalte(const std::set<Bildwunsch> &gezeigt) {
    const auto bleibt = [&](const Bildwunsch &w) { return gezeigt.contains(w) || gezeigt.contains({w.Datei, {}}); };
    std::erase_if(unterwegs, [&](const auto &eintrag) { return !bleibt(eintrag.first); });
    std::erase_if(fertige, [&](auto &eintrag) {
        const auto &[wunsch, bild] = eintrag;
        if (inEile || bleibt(wunsch)) return false;
        vorrat.insert(vorratsname(wunsch), new QPixmap(bild), kosten(bild.size()));
        return true;
    });
}

} // namespace velmo
