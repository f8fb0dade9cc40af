#pragma once
// Was sich das Fenster von einem Mal zum nächsten merkt: Größe, ganzer Bildschirm, Lautstärke, stumm.
#include <QByteArray>
#include <QString>

namespace velmo {

/// In der Datei des Spielers; ohne Pfad wird nichts gelesen und nichts geschrieben. Was fehlt oder sich nicht lesen
/// lässt, ist wie beim ersten Mal.
class Gedächtnis {
  public:
    static constexpr int Stufen = 10; // der Lautstärke; 10 ist, wie laut das Spiel gemeint ist

    explicit Gedächtnis(QString datei = {});
    void schreibe() const;

    QByteArray Fenster; // Ort, Größe und Zustand, wie Qt sie sichert
    int Lautstärke = Stufen;
    bool Stumm = false;

    /// Von 0 bis 1.
    double anteil() const { return Stumm ? 0 : double(Lautstärke) / Stufen; }

  private:
    QString datei;
};

} // namespace velmo
