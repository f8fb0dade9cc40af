#pragma once
// Welche Tasten es gibt: je Form, wo der Fokus beginnt und was Escape drückt, und die Tasten des Bretts, die geradewegs
// ein Steuerelement drücken.
#include "include/Formulare.h"

#include <array>

namespace velmo {

/// Ein leerer Name: der Fokus beginnt beim ersten Textfeld oder Element; Escape tut nichts.
struct Formtasten {
    Formularname Form;
    const char *Anfang, *Abbruch;
};

// clang-format off
inline constexpr std::array<Formtasten, 16> Formtastentafel = {{
    // Form              Anfang        Escape
    {formular::Menu,     "Spieln",     ""},
    {formular::Menu2,    "Text1",      "Command1"},
    {formular::HoF,      "",           "SSCommand1"},
    {formular::frmHilfe, "Text6",      "Command1"},
    {formular::Überf,    "OK",         "OK"},
    {formular::Dank,     "Label1",     "Label1"},
    {formular::Sprech,   "Command2",   "Command2"},
    {formular::Karten,   "Image2",     "Image3"},
    {formular::Exchange, "Combo1",     "Command2"},
    {formular::eingang,  "",           "SSCommand9"},
    {formular::geldfeld, "SSCommand1", "SSCommand3"},
    {formular::Bezahlen, "würfeln",    ""},
    {formular::Baufeld,  "Command3",   "Command2"},
    {formular::Bauphase, "",           "Command1"},
    {formular::Verloren, "SSCommand3", "SSCommand3"},
    {formular::Gewinn,   "SSCommand1", "SSCommand1"},
}};

/// Eine Taste auf dem Brett (Form1); Control heißt, was sie drückt.
struct Brettaste {
    char Taste;
    const char *Name, *Control, *Wirkung;
};

inline constexpr std::array<Brettaste, 12> Brettastentafel = {{
    {'W', "W", "WüButton",   "würfeln, Würfel anhalten"},
    {'F', "F", "Fertig",     "Zug beenden"},
    {'K', "K", "Command2",   "Besitzkarten"},
    {'1', "1", "g50",        "einen Fünfziger zahlen"},
    {'2', "2", "g100",       "einen Hunderter zahlen"},
    {'3', "3", "g500",       "einen Fünfhunderter zahlen"},
    {'4', "4", "g1000",      "einen Tausender zahlen"},
    {'5', "5", "g5000",      "einen Fünftausender zahlen"},
    {'E', "E", "Command1",   "Eingänge kaufen"},
    {'S', "S", "Imagee",     "Eingang aufheben und setzen"},
    {'T', "T", "SSCommand2", "Geld umtauschen"},
    {'H', "H", "SSCommand3", "Hilfe"},
}};

/// Die Tasten, die überall gelten; "|" trennt gleichbedeutende.
struct Fenstertaste {
    const char *Name, *Wirkung;
};
inline constexpr std::array<Fenstertaste, 9> Fenstertastentafel = {{
    {"Tab",             "weiter, mit Umschalt zurück"},
    {"Pfeile",          "zum Nachbarn"},
    {"Leer|Eingabe",    "drücken, ablegen"},
    {"… gehalten",      "zeigt, was dahintersteckt"},
    {"Esc",             "schließen, abbrechen"},
    {"F1",              "diese Tafel"},
    {"F6",              "Ton aus und wieder an"},
    {"F7|F8",           "leiser, lauter"},
    {"F11|Alt+Eingabe", "ganzer Bildschirm"},
}};
// clang-format on

} // namespace velmo
