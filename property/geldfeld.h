#pragma once
// Der Dialog eines Kauffelds: bis zu zwei Grundstücke, gewöhnlich oder durch Zwangskauf.
#include "model/Hoteltafel.h"
#include "property/Brettdialog.h"

namespace velmo {

class geldfeld : public Brettdialog {
  public:
    static constexpr Formularname Formname = formular::geldfeld;
    explicit geldfeld(Programm &);

    Image Image1{*this, "Image1", {3120, 360, 540, 420}};
    Image Image2{*this, "Image2", {240, 360, 540, 420}};
    SSCommand SSCommand1{*this, "SSCommand1", {120, 1200, 1932, 372}};
    SSCommand SSCommand2{*this, "SSCommand2", {2280, 1200, 1932, 372}};
    SSCommand SSCommand3{*this, "SSCommand3", {1320, 360, 1332, 372}, "Nichts Kaufen"};
    MMControl MMControl1{*this, "MMControl1"};

    void Form_Load() override;

  private:
    void Form_MouseUp(double X, double Y);
    void kaufe(const SSCommand &, Seite);
    void SSCommand3_Click();
    void biete(SSCommand &, const Hotel *);
    void zeigePreise(const Hotel *links, const Hotel *rechts);
};

} // namespace velmo
