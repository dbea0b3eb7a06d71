#include "drawing/geometria.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

TEST(Geometria, LeavesRoomForTheFinishPictureWhereverItCanBe) {
    const struct {
        double Larghezza;
        double Altezza;
        int Righe;
        int Colonne;
        Aperture DoveSiApre;
        Geometria Attesa;
    } casi[] = {
        // Wide boxes: the height alone counts.
        {10000, 6000, 15, 20, Aperture::OgniLato, {352, 1480, 360}},
        {10000, 6000, 6, 9, Aperture::OgniLato, {750, 1625, 750}},
        // High ones.
        {16200, 26000, 6, 9, Aperture::OgniLato, {1472, 1476, 8584}},
        {16200, 26000, 3, 4, Aperture::OgniLato, {2700, 2700, 8950}},
        {16200, 26000, 8, 11, Aperture::SopraESotto, {1350, 675, 7600}},
    };
    constexpr double muri = 21;  // pixels
    for (const auto& [larghezza, altezza, righe, colonne, aperture, attesa] : casi) {
        const Geometria geometria = CalcolaGeometria(larghezza, altezza, righe, colonne, aperture);
        EXPECT_EQ(geometria, attesa) << geometria.DimensioneCella;
        const int lato = LatoArrivoImmagine(geometria.DimensioneCella, muri);
        const int configurazioni = aperture == Aperture::OgniLato ? NumeroConfigurazioni : 1;
        for (int k = 0; k < configurazioni; ++k) {
            const auto [alto, sinistra] =
                Configurazione(k, righe, colonne, geometria, muri).PosizioneArrivo;
            EXPECT_TRUE(sinistra >= 0 && sinistra + lato <= larghezza && alto >= 0 &&
                        alto + lato <= altezza)
                << righe << " x " << colonne << ", configuration " << k;
        }
    }
}

}  // namespace
}  // namespace trameli
