#pragma once
// Formulare: ihr Rand liegt in Twips auf der Anzeige, ihre Steuerelemente stehen in ihr, von hinten nach vorn.
#include "platform/Control.h"
#include "platform/Region.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace velmo {

class Laufzeit;

/// Der Name einer Form in der Liste der Formulare. Ein loser Text ist keiner: ein verschriebener Name übersetzt nicht.
struct Formularname {
    explicit constexpr Formularname(const char *text) : Text(text) {}
    bool operator==(const Formularname &n) const { return std::string_view(Text) == n.Text; }
    const char *Text;
};

class Form : public Besitzer {
  public:
    Form(Laufzeit &, Formularname, Rechteck, std::string Caption = "");
    Form(const Form &) = delete;

    Laufzeit &laufzeit;
    const char *const Name;
    /// Eigen für jede geladene Form, auch wenn sie denselben Namen trägt wie eine frühere.
    const std::uint64_t Nummer;
    Eigenschaft<double> Left, Top, Width, Height;
    Eigenschaft<bool> Visible{*this, false};
    Eigenschaft<bool> Enabled{*this, true};
    Eigenschaft<bool> Topmost{*this, false};
    Eigenschaft<std::string> Caption;
    Eigenschaft<std::string> Tag{*this, ""};
    Eigenschaft<Farbe> BackColor{*this, farbe::Papier};
    Eigenschaft<velmo::Picture> Picture{*this, {}};
    /// Das Zeichen des Programms, das die Form trägt.
    Eigenschaft<velmo::Picture> Icon{*this, {}};

    Handler Click;
    Maushandler MouseDown, MouseUp;
    Bewegungshandler MouseMove;
    std::function<void(const std::string &Taste)> KeyPress;

    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    /// Mit dieser Form endet, was sie trägt: alle Behandlungen, die bei ihrem Entladen noch warten, kehren nicht
    /// zurück.
    virtual bool trägtSpiel() const { return false; }
    /// Eigene Werte der Form unter ihren Namen.
    virtual void eigeneWerte(const Namensempfänger &) {}

    /// Die sichtbaren Teile des Fensters; ohne Region ist es das ganze Rechteck. In Bildpunkten der Form.
    const std::optional<Region> &region() const { return fensterregion; }
    void setzeRegion(Region region);

    /// Gezeichnetes auf der Form selbst: gefüllte Rechtecke in Twips, in der Reihenfolge ihres Entstehens.
    virtual const std::vector<std::pair<Rechteck, Farbe>> *Zeichnung() const { return nullptr; }

    /// Alle Steuerelemente in der Reihenfolge ihrer Entstehung.
    const std::vector<Control *> &Controls() const { return controls; }
    /// Das Steuerelement des Namens; null, wenn es keins gibt.
    Control *control(const std::string &Name) const;
    /// Die Elemente unmittelbar auf der Form, von hinten nach vorn.
    std::vector<VisualControl *> Kinder;

    void zähleAuf(const Namensempfänger &);
    void geändert() override { ++stand; }
    /// Steigt mit jeder Änderung an der Form oder ihren Steuerelementen.
    std::uint64_t Stand() const { return stand; }
    bool geladen = false;
    bool entladen = false;

  private:
    friend class Control;
    std::vector<Control *> controls;
    std::optional<Region> fensterregion;
    std::uint64_t stand = 0;
};

} // namespace velmo
