#include "media/Avi.h"

#include "platform/Laufzeitfehler.h"

#include <cstdint>
#include <utility>

namespace velmo {

namespace {

constexpr std::size_t Kopf = 8;                         // Art und Länge eines Abschnitts
constexpr double KürzestesBild = 1, LängstesBild = 1e4; // ms

[[noreturn]] void keinFilm() { throw Laufzeitfehler(Fehlerart::Datei); }

std::uint32_t zahl(std::string_view b, std::size_t ort) {
    if (b.size() < 4 || ort > b.size() - 4) keinFilm();
    std::uint32_t z = 0;
    for (std::size_t i = 4; i-- > 0;)
        z = z << 8 | static_cast<unsigned char>(b[ort + i]);
    return z;
}

/// Geht die Abschnitte einer Folge durch; jeder muss ganz in ihr liegen. Eine Liste trägt ihre Art nach der Länge.
template <class Nimm> void jederAbschnitt(std::string_view folge, const Nimm &nimm) {
    while (folge.size() >= Kopf) {
        const std::size_t länge = zahl(folge, 4);
        if (länge > folge.size() - Kopf) keinFilm();
        std::string_view art = folge.substr(0, 4), inhalt = folge.substr(Kopf, länge);
        if ((art == "RIFF" || art == "LIST") && länge >= 4) {
            art = inhalt.substr(0, 4);
            inhalt.remove_prefix(4);
        }
        nimm(art, inhalt);
        const std::size_t ganz = Kopf + länge + länge % 2; // auf gerade Länge aufgefüllt
        folge.remove_prefix(ganz < folge.size() ? ganz : folge.size());
    }
}

class Leser {
  public:
    explicit Leser(std::string_view bytes) : bytes(bytes) {}

    Avi lies() {
        if (bytes.size() < 12 || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "AVI ") keinFilm();
        const std::size_t länge = zahl(bytes, 4);
        if (länge < 4 || länge > bytes.size() - Kopf) keinFilm();
        jederAbschnitt(bytes.substr(12, länge - 4), [this](std::string_view art, std::string_view inhalt) {
            if (art == "hdrl") liesKopf(inhalt);
            if (art == "movi") liesBilder(inhalt);
        });
        if (avi.Bilder.empty() || !(avi.Bildzeit >= KürzestesBild && avi.Bildzeit <= LängstesBild)) keinFilm();
        return std::move(avi);
    }

  private:
    void liesKopf(std::string_view kopf) {
        jederAbschnitt(kopf, [this](std::string_view art, std::string_view inhalt) {
            if (art == "avih") avi.Bildzeit = zahl(inhalt, 0) / 1000.0;
            if (art == "strl") liesSpur(inhalt);
        });
    }

    /// Der Takt der Bildspur gilt vor dem der Datei.
    void liesSpur(std::string_view spur) {
        jederAbschnitt(spur, [this](std::string_view art, std::string_view inhalt) {
            if (art != "strh" || inhalt.substr(0, 4) != "vids") return;
            const double dauer = zahl(inhalt, 20), takt = zahl(inhalt, 24);
            if (takt > 0) avi.Bildzeit = dauer / takt * 1000;
            avi.Verfahren = inhalt.substr(4, 4);
        });
    }

    void liesBilder(std::string_view bilder) {
        jederAbschnitt(bilder, [this](std::string_view art, std::string_view inhalt) {
            if (art == "00dc" || art == "00db")
                avi.Bilder.push_back({static_cast<std::size_t>(inhalt.data() - bytes.data()), inhalt.size()});
        });
    }

    std::string_view bytes;
    Avi avi;
};

} // namespace

Avi liesAvi(std::string_view bytes) { return Leser(bytes).lies(); }

} // namespace velmo
