// Der Film im Fenster: jedes Bild in seiner Größe und seinen Farben; was beschädigt ist, lässt das vorige Bild stehen.
#include "bench/Programmordner.h"
#include "bench/Prüfung.h"
#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"
#include "tests/Probefilm.h"
#include "window/Film.h"

#include <vpx/vp8cx.h>
#include <vpx/vpx_encoder.h>

#include <array>
#include <cmath>

using namespace velmo;

namespace {

/// Packt Bilder aus zwei Farben, links und rechts, wie sie ein Film nach BT.709 hat.
class Packer {
  public:
    Packer(int breite, int höhe) {
        vpx_codec_enc_cfg_t wie;
        vpx_codec_enc_config_default(vpx_codec_vp9_cx(), &wie, 0);
        wie.g_w = static_cast<unsigned>(breite);
        wie.g_h = static_cast<unsigned>(höhe);
        wie.g_lag_in_frames = 0;
        wie.rc_min_quantizer = wie.rc_max_quantizer = 0;
        vpx_codec_enc_init(&packer, vpx_codec_vp9_cx(), &wie, 0);
        vpx_img_alloc(&bild, VPX_IMG_FMT_I420, wie.g_w, wie.g_h, 1);
    }
    ~Packer() {
        vpx_img_free(&bild);
        vpx_codec_destroy(&packer);
    }
    Packer(const Packer &) = delete;

    std::string packe(QColor links, QColor rechts) {
        for (int ebene = 0; ebene < 3; ++ebene)
            fülle(ebene, stufen(links)[static_cast<std::size_t>(ebene)],
                  stufen(rechts)[static_cast<std::size_t>(ebene)]);
        vpx_codec_encode(&packer, &bild, nr++, 1, 0, VPX_DL_REALTIME);
        vpx_codec_iter_t stelle = nullptr;
        const vpx_codec_cx_pkt_t *paket = vpx_codec_get_cx_data(&packer, &stelle);
        return {static_cast<const char *>(paket->data.frame.buf), paket->data.frame.sz};
    }

  private:
    static std::array<int, 3> stufen(QColor f) {
        const double hell = 0.2126 * f.redF() + 0.7152 * f.greenF() + 0.0722 * f.blueF();
        return {static_cast<int>(std::lround(16 + 219 * hell)),
                static_cast<int>(std::lround(128 + 224 * (f.blueF() - hell) / 1.8556)),
                static_cast<int>(std::lround(128 + 224 * (f.redF() - hell) / 1.5748))};
    }

    void fülle(int ebene, int links, int rechts) {
        const unsigned breite = ebene ? (bild.d_w + 1) / 2 : bild.d_w, höhe = ebene ? (bild.d_h + 1) / 2 : bild.d_h;
        for (unsigned y = 0; y < höhe; ++y)
            for (unsigned x = 0; x < breite; ++x)
                bild.planes[ebene][static_cast<int>(y) * bild.stride[ebene] + static_cast<int>(x)] =
                    static_cast<unsigned char>(x < breite / 2 ? links : rechts);
    }

    vpx_codec_ctx_t packer{};
    vpx_image_t bild{};
    int nr = 0;
};

/// Um wie viele Stufen sie sich höchstens unterscheiden.
int abstand(QColor a, QColor b) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

/// Wie weit die Farben an den Ecken, an den Rändern und inmitten beider Hälften höchstens abweichen.
int abweichung(const QImage &bild, QColor links, QColor rechts) {
    int weit = 0;
    const int b = bild.width() - 1, h = bild.height() - 1;
    for (const int y : {0, 1, h / 2, h - 1, h})
        for (const auto &[x, soll] :
             {std::pair{0, links}, {1, links}, {b / 4, links}, {3 * b / 4, rechts}, {b, rechts}}) {
            weit = std::max(weit, abstand(bild.pixelColor(x, y), soll));
        }
    return weit;
}

void prüfeFarben(Prüfung &t) {
    for (const auto &[b, h] : {std::pair{96, 64}, {97, 65}, {150, 33}}) {
        Packer packer(b, h);
        Bildspur spur;
        QImage bild;
        int weit = 0;
        for (const auto &[links, rechts] :
             {std::pair<QColor, QColor>{"white", "black"}, {"red", "lime"}, {"blue", "gray"}, {"#c84614", "#2a7fb5"}}) {
            t.gilt("entpackt", spur.entpacke(packer.packe(links, rechts)));
            for (const int teil : {1, 2, 4}) {
                spur.zeichne(bild, {b / (2 * teil) + 1, h / (2 * teil)});
                t.gilt("so grob es reicht", bild.size() == QSize(b / teil, h / teil));
                weit = std::max(weit, abweichung(bild, links, rechts));
            }
        }
        t.gilt("die Farben, bis an den Rand", weit <= 3);
    }
}

bool öffnet(const Programmordner &ordner, const std::string &film) {
    ordner.schreibe("film.avi", film);
    try {
        Film(ordner.ort("film.avi").string());
        return true;
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Art() != Fehlerart::Datei;
    }
}

void prüfeSchäden(Prüfung &t) {
    const Programmordner ordner;
    Packer packer(64, 48), anderer(80, 48);
    const std::string rot = packer.packe("red", "red"), grün = packer.packe("lime", "lime"),
                      blau = packer.packe("blue", "blue"), größer = anderer.packe("white", "white");
    t.gilt("ein anderes Verfahren", !öffnet(ordner, probefilm({rot}, 1, 25, 50000, "MJPG")));
    t.gilt("der Anfang fehlt", !öffnet(ordner, probefilm({grün})) && !öffnet(ordner, probefilm({"", rot})));
    t.gilt("der Anfang ist beschädigt", !öffnet(ordner, probefilm({rot.substr(0, 5)})));
    const std::vector<std::string> bilder{rot, grün, "", "Unfug", blau.substr(0, blau.size() / 2), größer};
    t.gilt("ein Schaden später stört den Anfang nicht", öffnet(ordner, probefilm(bilder)));
    Film film(ordner.ort("film.avi").string());
    for (const Zeit ms : {0, 39, 40, 80, 120, 160, 200, 9999}) {
        film.zeigeStand(ms);
        const QColor soll = ms < 40 ? QColor("red") : QColor("lime");
        t.gilt("steht", abweichung(film.bild(), soll, soll) <= 3);
    }
}

/// Die mittlere Farbe rings um den Punkt, in Anteilen der Breite und Höhe.
QColor mitte(const QImage &bild, double x, double y) {
    const int weit = bild.width() / 64;
    const QRect stelle(static_cast<int>(x * bild.width()) - weit / 2, static_cast<int>(y * bild.height()) - weit / 2,
                       weit, weit);
    return bild.copy(stelle).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

struct Stelle {
    double x, y;
    const char *farbe;
};
constexpr Stelle Name[] = {
    {0.127, 0.437, "#d44a42"}, // V
    {0.302, 0.48, "#f9bf3c"},  // E
    {0.461, 0.45, "#4da154"},  // L
    {0.592, 0.45, "#4177c4"},  // M
    {0.798, 0.48, "#ef8940"},  // O
};

void prüfeGelieferten(Prüfung &t) {
    const std::string bytes = liesDatei("../ani.hvi");
    const Avi avi = liesAvi(bytes);
    const double dauer = avi.Bildzeit * static_cast<double>(avi.Bilder.size());
    t.gilt("er füllt die Zeit des Vorspanns", dauer > 9000 && dauer <= 9500);
    t.gilt("und ist unter 12 MB schwer", bytes.size() < 12'000'000);
    Bildspur spur;
    QImage anfang, ende, halbes;
    std::size_t gut = 0;
    for (const auto &b : avi.Bilder) {
        gut += spur.entpacke(std::string_view(bytes).substr(b.Ort, b.Länge));
        if (anfang.isNull()) spur.zeichne(anfang, {});
    }
    t.gleich("jedes Bild ist heil", gut, avi.Bilder.size());
    spur.zeichne(ende, {});
    spur.zeichne(halbes, {752, 477});
    t.gilt("so fein wie ein großes Fenster", anfang.size() == QSize(1504, 954) && ende.size() == anfang.size());
    t.gilt("halb so fein, wo es reicht", halbes.size() == QSize(752, 477));
    for (const auto &[x, y, farbe] : Name) {
        t.gilt("am Ende steht der Name", abstand(mitte(ende, x, y), farbe) < 20);
        t.gilt("halb in denselben Farben", abstand(mitte(halbes, x, y), farbe) < 20);
        t.gilt("am Anfang noch nicht", abstand(mitte(anfang, x, y), farbe) > 60);
    }
}

} // namespace

int main() {
    Prüfung t;
    prüfeFarben(t);
    prüfeSchäden(t);
    prüfeGelieferten(t);
    return t.ende();
}
