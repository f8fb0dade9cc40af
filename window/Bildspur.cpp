#include "window/Bildspur.h"

#include <vpx/vp8dx.h>
#include <vpx/vpx_decoder.h>

#include <algorithm>
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

using Zeile = std::vector<std::int16_t>;
constexpr int Farbmaß = 16; // so viel ist in einer Zeile von Blau oder Rot eine Stufe

void übernimm(const std::uint8_t *ein, int maß, std::int16_t *aus, int breite) {
    for (int x = 0; x < breite; ++x)
        aus[x] = static_cast<std::int16_t>(maß * ein[x]);
}

/// Das Mittel aus je vier Punkten.
void halbiere(const std::uint8_t *oben, const std::uint8_t *unten, std::int16_t *aus, int breite) {
    for (int x = 0; x < breite; ++x)
        aus[x] = static_cast<std::int16_t>((oben[2 * x] + oben[2 * x + 1] + unten[2 * x] + unten[2 * x + 1] + 2) / 4);
}

/// Doppelt so fein: drei Teile vom nächsten Punkt, einer vom übernächsten, in beiden Richtungen. Hilf hat an jedem Ende
/// einen Platz mehr.
void verdopple(const std::uint8_t *nah, const std::uint8_t *fern, std::int16_t *hilf, std::int16_t *aus, int breite) {
    std::int16_t *mitte = hilf + 1;
    for (int x = 0; x < breite; ++x)
        mitte[x] = static_cast<std::int16_t>(3 * nah[x] + fern[x]);
    mitte[-1] = mitte[0];
    mitte[breite] = mitte[breite - 1];
    for (int x = 0; x < breite; ++x) {
        aus[2 * x] = static_cast<std::int16_t>(3 * mitte[x] + mitte[x - 1]);
        aus[2 * x + 1] = static_cast<std::int16_t>(3 * mitte[x] + mitte[x + 1]);
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
    const Ebene hell(*entpackt, 0), blau(*entpackt, 1), rot(*entpackt, 2);
    const QSize halbe(hell.breite / 2, hell.höhe / 2);
    const bool halb = größe.isValid() && größe.width() <= halbe.width() && größe.height() <= halbe.height();
    const int breite = halb ? halbe.width() : hell.breite, höhe = halb ? halbe.height() : hell.höhe;
    if (ziel.size() != QSize(breite, höhe)) ziel = QImage(breite, höhe, QImage::Format_RGB32);

    const auto länge = static_cast<std::size_t>(2 * blau.breite);
    Zeile h(länge), u(länge), v(länge), hilf(länge + 2);
    for (int y = 0; y < höhe; ++y) {
        if (halb) {
            halbiere(hell.zeile(2 * y), hell.zeile(2 * y + 1), h.data(), breite);
            übernimm(blau.zeile(y), Farbmaß, u.data(), breite);
            übernimm(rot.zeile(y), Farbmaß, v.data(), breite);
        } else {
            const int nah = y / 2, fern = y % 2 ? nah + 1 : nah - 1;
            übernimm(hell.zeile(y), 1, h.data(), breite);
            verdopple(blau.zeile(nah), blau.zeile(fern), hilf.data(), u.data(), blau.breite);
            verdopple(rot.zeile(nah), rot.zeile(fern), hilf.data(), v.data(), rot.breite);
        }
        färbe(h.data(), u.data(), v.data(), reinterpret_cast<QRgb *>(ziel.scanLine(y)), breite);
    }
}

} // namespace velmo
