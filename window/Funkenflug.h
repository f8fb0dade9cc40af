#pragma once
// Das Feuerwerk: was eine Form zeichnet, als glühende Funken, und was von ihnen eben noch zu sehen war.
#include "platform/Farbe.h"
#include "platform/Rechteck.h"
#include "window/Maß.h"

#include <QPainter>

#include <deque>
#include <utility>
#include <vector>

namespace velmo {

class Funkenflug {
  public:
    using Funken = std::vector<std::pair<Rechteck, Farbe>>;
    /// Nimmt die neue Zeichnung der Form auf; was danach anders aussieht, in Bildpunkten.
    QRect folge(const Funken &neu, const Maß &);
    void male(QPainter &, const Maß &) const;

  private:
    static constexpr std::size_t Spurlänge = 5;
    Funken jetzt;
    std::deque<Funken> spur; // die letzten Zeichnungen, die jüngste vorn
};

} // namespace velmo
