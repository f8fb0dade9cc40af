#pragma once
// Was auf einer Form zu sehen ist, als Liste von hinten nach vorn: eine Abschrift der Eigenschaften, aus der gezeichnet
// und an der abgelesen wird, was sich geändert hat.
#include "platform/Form.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmo {

enum class Sorte { Schatten, Beschriftung, Bild, Bildfeld, Rahmen, Linie, Film, Knopf, Bedienelement };

struct Stück {
    const Control *control = nullptr; // nur zum Wiedererkennen; beim Schatten, was ihn wirft
    Sorte sorte = Sorte::Bild;
    double Left = 0, Top = 0, Width = 0, Height = 0; // auf der Form; bei Linien von Punkt zu Punkt
    bool sichtbar = true, gesperrt = false;
    bool ablage = false; // nimmt Gezogenes
    double deckung = 1;  // darunter scheint durch, was dahinter liegt
    bool schatten = false, wieKnopf = false, nurUnterZeiger = false;
    std::optional<Farbe> schein;

    std::string text, schriftart, hinweis;
    double schriftgrad = 8.25;
    bool fett = false, deckend = false, erhaben = false, mittig = false;
    Farbe farbe, grund;
    Ausrichtung ausrichtung = Ausrichtung::Links;
    std::optional<Listensatz> liste;

    std::string bild;
    double natürlicheBreite = 0, natürlicheHöhe = 0; // 0: das Bild füllt das Rechteck
    bool wächst = false;
    double drehung = 0; // Grad im Uhrzeigersinn um seine Mitte
    Gebaren gebaren = Gebaren::Keins;
    double rand = 0; // Bildpunkte des Entwurfs
    Gestalt gestalt = Gestalt::Rechteck;

    bool operator==(const Stück &) const = default;
    Rechteck ort() const { return {Left, Top, Width, Height}; }
};

using Zeichenliste = std::vector<Stück>;

Zeichenliste zeichenliste(const Form &);

} // namespace velmo
