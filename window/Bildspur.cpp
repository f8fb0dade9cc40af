#include "window/Bildspur.h"

#include <vpx/vp8dx.h>
#include <vpx/vpx_decoder.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>
#include <vector>

namespace velmo {

namespace {

constexpr int MeisteBildpunkte = 1 << 24;

/// Eine Ebene eines Bildes: die Helligkeit, oder halb so fein Blau und Rot.
struct Ebene {
    Ebene(const vpx_image &b, int nr)
        : breite(static_cast<int>(nr ? (b.d_w + 1) / 2 : b.d_w)), höhe(static_cast<int>(nr ? (b.d_h + 1) / 2 : b.d_h)),
          bytes(b.planes[nr]), schritt(b.stride[nr]) {}

    const std::uint8_t *zeile(int y) const { return bytes + std::clamp(y, 0, höhe - 1) * schritt; }

    int breite, höhe;

  private:
    const std::uint8_t *bytes;
    std::ptrdiff_t schritt;
};

constexpr int Farbmaß = 16; // so viel ist in einer Zeile von Blau oder Rot eine Stufe

/// Die Zeilen, aus denen eine des Ziels entsteht; Hilf hat an jedem Ende einen Platz mehr.
struct Zeilen {
    explicit Zeilen(std::size_t länge) : hell(länge), blau(länge), rot(länge), hilf(länge + 2) {}
    std::vector<std::int16_t> hell, blau, rot, hilf;
};

/// Eine Zeile, N-mal so grob: das Mittel aus je N mal N Punkten.
template <int N> void mittle(const Ebene &e, int y, int maß, std::int16_t *aus, int breite) {
    std::array<const std::uint8_t *, N> ein;
    for (int i = 0; i < N; ++i)
        ein[static_cast<std::size_t>(i)] = e.zeile(N * y + i);
    for (int x = 0; x < breite; ++x) {
        int summe = 0;
        for (const std::uint8_t *zeile : ein)
            for (int i = 0; i < N; ++i)
                summe += zeile[N * x + i];
        aus[x] = static_cast<std::int16_t>((maß * summe + N * N / 2) / (N * N));
    }
}

/// Eine Zeile, doppelt so fein: drei Teile vom nächsten Punkt, einer vom übernächsten, in beiden Richtungen.
void verdopple(const Ebene &e, int y, std::int16_t *hilf, std::int16_t *aus) {
    static_assert(Farbmaß == 4 * 4);
    const std::uint8_t *nah = e.zeile(y / 2), *fern = e.zeile(y % 2 ? y / 2 + 1 : y / 2 - 1);
    std::int16_t *mitte = hilf + 1;
    for (int x = 0; x < e.breite; ++x)
        mitte[x] = static_cast<std::int16_t>(3 * nah[x] + fern[x]);
    mitte[-1] = mitte[0];
    mitte[e.breite] = mitte[e.breite - 1];
    for (int x = 0; x < e.breite; ++x) {
        aus[2 * x] = static_cast<std::int16_t>(3 * mitte[x] + mitte[x - 1]);
        aus[2 * x + 1] = static_cast<std::int16_t>(3 * mitte[x] + mitte[x + 1]);
    }
}

struct Ebenen {
    Ebene hell, blau, rot;
};

template <int N> void lies(const Ebenen &e, int y, Zeilen &z, int breite) {
    mittle<N>(e.hell, y, 1, z.hell.data(), breite);
    if constexpr (N == 1) {
        verdopple(e.blau, y, z.hilf.data(), z.blau.data());
        verdopple(e.rot, y, z.hilf.data(), z.rot.data());
    } else {
        mittle<N / 2>(e.blau, y, Farbmaß, z.blau.data(), breite);
        mittle<N / 2>(e.rot, y, Farbmaß, z.rot.data(), breite);
    }
}

/// BT.709 mit engem Umfang, die Anteile in 2^14; Blau und Rot liegen um 128 Stufen.
void färbe(const std::int16_t *hell, const std::int16_t *blau, const std::int16_t *rot, QRgb *aus, int breite) {
    constexpr int Bits = 14, Eins = 1 << Bits, Farbe = Eins / Farbmaß;
    constexpr auto H = static_cast<std::int16_t>(1.16438 * Eins), RR = static_cast<std::int16_t>(1.79274 * Farbe),
                   GB = static_cast<std::int16_t>(-0.21325 * Farbe), GR = static_cast<std::int16_t>(-0.53291 * Farbe),
                   BB = static_cast<std::int16_t>(2.11240 * Farbe);
    for (int x = 0; x < breite; ++x) {
        const int h = H * (hell[x] - 16) + Eins / 2;
        const auto u = static_cast<std::int16_t>(blau[x] - 128 * Farbmaß),
                   v = static_cast<std::int16_t>(rot[x] - 128 * Farbmaß);
        const int r = std::clamp((h + RR * v) >> Bits, 0, 255), g = std::clamp((h + GB * u + GR * v) >> Bits, 0, 255),
                  b = std::clamp((h + BB * u) >> Bits, 0, 255);
        aus[x] = 0xFF000000U | static_cast<QRgb>(r << 16 | g << 8 | b);
    }
}

} // namespace

void Bildspur::Schluss::operator()(vpx_codec_ctx *c) const {
    vpx_codec_destroy(c);
    delete c;
}

Bildspur::Bildspur() {
    auto neu = std::make_unique<vpx_codec_ctx>();
    const vpx_codec_dec_cfg_t wie{2, 0, 0}; // Fäden
    if (vpx_codec_dec_init(neu.get(), vpx_codec_vp9_dx(), &wie, 0) != VPX_CODEC_OK) throw std::bad_alloc();
    entpacker.reset(neu.release());
}

/// Ein Film hat eine Größe: ein Bild, das eine andere nennt, ist beschädigt.
bool Bildspur::entpacke(std::string_view bytes) {
    entpackt = nullptr;
    const auto *daten = reinterpret_cast<const std::uint8_t *>(bytes.data());
    if (vpx_codec_decode(entpacker.get(), daten, static_cast<unsigned>(bytes.size()), nullptr, 0) != VPX_CODEC_OK)
        return false;
    vpx_codec_iter_t stelle = nullptr;
    const vpx_image *bild = vpx_codec_get_frame(entpacker.get(), &stelle);
    if (!bild || bild->fmt != VPX_IMG_FMT_I420) return false;
    const QSize neu(static_cast<int>(bild->d_w), static_cast<int>(bild->d_h));
    if (maße.isEmpty() && neu.width() <= MeisteBildpunkte / neu.height()) maße = neu;
    if (neu != maße) return false;
    entpackt = bild;
    return true;
}

void Bildspur::zeichne(QImage &ziel, const QSize &größe) const {
    if (!entpackt) return;
    const Ebenen e{{*entpackt, 0}, {*entpackt, 1}, {*entpackt, 2}};
    static constexpr std::array Leser{lies<1>, lies<2>, lies<4>};
    const auto kleiner = [&](std::size_t stufe) { return QSize(e.hell.breite >> stufe, e.hell.höhe >> stufe); };
    const auto reicht = [&](const QSize &g) { return g.width() >= größe.width() && g.height() >= größe.height(); };
    std::size_t stufe = 0;
    while (größe.isValid() && stufe + 1 < Leser.size() && reicht(kleiner(stufe + 1)))
        ++stufe;

    const QSize soll = kleiner(stufe);
    if (ziel.size() != soll) ziel = QImage(soll, QImage::Format_RGB32);
    Zeilen z(static_cast<std::size_t>(2 * e.blau.breite));
    for (int y = 0; y < soll.height(); ++y) {
        Leser[stufe](e, y, z, soll.width());
        färbe(z.hell.data(), z.blau.data(), z.rot.data(), reinterpret_cast<QRgb *>(ziel.scanLine(y)), soll.width());
    }
}

} // namespace velmo
