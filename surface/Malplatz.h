#pragma once
// Wo die Stücke einer Form gemalt werden, in Twips auf der Form, und was beim Ziehen verblasst.
#include "platform/Zeichenliste.h"

namespace velmo {

/// Wohin ein Stück gezeichnet wird: ein ungestrecktes Bild hat seine natürliche Größe.
Rechteck malplatz(const Stück &);
/// Der volle Platz eines Bildes, auch wenn es erst wächst.
Rechteck bildplatz(const Stück &);

/// Wie sehr ein Schatten deckt: solange das Haus darüber noch steigt, ist er blasser.
double schattenkraft(const Stück &);

/// Was ein Steuerelement ist, das sich ziehen lässt, blendet während des Ziehens aus, was vor den Ablagen steht.
void blendeVerdeckendes(Zeichenliste &, const VisualControl *gezogen);

/// Ringsum eine Form, in Twips: der Schatten, den sie wirft, oder ihr Bild, über seine Kanten hinaus gespiegelt.
struct Saum {
    bool Schatten = false;
    double links = 0, oben = 0, rechts = 0, unten = 0; // ohne Schatten: so weit reicht das Spiegelbild
    bool operator==(const Saum &) const = default;
};
Saum saum(const Form &);

} // namespace velmo
