#include "platform/Zeichen.h"

#include "platform/Laufzeitfehler.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmo {

namespace {

// Die Stellen 0x80 bis 0x9F; die fünf unbesetzten stehen für sich selbst.
constexpr std::array<char32_t, 32> Obere = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                            0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool beginntZeichen(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

std::size_t bytesFür(std::string_view text, int n) {
    if (n < 0) throw Laufzeitfehler(Fehlerart::Argument);
    std::size_t i = 0;
    while (i < text.size() && (n > 0 || !beginntZeichen(text[i]))) {
        if (beginntZeichen(text[i])) --n;
        ++i;
    }
    return i;
}

void hängeAn(std::string &text, char32_t z) {
    if (z < 0x80) {
        text += static_cast<char>(z);
    } else if (z < 0x800) {
        text += static_cast<char>(0xC0 | z >> 6);
        text += static_cast<char>(0x80 | (z & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | z >> 12);
        text += static_cast<char>(0x80 | (z >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (z & 0x3F));
    }
}

} // namespace

std::string klein(std::string text) {
    for (char &c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::string groß(std::string text) {
    for (char &c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

int Zeichenzahl(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), beginntZeichen));
}

std::string Links(std::string_view text, int n) { return std::string(text.substr(0, bytesFür(text, n))); }

std::string Rechts(std::string_view text, int n) {
    if (n < 0) throw Laufzeitfehler(Fehlerart::Argument);
    return std::string(text.substr(bytesFür(text, std::max(0, Zeichenzahl(text) - n))));
}

std::string ausWindows1252(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        hängeAn(text, b >= 0x80 && b < 0xA0 ? Obere[b - 0x80] : b);
    }
    return text;
}

std::string nachWindows1252(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const auto b = static_cast<unsigned char>(text[i++]);
        char32_t z = b < 0x80 ? b : b < 0xE0 ? b & 0x1F : b < 0xF0 ? b & 0x0F : b & 0x07;
        while (i < text.size() && !beginntZeichen(text[i]))
            z = z << 6 | (static_cast<unsigned char>(text[i++]) & 0x3F);
        const auto oben = std::find(Obere.begin(), Obere.end(), z);
        if (oben != Obere.end())
            bytes += static_cast<char>(0x80 + (oben - Obere.begin()));
        else
            bytes += z < 0x80 || (z >= 0xA0 && z <= 0xFF) ? static_cast<char>(z) : '?';
    }
    return bytes;
}

} // namespace velmo
