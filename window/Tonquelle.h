#pragma once
// Was klingen kann: Wellen und MIDI-Stücke, in Proben des Geräts.
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace velmo {

/// Proben haben 16 Bit; die beiden Spuren wechseln sich ab.
constexpr int Abtastrate = 44100, Spuren = 2;

class Tonquelle {
  public:
    virtual ~Tonquelle() = default;
    /// Mischt ihre nächsten Proben dazu; lautstärke von 0 bis 1.
    virtual void mische(std::span<std::int16_t> proben, double lautstärke) = 0;
    virtual bool zuEnde() const = 0;
    /// ms, die noch nicht gemischt sind; 0, wenn es nicht bekannt ist.
    virtual long Länge() const { return 0; }
};

/// Null, wenn sich die Datei nicht als Welle lesen lässt.
std::unique_ptr<Tonquelle> öffneWelle(const std::filesystem::path &);
/// Null, wenn sie kein MIDI-Stück ist oder der Klangsatz fehlt.
std::unique_ptr<Tonquelle> öffneStück(const std::filesystem::path &);

} // namespace velmo
