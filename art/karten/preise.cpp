// Schreibt die Preise der acht Hotels aus den Tafeln des Spiels als JSON; daraus entstehen die Besitzkarten.
#include "model/Eingangstafel.h"
#include "model/Hoteltafel.h"
#include "property/Bauen.h"
#include "property/Grundstück.h"
#include "property/Miete.h"

#include <cstdio>

using namespace velmo;

int main() {
    const char *trenner = "[";
    for (const Hotel &h : Hotels) {
        const Mietzeile &miete = mietzeile(h.Kürzel);
        std::printf("%s{\"name\": \"%s\", \"karte\": %d, \"preis\": %d, \"zwang\": %d, \"stufen\": [", trenner, h.Name,
                    miete.Karte, grundstück(h.Kürzel).Preis, grundstück(h.Kürzel).Zwangspreis);
        const char *komma = "";
        for (const Baukosten &b : Baukostentafel)
            if (b.Hotel == h.Kürzel) {
                const auto stand = static_cast<std::size_t>(b.Stand);
                std::printf("%s{\"stand\": %zu, \"kosten\": %d, \"satz\": %d}", komma, stand, b.Kosten,
                            miete.Satz[stand]);
                komma = ", ";
            }
        std::printf("], \"eingänge\": [");
        komma = "";
        for (const Eingangsplatz &e : Eingangsplätze)
            if (e.Hotel == h.Kürzel) {
                std::printf("%s%d", komma, e.Kosten);
                komma = ", ";
            }
        std::printf("]}");
        trenner = ",\n";
    }
    std::printf("]\n");
}
