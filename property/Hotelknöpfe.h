#pragma once
// Die acht Hotelknöpfe mit ihren Rahmen, in zwei Reihen zu vier.
#include "model/Hoteltafel.h"
#include "platform/Form.h"

#include <deque>
#include <functional>

namespace velmo {

struct Hotelknopf {
    Hotelknopf(Form &, Hotelkürzel, const char *rahmen, const char *knopf, Rechteck);
    const Hotelkürzel Hotel;
    Shape Rahmen;
    SSCommand Knopf;
};

/// Sie sind zuerst unsichtbar.
class Hotelknöpfe : public std::deque<Hotelknopf> {
  public:
    Hotelknöpfe(Form &, double Left, double Top);
    void beiKlick(const std::function<void(Hotelkürzel)> &);
};

} // namespace velmo
