#include "browser/Nachricht.h"

#include "browser/Brücke.h"

#include <cstdio>
#include <utility>

namespace velmo {

std::string json(const std::string &text) {
    std::string aus = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') aus += '\\';
        if (static_cast<unsigned char>(c) >= 0x20) {
            aus += c;
        } else {
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
            aus += code;
        }
    }
    return aus + '"';
}

std::string json(const char *text) { return json(std::string(text)); }

std::string json(double zahl) {
    char text[24];
    std::snprintf(text, sizeof text, "%.6g", zahl); // so fein wie ein Bildschirm
    return text;
}

std::string json(int zahl) { return std::to_string(zahl); }
std::string json(std::uint64_t zahl) { return std::to_string(zahl); }
std::string json(bool wahr) { return wahr ? "true" : "false"; }

std::string json(Farbe farbe) {
    char text[12];
    std::snprintf(text, sizeof text, "\"#%06x\"", static_cast<unsigned>(farbe.rgb & 0xFFFFFF));
    return text;
}

std::string json(const Rechteck &r) { return json(std::vector<double>{r.Left, r.Top, r.Width, r.Height}); }

Merkmale unterschied(const Merkmale &alt, const Merkmale &neu) {
    Merkmale anders;
    for (const auto &[name, wert] : neu)
        if (const auto vorher = alt.find(name); vorher == alt.end() || vorher->second != wert) anders[name] = wert;
    for (const auto &[name, wert] : alt)
        if (!neu.contains(name)) anders[name] = "null";
    return anders;
}

void Bündel::nimm(const char *art, const Merkmale &m) {
    text += (text.empty() ? "[{\"art\":" : ",{\"art\":") + json(art);
    for (const auto &[name, wert] : m)
        text += "," + json(std::string(name)) + ":" + wert;
    text += "}";
}

void Bündel::sende() {
    if (text.empty()) return;
    const std::string ganz = std::exchange(text, {}) + "]";
    seite_nimm(ganz.data(), static_cast<int>(ganz.size()));
}

} // namespace velmo
