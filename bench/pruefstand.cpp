// Der Prüfstand: spielt Szenen und zählt, was galt.
#include "bench/Szenenlauf.h"

#include <iostream>

int main(int zahl, char **worte) {
    if (zahl < 2) std::cout << "Aufruf: pruefstand SZENE... (- liest die Eingabe)\n";
    return velmo::spieleDateien({worte + 1, worte + zahl}).ende();
}
