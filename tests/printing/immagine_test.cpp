// The block of pixels that is printed.
#include "printing/immagine.h"

#include <gtest/gtest.h>

#include <QImage>

#include "game/partita.h"
#include "platform/picture_box.h"

namespace trameli {
namespace {

TEST(Immagine, FillsItsRowsUpToFourBytes) {
    struct Caso {
        int Bit;
        int Larghezza;
        int ByteRiga;
    };
    for (const auto& [bit, larghezza, byteRiga] : std::vector<Caso>{{1, 33, 8},
                                                                    {4, 5, 4},
                                                                    {8, 5, 8},
                                                                    {16, 3, 8},
                                                                    {24, 5, 16},
                                                                    {24, 4, 12},
                                                                    {32, 2, 8},
                                                                    {15, 9, 0}}) {
        const DimensioneImmagine dimensione = CalcolaDimensioneImmagine(bit, larghezza, 3);
        EXPECT_EQ(dimensione.ByteRiga, byteRiga) << bit;
        EXPECT_EQ(dimensione.Byte, static_cast<std::size_t>(byteRiga) * 3) << bit;
    }
}

TEST(Immagine, TurnsGreyAndLeavesTheEndsOfRowsAlone) {
    constexpr int Larghezza = 255;  // no multiple of anything that is done at once
    constexpr int ByteRiga = 768;
    std::vector<std::uint8_t> bit(2 * ByteRiga);
    for (std::size_t i = 0; i < bit.size(); ++i) {
        bit[i] = static_cast<std::uint8_t>(i * i / 7 % 256);
    }
    const std::vector<std::uint8_t> prima = bit;
    ConvertiInGrigi({Larghezza, 2, ByteRiga, bit.data()});
    for (std::size_t i = 0; i < bit.size(); ++i) {
        const std::size_t primo = i - i % ByteRiga % 3;
        const int media = Nearest((prima[primo] + prima[primo + 1] + prima[primo + 2]) / 3.0);
        ASSERT_EQ(bit[i], i % ByteRiga < 3 * Larghezza ? media : prima[i]) << i;
    }
}

/// A window with a drawing.
class Disegnata : public Form {
public:
    explicit Disegnata(trameli::Forms& forms) : Form(forms, "Disegnata", {3000, 1500}) {
        Disegno.FillBox(0, 0, 45, 30, Rgb(200, 100, 0));
    }
    PictureBox Disegno{*this, "Disegno", {0, 0, 75, 60}};  // 5 by 4 pixels
    PictureBox Niente{*this, "Niente", {0, 0, 0, 0}};
};

class ImmagineTest : public testing::Test {
protected:
    Disco disco_;
    Partita partita_{disco_};
    Disegnata form_{partita_.Gioco.Forms()};
};

TEST_F(ImmagineTest, HoldsWhatIsDrawnAndGivesItBack) {
    Immagine immagine;
    EXPECT_EQ(immagine.CatturaImmagine(form_.Disegno, ""), std::nullopt);
    const PixelBlock blocco = immagine.Blocco();
    const QImage visto = Shot(form_.Disegno).scaled(blocco.Width, blocco.Height);
    EXPECT_EQ(blocco.BytesPerRow, ArrotondaA4(3 * blocco.Width));
    for (int y = 0; y < blocco.Height; ++y) {
        const std::uint8_t* pixel = blocco.Bits + (blocco.Height - 1 - y) * blocco.BytesPerRow;
        for (int x = 0; x < blocco.Width; ++x, pixel += 3) {
            EXPECT_EQ(qRgb(pixel[2], pixel[1], pixel[0]), visto.pixel(x, y)) << x << ", " << y;
        }
    }
    Immagine::Memoria copia;
    EXPECT_EQ(immagine.InGrigi(copia).Bits[0], visto.pixel(0, blocco.Height - 1) & 0xFF);
    EXPECT_EQ(*(copia.get() + blocco.BytesPerRow * (blocco.Height - 1)), 100);
    immagine.Libera();
    EXPECT_FALSE(immagine.Presente());
    EXPECT_EQ(immagine.InGrigi(copia).Bits, nullptr);
}

TEST_F(ImmagineTest, TellsWhatIsMissing) {
    Immagine immagine([](std::size_t) { return nullptr; });
    EXPECT_EQ(immagine.CatturaImmagine(form_.Disegno, ""), "hMem = 0");
    EXPECT_EQ(immagine.CatturaForm(form_, ""), "hDC_FSrc = 1\r\nhBmp_Form = 1\r\nhMem = 0");
    EXPECT_EQ(immagine.CatturaImmagine(form_.Niente, "vuota"), "vuota");
    EXPECT_FALSE(immagine.Presente());
}

}  // namespace
}  // namespace trameli
