// Beliebige Bytes als Bestenliste: sie hat höchstens neun Einträge, und ein Sieg über allen steht danach vorn.
#include "bench/Prüffläche.h"
#include "shell/Bestenliste.h"
#include "shell/Formtafel.h"
#include "tests/Fuzzdatei.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe) {
    static const velmo::Fuzzdatei datei("besten.sav");
    datei.schreibe(daten, größe);
    velmo::Prüffläche fläche;
    velmo::Programm p(fläche, velmo::Formtafel(), datei.Ordner);
    p.Zustand.Programmpfad = datei.Ordner;
    p.Zustand.Spielername = "Ada";
    const auto vorher = velmo::liesBestenliste(p);
    velmo::trageEin(p, 2'000'000'000);
    const auto nachher = velmo::liesBestenliste(p);
    if (vorher.size() > 9 || nachher.empty() || nachher.size() > 9) std::abort();
    double erste = 0;
    const bool überholt = vorher.empty() || !velmo::liesZahl(vorher[0].Punkte, erste) || erste < 2e9;
    if (überholt && nachher[0].Name != "Ada") std::abort();
    return 0;
}
