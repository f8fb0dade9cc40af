#pragma once
// Der Faden, der als einziger das Tongerät anrührt: Öffnen, Laden und Schließen halten das Spiel nie auf. Das Gerät ist
// nur offen, solange etwas klingt.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace velmo {

class Tonquelle;

using Tonuhr = std::chrono::steady_clock;
/// ms seit dem Beginn.
inline long seit(Tonuhr::time_point beginn) {
    return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(Tonuhr::now() - beginn).count());
}

/// Ein geöffneter Ton: eine Welle oder ein MIDI-Stück. Er klingt nach dem Öffnen einmal.
struct Stimme {
    enum class Stand { Offen, Bestellt, Klingt, Zuende };

    explicit Stimme(std::string datei);
    ~Stimme();

    const std::string Datei;
    std::atomic<Stand> stand = Stand::Offen;
    Tonuhr::time_point Bestellt;              // gesetzt, bevor der Stand es sagt
    std::atomic<Tonuhr::time_point> Beginn{}; // ebenso
    std::atomic<long> Länge = 0;              // ms; von einem Stück erst bekannt, wenn es zu Ende ist

    // Nur für den Faden.
    std::unique_ptr<Tonquelle> quelle;
    bool istStück = false;
};

class Tonwerk {
  public:
    ~Tonwerk();
    void beginne();
    void spiele(std::shared_ptr<Stimme>);
    void schließe(std::shared_ptr<Stimme>);
    /// Von 0 bis 1; auch für das, was schon klingt.
    void stelleLautstärke(double);

  private:
    void gib(std::function<void()> auftrag);
    void laufe();
    bool öffneGerät();
    void schließeGerät();
    void führeAus(const std::shared_ptr<Stimme> &);
    void lass(Stimme &);
    void sieNach();
    void mische(std::span<std::int16_t> proben);

    std::mutex schloss;
    std::condition_variable bedarf;
    std::deque<std::function<void()>> aufträge;
    bool ende = false;
    std::thread faden;

    // Nur für den Faden, und für das Gerät, während es mischt.
    std::vector<std::shared_ptr<Stimme>> klingende;
    double lautstärke = 1;

    // Nur für den Faden.
    Tonuhr::time_point zuletzt; // hat etwas geklungen
    std::uint32_t gerät = 0;    // 0: geschlossen
    bool stumm = false;         // es ließ sich nicht öffnen
};

} // namespace velmo
