#pragma once
// Was der Spieler sähe: die Formulare einer Szene, vom Fenster des Spiels ohne Bildschirm gezeichnet.
#include "bench/Szene.h"

#include <QImage>

namespace velmo {

/// Die größte Vergrößerung, die ein Bild annimmt.
constexpr double GrößterFaktor = 8;

/// Das Bild des Ausschnitts (Twips der Anzeige); faktor sind Bildpunkte je Bildpunkt des Entwurfs.
QImage aufnahme(Szene &, const Rechteck &ausschnitt, double faktor);

} // namespace velmo
