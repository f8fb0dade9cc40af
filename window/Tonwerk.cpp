#include "window/Tonwerk.h"

#include "platform/Dateien.h"
#include "window/Speicher.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <utility>

namespace velmo {

namespace {

using namespace std::chrono_literals;

constexpr int Abtastrate = 44100, Spuren = 2, Puffer = 1024;
constexpr int BytesJeSekunde = Abtastrate * Spuren * 2;
constexpr int Musikstärke = MIX_MAX_VOLUME * 5 / 8;         // die Musik liegt hörbar unter den Klängen
constexpr auto Blick = 200ms;                               // so oft, solange das Gerät offen ist
constexpr auto Nachklang = 2s;                              // danach schließt es
constexpr long Gerätezeit = 2 * 1000 * Puffer / Abtastrate; // ms, bis Gemischtes auch gehört ist

constexpr const char *Klangsätze[] = {"/usr/share/sounds/sf2/TimGM6mb.sf2", "/usr/share/sounds/sf2/default-GM.sf2",
                                      "/usr/share/soundfonts/default.sf2"};

bool istStück(const std::filesystem::path &datei) {
    const std::string endung = datei.extension().string();
    return SDL_strcasecmp(endung.c_str(), ".mid") == 0;
}

} // namespace

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
        lautstärke = neue;
        if (offen) wendeLautstärkeAn();
    });
}

void Tonwerk::laufe() {
    std::unique_lock sperre(schloss);
    const auto gefragt = [this] { return ende || !aufträge.empty(); };
    while (!ende) {
        if (offen)
            bedarf.wait_for(sperre, Blick, gefragt);
        else
            bedarf.wait(sperre, gefragt);
        std::deque<std::function<void()>> jetzt;
        jetzt.swap(aufträge);
        sperre.unlock();
        for (const auto &auftrag : jetzt)
            auftrag();
        if (offen) sieNach();
        sperre.lock();
    }
    sperre.unlock();
    if (offen) schließeGerät();
}

bool Tonwerk::öffneGerät() {
    if (offen || stumm) return offen;
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Velmo");
    offen = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 &&
            Mix_OpenAudioDevice(Abtastrate, AUDIO_S16SYS, Spuren, Puffer, nullptr, 0) == 0;
    stumm = !offen;
    if (stumm) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    for (const char *satz : Klangsätze)
        if (istDatei(satz)) {
            Mix_SetSoundFonts(satz);
            break;
        }
    wendeLautstärkeAn();
    return true;
}

void Tonwerk::wendeLautstärkeAn() {
    Mix_VolumeMusic(static_cast<int>(Musikstärke * lautstärke));
    Mix_MasterVolume(static_cast<int>(MIX_MAX_VOLUME * lautstärke));
}

void Tonwerk::schließeGerät() {
    for (const auto &s : std::exchange(klingende, {}))
        lass(*s);
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    offen = false;
    gibSpeicherZurück();
}

void Tonwerk::führeAus(const std::shared_ptr<Stimme> &s) {
    const std::filesystem::path datei = findePfad(s->Datei);
    bool klingt = false;
    if (istDatei(datei) && öffneGerät()) {
        if (istStück(datei)) {
            // Ein Stück zur Zeit: das neue löst das alte ab.
            for (const auto &anderes : klingende)
                if (anderes->stück) lass(*anderes);
            s->stück = Mix_LoadMUS(datei.c_str());
            gibSpeicherZurück(); // was das Lesen des Klangsatzes brauchte
            klingt = s->stück && Mix_PlayMusic(s->stück, 1) == 0;
        } else {
            s->welle = Mix_LoadWAV(datei.c_str());
            if (s->welle) s->Länge = static_cast<long>(1000.0 * s->welle->alen / BytesJeSekunde) + Gerätezeit;
            klingt = s->welle && Mix_PlayChannel(-1, s->welle, 0) >= 0;
        }
    }
    if (!klingt) {
        lass(*s);
        s->Länge = 0;
        return;
    }
    s->Beginn = zuletzt = Tonuhr::now();
    s->stand = Stimme::Stand::Klingt;
    klingende.push_back(s);
}

/// Freigeben bricht ab, was noch klingt.
void Tonwerk::lass(Stimme &s) {
    if (s.stück) {
        s.Länge = seit(s.Beginn);
        Mix_FreeMusic(std::exchange(s.stück, nullptr));
    }
    if (s.welle) Mix_FreeChunk(std::exchange(s.welle, nullptr));
    s.stand = Stimme::Stand::Zuende;
}

void Tonwerk::sieNach() {
    for (const auto &s : klingende)
        if (s->stück ? !Mix_PlayingMusic() : s->welle && seit(s->Beginn) > s->Länge) lass(*s);
    std::erase_if(klingende, [](const auto &s) { return s->stand == Stimme::Stand::Zuende; });
    if (!klingende.empty()) zuletzt = Tonuhr::now();
    if (Tonuhr::now() - zuletzt > Nachklang) schließeGerät();
}

} // namespace velmo
