// Das Programm im Browser.
#include "shell/Formtafel.h"

int main() { return velmo::Formtafel().size() == 19 ? 0 : 1; }
