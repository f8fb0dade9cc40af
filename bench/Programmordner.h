#pragma once
// Der Ordner, in dem ein Programm geprüft wird: frisch, mit Verweisen auf die mitgelieferten Bilder und den Film und
// sonst nichts; mit dem Objekt verschwindet er. Pfade darin werden mit / geschrieben und gelten in jeder Schreibung.
#include <filesystem>
#include <string>
#include <vector>

namespace velmo {

class Programmordner {
  public:
    Programmordner();
    ~Programmordner();
    Programmordner(const Programmordner &) = delete;

    const std::string &Pfad() const { return wurzel; }

    /// Wo der Pfad liegt oder liegen wird; wirft std::invalid_argument, wenn er aus dem Ordner hinausführt.
    std::filesystem::path ort(const std::string &pfad) const;
    /// Schreibt eine neue Datei samt ihren Ordnern, nie durch einen Verweis hindurch.
    void schreibe(const std::string &pfad, const std::string &bytes) const;
    void legeOrdnerAn(const std::string &pfad) const;
    void lösche(const std::string &pfad) const;
    /// Nimmt Datei oder Ordner die Schreibrechte; wirft std::invalid_argument, wenn es den Pfad nicht gibt.
    void sperre(const std::string &pfad) const;

  private:
    std::string wurzel;
};

} // namespace velmo
