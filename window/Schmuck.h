#pragma once
// Licht und Schatten um das Gezeichnete. Orte sind Bildpunkte des Bildschirms.
#include "window/Maß.h"

#include <QPainter>

namespace velmo {

/// Der weiche Schatten ringsum, den etwas auf das dahinter wirft.
void maleSchatten(QPainter &, const QRect &ding, int breite, int höchstens = 16);
/// Der Schein, in dem ein Ding steht, und wie weit er reicht.
QRect scheinbereich(const QRect &ding, const Maß &);
void maleSchein(QPainter &, const QRect &ding, const Maß &, const QColor &);
/// Eine Sternennacht.
void maleNacht(QPainter &, const QRect &);
/// Ein glühender Funke, und wie weit sein Licht reicht.
QRect funkenbereich(const QRect &kern);
void maleFunken(QPainter &, const QRect &kern, const QColor &);
/// Was auf dem Weg zum nächsten Ort von ihm nachleuchtet; anteil: 1 eben noch, 0 vergangen.
void maleSpur(QPainter &, const QRect &kern, const QRect &nächster, const QColor &, double anteil);

} // namespace velmo
