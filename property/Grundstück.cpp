#include "property/Grundstück.h"

#include "boardform/Brett.h"

namespace velmo {

std::optional<Hotelkürzel> HotelZuSchlüssel(const std::string &Schlüssel) {
    for (const Grundstück &g : Grundstücke)
        if (Schlüssel == g.Schlüssel) return g.Hotel;
    return std::nullopt;
}

void Besitzanzeige(Programm &p) {
    for (const Hotel &h : Hotels) {
        if (p.Zustand.Hotels[h.Kürzel].Besitzer != Mensch) continue;
        Label &schild = brett(p).Schild(h.Kürzel);
        schild.Caption = p.Zustand.Spielername;
        schild.Visible = true;
    }
}

} // namespace velmo
