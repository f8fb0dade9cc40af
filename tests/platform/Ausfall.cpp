// Was auf der Platte steht, wenn ein Schreiben nicht zu Ende kommt: das Programm stirbt darin, die Platte ist voll, das
// Umbenennen misslingt. Immer ist die alte Datei noch ganz oder die neue schon da.
#include "bench/Programmordner.h"
#include "bench/Prüfung.h"
#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum class Ausfall { Keiner, Tod, VollePlatte };

// Der Aufruf ans System, der ausfällt, und wie viele Bytes davor noch gehen.
Ausfall ausfall = Ausfall::Keiner;
int bisDahin = 0;
std::size_t halb = 0;

bool fälltAus() { return ausfall != Ausfall::Keiner && bisDahin-- == 0; }

ssize_t stirb() {
    if (ausfall == Ausfall::Tod) kill(getpid(), SIGKILL);
    errno = ENOSPC;
    return -1;
}

} // namespace

// Diese stehen vor denen der Bibliothek: durch sie geht jedes Schreiben und Umbenennen.
extern "C" ssize_t write(int wohin, const void *bytes, std::size_t zahl) {
    if (!fälltAus()) return syscall(SYS_write, wohin, bytes, zahl);
    syscall(SYS_write, wohin, bytes, std::min(halb, zahl));
    return stirb();
}

extern "C" ssize_t writev(int wohin, const iovec *teile, int zahl) {
    if (!fälltAus()) return syscall(SYS_writev, wohin, teile, zahl);
    syscall(SYS_write, wohin, teile[0].iov_base, std::min(halb, teile[0].iov_len));
    return stirb();
}

extern "C" int rename(const char *von, const char *nach) noexcept {
    if (fälltAus()) return static_cast<int>(stirb());
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, von, AT_FDCWD, nach, 0));
}

using namespace velmo;

namespace {

/// Ein Inhalt, an dem man sieht, ob er ganz ist.
std::string inhalt(int nummer) {
    return std::to_string(nummer) + std::string(static_cast<std::size_t>(nummer * 37 % 20000), 'x') + "Ende";
}

/// Schreibt in einem eigenen Prozess, der am verlangten Aufruf stirbt; wahr, wenn er bis zum Ende kam.
bool schreibeUndStirb(const std::string &pfad, const std::string &neu, int aufruf, std::size_t bytes) {
    const pid_t kind = fork();
    if (kind == 0) {
        ausfall = Ausfall::Tod;
        bisDahin = aufruf;
        halb = bytes;
        schreibeDatei(pfad, neu);
        _exit(0);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return WIFEXITED(status);
}

void prüfeTod(Prüfung &t, const std::string &pfad) {
    std::string steht = inhalt(0);
    schreibeDatei(pfad, steht);
    int ganz = 0, gestorben = 0;
    for (int i = 1; i <= 1000; ++i) {
        const std::string neu = inhalt(i);
        const bool fertig = schreibeUndStirb(pfad, neu, i % 4, static_cast<std::size_t>(i % 97));
        gestorben += !fertig;
        ganz += liesDatei(pfad) == (fertig ? neu : steht);
        if (fertig) steht = neu;
    }
    t.gleich("nach jedem Tod steht die alte Datei oder die neue", ganz, 1000);
    t.gilt("gestorben wird beim Schreiben und beim Umbenennen, nicht immer", gestorben >= 500 && gestorben < 1000);
}

/// Der Fehler ist ein Laufzeitfehler, die alte Datei steht, und nichts bleibt daneben liegen.
void prüfeVollePlatte(Prüfung &t, const Programmordner &ordner, const std::string &pfad) {
    const std::string alt = liesDatei(pfad);
    for (int aufruf = 0; aufruf < 2; ++aufruf) {
        ausfall = Ausfall::VollePlatte;
        bisDahin = aufruf;
        halb = 3;
        bool gemeldet = false;
        try {
            schreibeDatei(pfad, inhalt(7));
        } catch (const Laufzeitfehler &fehler) {
            gemeldet = fehler.Art() == Fehlerart::Datei;
        }
        ausfall = Ausfall::Keiner;
        t.gilt("die volle Platte ist ein Laufzeitfehler", gemeldet);
        t.gilt("die alte Datei steht noch", liesDatei(pfad) == alt);
        t.gilt("daneben liegt nichts", !std::filesystem::exists(pfad + ".neu"));
    }
    ordner.lösche("ort");
    bool gemeldet = false;
    try {
        schreibeDatei(pfad, alt);
    } catch (const Laufzeitfehler &) {
        gemeldet = true;
    }
    t.gilt("ein Ordner, den es nicht mehr gibt, auch", gemeldet);
}

} // namespace

int main() {
    Prüfung t;
    const Programmordner ordner;
    ordner.legeOrdnerAn("ort");
    const std::string pfad = ordner.Pfad() + "/ort/datei.sav";
    prüfeTod(t, pfad);
    prüfeVollePlatte(t, ordner, pfad);
    return t.ende();
}
