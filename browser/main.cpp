// Das Programm im Browser. Die Seite hat den Ordner mit dem Mitgelieferten und dem Gespeicherten schon angelegt.
#include "browser/Browseroberfläche.h"
#include "include/Programm.h"
#include "shell/Formtafel.h"

int main() {
    velmo::Browseroberfläche seite;
    velmo::Programm programm(seite, velmo::Formtafel(), "/velmo");
    return seite.laufe(programm, [&] { velmo::starte(programm); });
}
