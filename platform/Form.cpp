#include "platform/Form.h"

#include "platform/Laufzeit.h"

#include <algorithm>
#include <cstring>

namespace velmo {

Form::Form(Laufzeit &laufzeit, Formularname name, Rechteck r, std::string titel)
    : laufzeit(laufzeit), Name(name.Text), Nummer(laufzeit.nächsteNummer()), Left(*this, r.Left), Top(*this, r.Top),
      Width(*this, r.Width), Height(*this, r.Height), Caption(*this, std::move(titel)) {}

void Form::setzeRegion(Region region) {
    fensterregion = std::move(region);
    geändert();
}

Control *Form::control(const std::string &name) const {
    const auto hier = std::find_if(controls.begin(), controls.end(), [&](const Control *c) { return name == c->Name; });
    return hier == controls.end() ? nullptr : *hier;
}

void Form::zähleAuf(const Namensempfänger &e) {
    e("Left", zugang(Left));
    e("Top", zugang(Top));
    e("Width", zugang(Width));
    e("Height", zugang(Height));
    e("Visible", zugang(Visible));
    e("Enabled", zugang(Enabled));
    e("Topmost", zugang(Topmost));
    e("Caption", zugang(Caption));
    e("Tag", zugang(Tag));
    e("BackColor", zugang(BackColor));
    e("Picture", zugang(Picture));
    e("Region", {[this] { return Wert(fensterregion.has_value()); }, {}});
    eigeneWerte(e);
}

} // namespace velmo
