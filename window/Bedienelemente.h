#pragma once
// Textfelder, Listen und Rollbalken sind die des Systems; sie folgen dem Modell und melden, was der Spieler tut.
#include "surface/Bearbeiter.h"
#include "window/Maß.h"

#include <QWidget>

#include <functional>

namespace velmo {

class Programm;

struct Bedienelement {
    QWidget *widget = nullptr;
    /// Bringt das Bedienelement auf den Stand des Modells.
    std::function<void(const Maß &)> folge;
};

/// Das Bedienelement zum Steuerelement; ohne Widget, wenn es keines hat.
Bedienelement bedienelement(VisualControl &, QWidget *form, Programm &, const Bearbeiter &);

} // namespace velmo
