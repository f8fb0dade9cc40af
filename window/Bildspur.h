#pragma once
// Die Bildspur eines Films in VP9, Bild um Bild entpackt. Ihre Farben gelten nach BT.709, mit engem Umfang (16 bis
// 235).
#include <QImage>

#include <memory>
#include <string_view>

struct vpx_codec_ctx;
struct vpx_image;

namespace velmo {

class Bildspur {
  public:
    /// Womit sie gepackt ist, wie es im Film steht.
    static constexpr std::string_view Verfahren = "VP90";

    Bildspur();
    /// Entpackt das nächste Bild, das auf den vorigen aufbaut; falsch, wenn es beschädigt ist.
    bool entpacke(std::string_view bytes);
    /// Zeichnet das entpackte Bild ins Ziel: ganz, halb oder ein Viertel so fein, so grob es für die Größe reicht. Ein
    /// beschädigtes lässt das Ziel, wie es ist.
    void zeichne(QImage &ziel, const QSize &größe) const;

  private:
    struct Schluss {
        void operator()(vpx_codec_ctx *) const;
    };
    std::unique_ptr<vpx_codec_ctx, Schluss> entpacker;
    const vpx_image *entpackt = nullptr; // gehört dem Entpacker, bis zum nächsten
    QSize maße;
};

} // namespace velmo
