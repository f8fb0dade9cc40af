#pragma once
// Wie die gezeichneten Elemente aussehen. Orte sind Bildpunkte des Bildschirms, bezogen auf die Form.
#include "platform/Zeichenliste.h"
#include "window/Bildspeicher.h"
#include "window/Maß.h"

#include <QPainter>

namespace velmo {

/// Wohin ein Stück gezeichnet wird.
QRect malort(const Stück &, const Maß &);
/// Was es höchstens überdeckt: mit Rand und geglätteten Kanten.
QRect malbereich(const Stück &, const Maß &);

/// Was es drehend und mit seinem Staub höchstens überdeckt.
QRect schwungbereich(const Stück &, const Maß &);
/// Worin sich das Rechteck um seine Mitte drehen kann.
QRect gedreht(const QRect &);

/// Die Größe, in der sein Bild gebraucht wird.
QSize bildgröße(const Stück &, const Maß &);

/// Ein Stück außer Knöpfen und Bedienelementen, die selbst Fenster sind.
void male(QPainter &, Bildspeicher &, const Maß &, const Stück &, const QRect &ort);

/// Wie die Schrift einer Beschriftung steht.
int ausrichtung(const Stück &);
/// Der Platz der Schrift auf einem Knopf; unter seinem Bild, wenn er eins hat.
QRect knopfschrift(const Stück &, const Maß &, const QRect &knopf);

/// Ein Bild im Rechteck, ohne Verzerrung der Kanten; falsch, wenn es sich nicht lesen lässt.
bool maleBild(QPainter &, Bildspeicher &, const std::string &Datei, const QRect &);
/// Ein Bild auf das Rechteck gestreckt: seine Ecken bleiben, die Kanten und die Mitte strecken sich.
void maleGestreckt(QPainter &, const QImage &, int ecke, const QRect &ziel, int zielecke);
/// Umbrochener Text; was nicht passt, wird kleiner. Die Schrift ist in Satzpunkten.
void maleText(QPainter &, const Maß &, const QRect &, int ausrichtung, const QString &, const QFont &, const QColor &);
/// Wie viel Platz derselbe Text braucht, Bildpunkte des Bildschirms.
QSizeF textbedarf(const Maß &, const QRect &, int ausrichtung, const QString &, const QFont &);
/// Der Grund einer Form ohne Bild: Papier in ihrer Farbe mit feinem Rahmen.
void malePapier(QPainter &, const Maß &, const QRect &, const QColor &, bool rahmen);

} // namespace velmo
