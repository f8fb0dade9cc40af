#pragma once
// Was die Form kann, die einen Ruin meldet.
#include "include/Programm.h"

#include <string>

namespace velmo {

class Ruinmeldung : public Form {
  public:
    using Form::Form;
    /// Schreibt, wer verloren hat.
    virtual void melde(const std::string &satz) = 0;
    /// Verbirgt "Auslachen".
    virtual void verbirgAuslachen() = 0;
};

} // namespace velmo
