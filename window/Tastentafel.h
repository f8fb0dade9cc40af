#pragma once
// Welche Tasten es gibt: je Form, wo der Fokus beginnt und was Escape drückt, und die Tasten des Bretts, die geradewegs
// ein Steuerelement drücken.
#include <QKeySequence>

#include <array>
#include <string_view>

namespace velmo {

/// Ein leerer Name: der Fokus beginnt beim ersten Textfeld oder Element; Escape tut nichts.
struct Formtasten {
    const char *Form, *Anfang, *Abbruch;
};

// clang-format off
inline constexpr std::array<Formtasten, 16> Formtastentafel = {{
    // Form      Anfang        Escape
    {"Menu",     "Spieln",     ""},
    {"Menu2",    "Text1",      "Command1"},
    {"HoF",      "",           "SSCommand1"},
    {"frmHilfe", "Text6",      "Command1"},
    {"Überf",    "OK",         "OK"},
    {"Dank",     "Label1",     "Label1"},
    {"Sprech",   "Command2",   "Command2"},
    {"Karten",   "Image2",     "Image3"},
    {"Exchange", "Combo1",     "Command2"},
    {"eingang",  "",           "SSCommand9"},
    {"geldfeld", "SSCommand1", "SSCommand3"},
    {"Bezahlen", "würfeln",    ""},
    {"Baufeld",  "Command3",   "Command2"},
    {"Bauphase", "",           "Command1"},
    {"Verloren", "SSCommand3", "SSCommand3"},
    {"Gewinn",   "SSCommand1", "SSCommand1"},
}};

/// Eine Taste auf dem Brett; Control heißt, was sie drückt.
struct Brettaste {
    Qt::Key Taste;
    const char *Name, *Control, *Wirkung;
};

inline constexpr const char *Brettform = "Form1";
inline constexpr std::array<Brettaste, 12> Brettastentafel = {{
    {Qt::Key_W, "W", "WüButton",   "würfeln, Würfel anhalten"},
    {Qt::Key_F, "F", "Fertig",     "Zug beenden"},
    {Qt::Key_K, "K", "Command2",   "Besitzkarten"},
    {Qt::Key_1, "1", "g50",        "einen Fünfziger zahlen"},
    {Qt::Key_2, "2", "g100",       "einen Hunderter zahlen"},
    {Qt::Key_3, "3", "g500",       "einen Fünfhunderter zahlen"},
    {Qt::Key_4, "4", "g1000",      "einen Tausender zahlen"},
    {Qt::Key_5, "5", "g5000",      "einen Fünftausender zahlen"},
    {Qt::Key_E, "E", "Command1",   "Eingänge kaufen"},
    {Qt::Key_S, "S", "Imagee",     "Eingang aufheben und setzen"},
    {Qt::Key_T, "T", "SSCommand2", "Geld umtauschen"},
    {Qt::Key_H, "H", "SSCommand3", "Hilfe"},
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
