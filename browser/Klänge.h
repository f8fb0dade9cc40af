#pragma once
// Die Töne der Medienelemente. Die Seite spielt sie; wie weit ein Ton ist, sagt hier die Uhr: auch was noch lädt oder
// stumm bleibt, dauert so lang, wie es ist.
#include "browser/Nachricht.h"
#include "platform/Control.h"

#include <functional>
#include <map>
#include <string>

namespace velmo {

class Klänge {
  public:
    Klänge(Bündel &bündel, std::function<Zeit()> uhr) : bündel(bündel), uhr(std::move(uhr)) {}

    /// Der Ton dieses Namens in sound/ dauert so viele ms; ohne Dauer gibt es ihn nicht.
    void merkeDauer(const std::string &name, long ms) { dauern[name] = ms; }
    void befehl(const MMControl &, Befehl);
    /// Wie lange das Element noch klingt, in ms; 0: es ist still.
    Zeit rest(const MMControl &) const;
    /// Ort und Ende in ms; ohne Ton beide 0.
    long Position(const MMControl &) const;
    long Length(const MMControl &) const;
    void vergiss(const Control &);

  private:
    struct Stimme {
        int nummer;
        std::string name;
        long dauer;
        Zeit beginn = 0;
        bool gespielt = false;
    };
    const Stimme *stimme(const Control &) const;

    Bündel &bündel;
    const std::function<Zeit()> uhr;
    std::map<std::string, long> dauern;
    std::map<const Control *, Stimme> stimmen; // die geöffneten
    int nummern = 0;
};

} // namespace velmo
