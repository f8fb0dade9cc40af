#include "window/Tonquelle.h"

#include "platform/Dateien.h"

#include <SDL.h>
#include <fluidsynth.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace velmo {

namespace {

constexpr const char *Klangsätze[] = {"/usr/share/sounds/sf2/TimGM6mb.sf2", "/usr/share/sounds/sf2/default-GM.sf2",
                                      "/usr/share/soundfonts/default.sf2"};
constexpr double Stückstärke = 0.75; // Verstärkung; die Musik liegt hörbar unter den Klängen
constexpr int Stimmen = 128;         // zugleich; kein Stück braucht mehr, und jede belegt Speicher

void mischeDazu(std::span<std::int16_t> ziel, const std::int16_t *proben, std::size_t zahl, double lautstärke) {
    SDL_MixAudioFormat(reinterpret_cast<Uint8 *>(ziel.data()), reinterpret_cast<const Uint8 *>(proben), AUDIO_S16SYS,
                       static_cast<Uint32>(zahl * sizeof *proben), static_cast<int>(SDL_MIX_MAXVOLUME * lautstärke));
}

template <auto lösche> struct Löscher {
    template <class T> void operator()(T *was) const { lösche(was); }
};
template <class T, auto lösche> using Eigner = std::unique_ptr<T, Löscher<lösche>>;

/// Ihre Proben liegen, wo SDL sie gelesen hat.
class Welle : public Tonquelle {
  public:
    bool öffne(const std::filesystem::path &datei) {
        SDL_AudioSpec wie;
        Uint8 *bytes = nullptr;
        Uint32 länge = 0;
        if (!SDL_LoadWAV(datei.c_str(), &wie, &bytes, &länge)) return false;
        proben.reset(bytes);
        SDL_AudioCVT u;
        if (SDL_BuildAudioCVT(&u, wie.format, wie.channels, wie.freq, AUDIO_S16SYS, Spuren, Abtastrate) < 0)
            return false;
        u.len = u.len_cvt = static_cast<int>(länge);
        if (u.needed) {
            u.buf = static_cast<Uint8 *>(SDL_realloc(bytes, std::size_t(länge) * static_cast<std::size_t>(u.len_mult)));
            if (!u.buf) return false;
            static_cast<void>(proben.release());
            proben.reset(u.buf);
            if (SDL_ConvertAudio(&u) < 0) return false;
        }
        zahl = static_cast<std::size_t>(u.len_cvt) / sizeof(std::int16_t);
        return true;
    }
    void mische(std::span<std::int16_t> ziel, double lautstärke) override {
        const std::size_t jetzt = std::min(ziel.size(), zahl - gespielt);
        mischeDazu(ziel, reinterpret_cast<const std::int16_t *>(proben.get()) + gespielt, jetzt, lautstärke);
        gespielt += jetzt;
    }
    bool zuEnde() const override { return gespielt == zahl; }
    long Länge() const override {
        return static_cast<long>(1000.0 * static_cast<double>(zahl - gespielt) / (Abtastrate * Spuren));
    }

  private:
    Eigner<Uint8, SDL_free> proben;
    std::size_t zahl = 0, gespielt = 0;
};

class Musikstück : public Tonquelle {
  public:
    Musikstück() {
        const auto setze = [this](const char *name, int wert) { fluid_settings_setint(werte.get(), name, wert); };
        fluid_settings_setnum(werte.get(), "synth.sample-rate", Abtastrate);
        setze("synth.polyphony", Stimmen);
        // Aus dem Klangsatz kommen nur die Instrumente, die spielen.
        setze("synth.dynamic-sample-loading", 1);
        synth.reset(new_fluid_synth(werte.get()));
        spieler.reset(new_fluid_player(synth.get()));
    }

    bool öffne(const std::filesystem::path &datei) {
        const auto *satz = std::ranges::find_if(Klangsätze, istDatei);
        return satz != std::end(Klangsätze) && fluid_synth_sfload(synth.get(), *satz, true) != FLUID_FAILED &&
               fluid_player_add(spieler.get(), datei.c_str()) == FLUID_OK &&
               fluid_player_play(spieler.get()) == FLUID_OK;
    }
    void mische(std::span<std::int16_t> ziel, double lautstärke) override {
        if (zuEnde()) return;
        if (lautstärke != gestellt) fluid_synth_set_gain(synth.get(), static_cast<float>(Stückstärke * lautstärke));
        gestellt = lautstärke;
        proben.resize(ziel.size());
        fluid_synth_write_s16(synth.get(), static_cast<int>(ziel.size()) / Spuren, proben.data(), 0, Spuren,
                              proben.data(), 1, Spuren);
        mischeDazu(ziel, proben.data(), proben.size(), 1);
    }
    bool zuEnde() const override { return fluid_player_get_status(spieler.get()) != FLUID_PLAYER_PLAYING; }

  private:
    Eigner<fluid_settings_t, delete_fluid_settings> werte{new_fluid_settings()};
    Eigner<fluid_synth_t, delete_fluid_synth> synth;
    Eigner<fluid_player_t, delete_fluid_player> spieler;
    double gestellt = -1;
    std::vector<std::int16_t> proben;
};

template <class Quelle> std::unique_ptr<Tonquelle> öffneAls(const std::filesystem::path &datei) {
    auto quelle = std::make_unique<Quelle>();
    if (!quelle->öffne(datei)) return nullptr;
    return quelle;
}

} // namespace

std::unique_ptr<Tonquelle> öffneWelle(const std::filesystem::path &datei) { return öffneAls<Welle>(datei); }
std::unique_ptr<Tonquelle> öffneStück(const std::filesystem::path &datei) { return öffneAls<Musikstück>(datei); }

} // namespace velmo
