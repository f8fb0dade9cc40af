#pragma once
// Was die Seite für das Spiel tut; die andere Hälfte steht in Brücke.js.

extern "C" {
/// Nimmt ein Bündel Nachrichten.
void seite_nimm(const char *text, int bytes);
/// Das nächste Ereignis, seine Teile durch Tabulatoren getrennt; der Rufende gibt es mit free frei. Null ohne eines.
char *seite_ereignis();
/// Ruht so viele ms, unter 0 ohne Ende; weckbar: nur, bis ein Ereignis da ist. Der einzige Ruf, der wartet.
void seite_ruhe(double ms, int weckbar);
}
