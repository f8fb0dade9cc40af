#pragma once
// Die Laufzeitfehler, mit denen die Regeln ein Spiel enden lassen, und woran man am Stand erkennt, dass es einer von
// ihnen war.
#include "include/Programm.h"

#include <string>

namespace velmo {

/// Die Regel, nach der das Programm mit diesem Fehler enden durfte; null, wenn der Stand keine nennt. art ist das Wort
/// der Szene: "überlauf", "typ", "index", "argument", "datei".
const char *Regelende(Programm &, const std::string &art);

/// Die Regel, nach der dem Spieler nichts mehr bleibt als das Fenster zu schließen; geschlossen: eine Form ging durch
/// ihr Fenster zu, was nur eine Szene kann. Null, wenn der Stand keine nennt.
const char *Sackgassenregel(Programm &, bool geschlossen);

} // namespace velmo
