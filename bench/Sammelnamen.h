#pragma once
// Namen, unter denen mehrere Felder des Zustands zusammen stehen, als ein Text aus Wörtern: alle Noten, die Hotels
// eines Besitzers, die Stufen eines Hotels, die Eingänge.
#include "platform/Wert.h"

#include <map>
#include <string>

namespace velmo {

/// Fügt den Feldern die gesammelten Namen hinzu.
void sammle(std::map<std::string, Zugang> &felder);

} // namespace velmo
