#pragma once
// Wie ein Vorleseprogramm nennt, was auf den Formen zu sehen ist. Was Schrift trägt, heißt nach ihr; was nur Bild ist,
// bekommt seinen Namen aus den Tafeln des Spiels. Was keinen Namen hat, ist Zierde.
#include "include/Programm.h"

#include <string>

namespace velmo {

/// Eine Ansage wird von selbst vorgelesen, wenn sie sich ändert.
enum class Rolle { Zierde, Text, Ansage, Bild, Gruppe, Knopf, Feld };

struct Benennung {
    Rolle rolle = Rolle::Zierde;
    std::string name;
    std::string beschreibung; // was ein Blick mehr verrät
    int rang = 0;             // wonach sich gleichrangige ordnen, ehe der Ort zählt
    bool operator==(const Benennung &) const = default;
};

Benennung benenne(const Programm &, const VisualControl &);

struct Formbenennung {
    Formularname Form;
    const char *Name;
    bool istDialog; // steht vor dem Brett oder dem Menü und wird beantwortet
};
/// Wie die Form heißt.
Formbenennung benenne(const Form &);

} // namespace velmo
