#include "window/Tonwerk.h"

#include "platform/Dateien.h"
#include "window/Speicher.h"
#include "window/Tonquelle.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

namespace velmo {

namespace {

using namespace std::chrono_literals;

constexpr int Puffer = 1024;                                // Proben je Spur, die das Gerät auf einmal holt
constexpr auto Blick = 200ms;                               // so oft, solange das Gerät offen ist
constexpr auto Nachklang = 2s;                              // danach schließt es
constexpr long Gerätezeit = 2 * 1000 * Puffer / Abtastrate; // ms, bis Gemischtes auch gehört ist

bool istStück(const std::filesystem::path &datei) {
    const std::string endung = datei.extension().string();
    return SDL_strcasecmp(endung.c_str(), ".mid") == 0;
}

/// Solange sie lebt, mischt das Gerät nicht.
class Mischpause {
  public:
    explicit Mischpause(SDL_AudioDeviceID gerät) : gerät(gerät) { SDL_LockAudioDevice(gerät); }
    ~Mischpause() { SDL_UnlockAudioDevice(gerät); }
    Mischpause(const Mischpause &) = delete;

  private:
    const SDL_AudioDeviceID gerät;
};

} // namespace

Stimme::Stimme(std::string datei) : Datei(std::move(datei)) {}
Stimme::~Stimme() = default;

Tonwerk::~Tonwerk() {
    if (!faden.joinable()) return;
    {
        const std::lock_guard sperre(schloss);
        ende = true;
    }
    bedarf.notify_one();
    faden.join();
}

void Tonwerk::beginne() {
    if (!faden.joinable()) faden = std::thread([this] { laufe(); });
}

void Tonwerk::gib(std::function<void()> auftrag) {
    {
        const std::lock_guard sperre(schloss);
        aufträge.push_back(std::move(auftrag));
    }
    bedarf.notify_one();
}

void Tonwerk::spiele(std::shared_ptr<Stimme> s) {
    gib([this, s = std::move(s)] { führeAus(s); });
}

void Tonwerk::schließe(std::shared_ptr<Stimme> s) {
    gib([this, s = std::move(s)] { lass(*s); });
}

void Tonwerk::stelleLautstärke(double neue) {
    gib([this, neue] {
        const Mischpause pause(gerät);
        lautstärke = neue;
    });
}

void Tonwerk::laufe() {
    std::unique_lock sperre(schloss);
    const auto gefragt = [this] { return ende || !aufträge.empty(); };
    while (!ende) {
        if (gerät)
            bedarf.wait_for(sperre, Blick, gefragt);
        else
            bedarf.wait(sperre, gefragt);
        std::deque<std::function<void()>> jetzt;
        jetzt.swap(aufträge);
        sperre.unlock();
        for (const auto &auftrag : jetzt)
            auftrag();
        if (gerät) sieNach();
        sperre.lock();
    }
    sperre.unlock();
    if (gerät) schließeGerät();
}

bool Tonwerk::öffneGerät() {
    if (gerät || stumm) return gerät;
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Velmo");
    SDL_AudioSpec wie{};
    wie.freq = Abtastrate;
    wie.format = AUDIO_S16SYS;
    wie.channels = Spuren;
    wie.samples = Puffer;
    wie.userdata = this;
    wie.callback = [](void *werk, Uint8 *bytes, int zahl) {
        static_cast<Tonwerk *>(werk)->mische(
            {reinterpret_cast<std::int16_t *>(bytes), static_cast<std::size_t>(zahl) / sizeof(std::int16_t)});
    };
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) gerät = SDL_OpenAudioDevice(nullptr, 0, &wie, nullptr, 0);
    stumm = !gerät;
    if (stumm)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    else
        SDL_PauseAudioDevice(gerät, 0);
    return gerät;
}

void Tonwerk::schließeGerät() {
    while (!klingende.empty())
        lass(*std::shared_ptr(klingende.back()));
    SDL_CloseAudioDevice(std::exchange(gerät, 0));
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    gibSpeicherZurück();
}

/// Im Faden des Geräts.
void Tonwerk::mische(std::span<std::int16_t> proben) {
    std::ranges::fill(proben, std::int16_t{0});
    for (const auto &s : klingende)
        s->quelle->mische(proben, lautstärke);
}

void Tonwerk::führeAus(const std::shared_ptr<Stimme> &s) {
    const std::filesystem::path datei = findePfad(s->Datei);
    s->istStück = istStück(datei);
    if (istDatei(datei) && öffneGerät()) {
        // Ein Stück zur Zeit: das neue löst das alte ab.
        for (const auto &anderes : std::vector(klingende))
            if (s->istStück && anderes->istStück) lass(*anderes);
        s->quelle = s->istStück ? öffneStück(datei) : öffneWelle(datei);
    }
    if (!s->quelle) {
        s->Länge = 0;
        s->stand = Stimme::Stand::Zuende;
        return;
    }
    if (s->istStück)
        gibSpeicherZurück(); // was das Lesen des Klangsatzes brauchte
    else
        s->Länge = s->quelle->Länge() + Gerätezeit;
    s->Beginn = zuletzt = Tonuhr::now();
    s->stand = Stimme::Stand::Klingt;
    const Mischpause pause(gerät);
    klingende.push_back(s);
}

/// Bricht ab, was noch klingt.
void Tonwerk::lass(Stimme &s) {
    {
        const Mischpause pause(gerät);
        std::erase_if(klingende, [&](const auto &k) { return k.get() == &s; });
    }
    if (s.istStück && s.quelle) s.Länge = seit(s.Beginn);
    s.quelle.reset();
    s.stand = Stimme::Stand::Zuende;
}

void Tonwerk::sieNach() {
    for (const auto &s : std::vector(klingende))
        if (s->istStück ? s->quelle->zuEnde() : seit(s->Beginn) > s->Länge) lass(*s);
    if (!klingende.empty()) zuletzt = Tonuhr::now();
    if (Tonuhr::now() - zuletzt > Nachklang) schließeGerät();
}

} // namespace velmo
