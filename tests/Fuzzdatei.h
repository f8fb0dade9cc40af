#pragma once
// Eine Datei in einem eigenen Ordner, die immer neuen Inhalt bekommt.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace velmo {

class Fuzzdatei {
  public:
    explicit Fuzzdatei(const char *name) : Ordner(neuerOrdner()), Pfad(Ordner + "/" + name) {}
    ~Fuzzdatei() { std::filesystem::remove_all(Ordner); }

    const std::string Ordner, Pfad;
    void schreibe(const std::uint8_t *daten, std::size_t größe) const {
        std::ofstream(Pfad, std::ios::binary)
            .write(reinterpret_cast<const char *>(daten), static_cast<std::streamsize>(größe));
    }

  private:
    static std::string neuerOrdner() {
        std::string muster = (std::filesystem::temp_directory_path() / "velmo-XXXXXX").string();
        if (!mkdtemp(muster.data())) throw std::runtime_error("kein Ordner " + muster);
        return muster;
    }
};

} // namespace velmo
