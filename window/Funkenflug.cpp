#include "window/Funkenflug.h"

#include "window/Farbtöne.h"
#include "window/Schmuck.h"

namespace velmo {

QRect Funkenflug::folge(const Funken &neu, const Maß &maß) {
    // Ein Rechteck um alles: hundert kleine wären langsamer.
    QRect alle;
    const auto nimm = [&](const Funken &funken) {
        for (const auto &[r, farbe] : funken)
            alle |= funkenbereich(maß.rechteck(r));
    };
    if (!jetzt.empty() || !neu.empty()) spur.push_front(std::move(jetzt));
    jetzt = neu;
    nimm(jetzt);
    for (const Funken &alte : spur)
        nimm(alte);
    if (spur.size() > Spurlänge) spur.pop_back();
    return alle;
}

void Funkenflug::male(QPainter &p, const Maß &maß) const {
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    for (std::size_t alter = spur.size(); alter-- > 0;) {
        const Funken &hier = spur[alter], &danach = alter > 0 ? spur[alter - 1] : jetzt;
        if (hier.size() != danach.size()) continue; // einer verglühte: wer wo war, ist nicht zu sagen
        const double anteil = 1 - static_cast<double>(alter + 1) / (Spurlänge + 1);
        for (std::size_t i = 0; i < hier.size(); ++i)
            maleSpur(p, maß.rechteck(hier[i].first), maß.rechteck(danach[i].first), farbton::aus(hier[i].second),
                     anteil);
    }
    for (const auto &[r, farbe] : jetzt)
        maleFunken(p, maß.rechteck(r), farbton::aus(farbe));
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace velmo
