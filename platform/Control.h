#pragma once
// Die Steuerelemente. Maße sind Twips (12 je Bildpunkt des Entwurfs), bezogen auf den Behälter; Zeiten ms.
#include "platform/Eigenschaft.h"
#include "platform/Oberfläche.h"
#include "platform/Rechteck.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmo {

class Form;
class PictureBox;

/// Worin ein Steuerelement liegt: die Form selbst oder ein Bildfeld auf ihr.
struct Behälter {
    Behälter(Form &f) : form(f) {}
    Behälter(PictureBox &b);
    Form &form;
    PictureBox *feld = nullptr;
};

class Control : public Besitzer {
  public:
    Control(Behälter, const char *Name);
    Control(const Control &) = delete;

    const char *const Name;
    Form &form;
    PictureBox *const behälter;
    Eigenschaft<std::string> Tag{*this, ""};

    void geändert() override;
    /// Die Eigenschaften unter ihren Namen.
    virtual void zähleAuf(const Namensempfänger &);
};

enum class Maustaste { Links = 1, Rechts = 2 };

using Handler = std::function<void()>;
using Maushandler = std::function<void(Maustaste, double X, double Y)>;
using Bewegungshandler = std::function<void(double X, double Y)>;

/// Was beim Ziehen über einem Ziel geschieht.
enum class Ziehzustand { Betreten, Verlassen, Darüber };

/// Wie weit jede Kante des Gezeichneten innerhalb ihrer Kante liegt, Twips des Entwurfs; negativ reicht es darüber
/// hinaus.
struct Einzug {
    double links = 0, oben = 0, rechts = 0, unten = 0;
};

/// Ein Steuerelement mit Platz auf der Form.
/// Was eine Oberfläche aus der Bewegung eines Elements machen darf; an seinen Werten ändert es nichts.
enum class Gebaren {
    Keins,
    Purzelt, // ein Würfel: wechselt sein Bild, so rollt er darauf
    Fliegt,  // ein Blatt: je weiter von seinem Ort, desto mehr dreht es sich
    Schwebt, // über dem, was hinter ihm liegt: es wirft einen Schatten ringsum
};

class VisualControl : public Control {
  public:
    VisualControl(Behälter, const char *Name, Rechteck);

    Eigenschaft<double> Left, Top, Width, Height;
    Eigenschaft<bool> Visible{*this, true};
    Eigenschaft<bool> Enabled{*this, true};
    Eigenschaft<std::string> ToolTipText{*this, ""};
    /// Solange wahr, beginnt ein Druck mit der linken Taste ein Ziehen.
    Eigenschaft<bool> DragMode{*this, false};
    /// Der eigene Mauszeiger, seine Spitze in der Mitte; leer: der übliche.
    Eigenschaft<velmo::Picture> MouseIcon{*this, {}};
    Gebaren gebaren = Gebaren::Keins;
    /// Nur fürs Zeichnen; Maus und Regeln kennen allein den Ort.
    Einzug Zeicheneinzug;
    bool WirftSchatten = false;
    /// Ein Bild, das zum Drücken da ist: unter dem Zeiger leuchtet es auf, gedrückt sinkt es ein.
    bool WieKnopf = false;
    /// Zu sehen nur, solange der Zeiger auf seiner Form ist und keine vor ihr steht.
    bool NurUnterZeiger = false;

    Handler Click, DblClick;
    Maushandler MouseDown, MouseUp;
    Bewegungshandler MouseMove;
    std::function<void(VisualControl &Quelle, Ziehzustand)> DragOver;
    std::function<void(VisualControl &Quelle)> DragDrop;

    /// Fenster liegen in ihrem Behälter stets über den gezeichneten Elementen (Beschriftung, Bild, Rahmen, Linie).
    virtual bool Fenster() const { return true; }
    /// Rahmen und Filme nehmen keine Maus.
    virtual bool nimmtMaus() const { return true; }
    /// Ganz nach vorn oder nach hinten unter den Geschwistern seiner Schicht.
    void nachVorn();
    void nachHinten();

    void zähleAuf(const Namensempfänger &) override;
};

/// Gemeinsames aller Elemente mit Schrift.
class Schriftelement : public VisualControl {
  public:
    Schriftelement(Behälter, const char *Name, Rechteck, std::string Caption = "");

    Eigenschaft<std::string> FontName{*this, "MS Sans Serif"};
    Eigenschaft<double> FontSize{*this, 8.25};
    Eigenschaft<bool> FontBold{*this, false};
    Eigenschaft<Farbe> ForeColor{*this, farbe::Schwarz};
    /// So viel größer setzt die Oberfläche die Schrift, soweit der Platz reicht.
    double Schriftmaß = 1;

    void zähleAuf(const Namensempfänger &) override;

  protected:
    Eigenschaft<std::string> beschriftung; // Caption oder Text
};

enum class Ausrichtung { Links, Rechts, Mitte };
enum class Rand { Ohne, Einfach };
/// Wie stark der 3D-Knopf seine Schrift hervorhebt.
enum class Betonung { Keine = 0, Stark = 2 };

/// Ein Text als Liste: jede Zeile gleich hoch und auf einer Linie, gezählt von 1.
struct Listensatz {
    int Zeilen = 0;        // so viele haben Platz
    bool Rang = false;     // mit dem Rang davor, die ersten drei mit einer Medaille
    int Hervorgehoben = 0; // 0: keine
    bool operator==(const Listensatz &) const = default;
};

class Label : public Schriftelement {
  public:
    using Schriftelement::Schriftelement;
    Eigenschaft<std::string> &Caption = beschriftung;
    Eigenschaft<Ausrichtung> Alignment{*this, Ausrichtung::Links};
    /// Der Text steht in halber Höhe statt oben.
    Eigenschaft<bool> Mittig{*this, false};
    /// Wie der Text gezeichnet wird, wenn nicht nach Alignment.
    std::optional<Ausrichtung> Satzausrichtung;
    std::optional<Listensatz> Liste;
    /// Ohne Hintergrundfarbe scheint durch, was dahinter liegt.
    Eigenschaft<bool> Deckend{*this, false};
    Eigenschaft<Farbe> BackColor{*this, farbe::Weiß};

    bool Fenster() const override { return false; }
    void zähleAuf(const Namensempfänger &) override;
};

class CommandButton : public Schriftelement {
  public:
    using Schriftelement::Schriftelement;
    Eigenschaft<std::string> &Caption = beschriftung;
    void zähleAuf(const Namensempfänger &) override;
};

/// Der 3D-Knopf, auch mit Bild.
class SSCommand : public CommandButton {
  public:
    using CommandButton::CommandButton;
    Eigenschaft<velmo::Picture> Picture{*this, {}};
    Eigenschaft<Betonung> Font3D{*this, Betonung::Keine};
    void zähleAuf(const Namensempfänger &) override;
};

class Image : public VisualControl {
  public:
    Image(Behälter, const char *Name, Rechteck);
    Eigenschaft<velmo::Picture> Picture{*this, {}};
    Eigenschaft<Rand> BorderStyle{*this, Rand::Ohne};
    /// Ohne Strecken hat das Bild seine natürliche Größe: die des Entwurfs. Das Ausschalten stellt sie her.
    Eigenschaft<bool> Stretch{*this, false};
    /// Ein Bild, das in die Höhe wächst, steigt aus dem Boden seiner vollen Höhe.
    Eigenschaft<bool> Wächst{*this, false};
    /// Was es auf den Grund seines Bildfelds wirft, und wohin, wo der Entwurf das Bild hinstellt.
    Eigenschaft<velmo::Picture> Schatten{*this, {}};
    Rechteck Schattenort{0, 0, 0, 0};
    /// Die Farbe des Scheins, in dem es steht.
    Eigenschaft<std::optional<Farbe>> Schein{*this, std::nullopt};

    bool Fenster() const override { return false; }
    void geändert() override;
    void zähleAuf(const Namensempfänger &) override;
    double natürlicheBreite() const;
    double natürlicheHöhe() const;
    /// Wo der Schatten jetzt liegt, im Bildfeld: er wächst mit dem Bild und wird mit ihm flach.
    Rechteck Schattenwurf() const;
    /// Wie weit sich ein fliegendes Bild gedreht hat, in Grad im Uhrzeigersinn.
    double Drehung() const;
    /// Wie sehr ein fliegendes Bild noch deckt: 1 ganz, 0 nicht mehr.
    double Deckung() const;

  private:
    /// Wie weit es geflogen ist, in seinen Höhen.
    double Flugweg() const;

    const Rechteck entwurf;
    bool gestreckt = false;
};

class PictureBox : public Schriftelement {
  public:
    PictureBox(Behälter, const char *Name, Rechteck);
    Eigenschaft<velmo::Picture> Picture{*this, {}};
    Eigenschaft<Rand> BorderStyle{*this, Rand::Ohne};
    Eigenschaft<double> ScaleWidth, ScaleHeight;
    /// Die Steuerelemente darin, von hinten nach vorn.
    std::vector<VisualControl *> Kinder;
    void zähleAuf(const Namensempfänger &) override;
};

enum class Gestalt { Rechteck, Ellipse, GerundetesRechteck };

class Shape : public VisualControl {
  public:
    Shape(Behälter, const char *Name, Rechteck, Gestalt = Gestalt::Rechteck);
    const Gestalt gestalt;
    Eigenschaft<double> BorderWidth{*this, 1};
    Eigenschaft<Farbe> BorderColor{*this, farbe::Schwarz};
    bool Fenster() const override { return false; }
    bool nimmtMaus() const override { return false; }
    void zähleAuf(const Namensempfänger &) override;
};

class Line : public Control {
  public:
    Line(Behälter, const char *Name, double x1, double y1, double x2, double y2);
    Eigenschaft<double> x1, y1, x2, y2;
    Eigenschaft<double> BorderWidth{*this, 1};
    Eigenschaft<Farbe> BorderColor{*this, farbe::Schwarz};
    Eigenschaft<bool> Visible{*this, true};
    void zähleAuf(const Namensempfänger &) override;
};

class TextBox : public Schriftelement {
  public:
    TextBox(Behälter, const char *Name, Rechteck, std::string Text = "", bool MultiLine = false);
    Eigenschaft<std::string> &Text = beschriftung;
    const bool MultiLine; // mehrzeilig und nur zu lesen
    void zähleAuf(const Namensempfänger &) override;
};

/// Listen und Auswahllisten: Zeilen ab 0, ListIndex -1 ohne Auswahl.
class Listenelement : public Schriftelement {
  public:
    Listenelement(Behälter, const char *Name, Rechteck, std::vector<std::string> Zeilen = {});
    Eigenschaft<double> ListIndex{*this, -1};

    const std::vector<std::string> &Zeilen() const { return zeilen; }
    int ListCount() const { return static_cast<int>(zeilen.size()); }
    /// Der Text der gewählten Zeile; leer ohne Auswahl.
    std::string Text() const;
    /// Wählt die Zeile mit dem Text; wirft Laufzeitfehler (Argument), wenn es keine gibt.
    void wähleText(const std::string &text);
    /// Eine Zeile außerhalb der Liste ist ein Laufzeitfehler (Argument).
    void geändert() override;
    void zähleAuf(const Namensempfänger &) override;

  protected:
    std::vector<std::string> zeilen;
};

class ListBox : public Listenelement {
  public:
    using Listenelement::Listenelement;
};

class ComboBox : public Listenelement {
  public:
    using Listenelement::Listenelement;
};

/// Die Dateien eines Ordners nach einem Muster "*.endung", nach Namen geordnet.
class FileListBox : public Listenelement {
  public:
    FileListBox(Behälter, const char *Name, Rechteck, const char *Muster);
    /// Der Ordner; wirft Laufzeitfehler (Datei), wenn es ihn nicht gibt.
    void setzePath(const std::string &ordner);
    const std::string &Path() const { return ordner; }
    /// Liest den Ordner neu; danach ist nichts gewählt.
    void Refresh();

  private:
    std::string ordner;
    const std::string endung;
};

/// Die Werte 0 (oben) bis 1 (unten); jede Änderung ruft Change.
class VScrollBar : public VisualControl {
  public:
    using VisualControl::VisualControl;
    Eigenschaft<double> Value{*this, 0};
    /// Es gibt nichts zu rollen: die Oberfläche zeigt ihn nicht.
    Eigenschaft<bool> Überflüssig{*this, false};
    Handler Change;
    void geändert() override;
    void zähleAuf(const Namensempfänger &) override;

  private:
    double gemeldet = 0;
};

class Timer : public Control {
  public:
    Timer(Behälter, const char *Name, double Interval, bool Enabled, Handler Tick = {});
    /// ms; 0 heißt aus.
    Eigenschaft<double> Interval;
    Eigenschaft<bool> Enabled;
    Handler Tick;

    bool läuft() const { return Enabled && Interval > 0; }
    void geändert() override;
    void zähleAuf(const Namensempfänger &) override;

    // Für den Zeitplan: laufende Nummer der Entstehung, nächste Fälligkeit, ob die Behandlung noch läuft.
    const std::uint64_t nummer;
    Zeit fällig = 0;
    bool inArbeit = false;

  private:
    double geplanterAbstand = 0;
};

/// Ein Medienelement: FileName, dann die Befehle "open", "play", "close". Wait gilt für den einen nächsten Befehl.
class MMControl : public Control {
  public:
    MMControl(Behälter, const char *Name);
    ~MMControl() override;
    /// Der volle Pfad; die Groß- und Kleinschreibung spielt keine Rolle.
    Eigenschaft<std::string> FileName{*this, ""};
    Eigenschaft<bool> Wait{*this, false};
    void Command(Befehl);
    long Position();
    long Length();
    void zähleAuf(const Namensempfänger &) override;
};

class Animation : public VisualControl {
  public:
    using VisualControl::VisualControl;
    ~Animation() override;
    bool nimmtMaus() const override { return false; }
    void Open(const std::string &Datei);
    void Play();
};

} // namespace velmo
