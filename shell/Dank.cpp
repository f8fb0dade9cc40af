#include "shell/Dank.h"

namespace velmo {

namespace {

constexpr const char *Danktext = "\n\nVELMO\n\n"
                                 "Regeln und Programm\n"
                                 "die Inselwerkstatt\n\n"
                                 "Insel, Hotels und Gäste\n"
                                 "das Modellatelier am Hafen\n\n"
                                 "Klänge und Musik\n"
                                 "die Kapelle der Strandpromenade\n\n"
                                 "Spieltest\n"
                                 "alle, die in Étoile, Royal und Fujijama übernachtet haben\n"
                                 "und ihre Rechnung bezahlten\n\n"
                                 "Ein besonderer Dank gilt Dorvin,\n"
                                 "der immer von oben kommt und nie zu lange bleibt,\n"
                                 "und Ihnen, weil Sie mitspielen.\n\n\n"
                                 "(Ein Klick schließt den Abspann.)";

} // namespace

Dank::Dank(Programm &programm) : Form(programm, Formname, {-132, -192, 9948, 7452}), p(programm) {
    BackColor = farbe::Schwarz;
    Label1.Alignment = Ausrichtung::Mitte;
    Label1.ForeColor = farbe::Weiß;
    Label1.Zeicheneinzug = {0, 0, 0, 240};
    Label1.FontName = "Tahoma";
    Label1.FontSize = 13;
    Text1.Text = Danktext;
    Text1.Visible = false;
    Click = Label1.Click = [this] { p.entlade(Formname); };
}

} // namespace velmo
