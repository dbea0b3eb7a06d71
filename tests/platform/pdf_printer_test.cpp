// The printer that makes files.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QTimer>
#include <algorithm>
#include <future>

#include "platform/bare_program.h"
#include "platform/qt/desktop_printers.h"
#include "platform/qt/environment.h"
#include "platform/qt/errands.h"
#include "platform/qt/handover.h"
#include "support/stage.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

class PdfPrinterTest : public BareProgram {
protected:
    PdfPrinterTest() { qputenv("CUPS_SERVER", Bytes(Folder.Path() / "no socket")); }

    static QByteArray Bytes(const fs::path& path) { return QByteArray(path.c_str()); }

    /// Prints a page with a picture on all of it; what EndDocument says.
    int Print(const std::string& name, int orientation = PrinterSettings::Portrait) {
        PrinterSettings settings;
        settings.Orientation = orientation;
        const auto printer = Machine.Open("PDF");
        EXPECT_TRUE(printer->Merge(settings));
        const auto context = Machine.CreateContext("PDF", settings);
        const SheetSize sheet = context->Pixels();
        std::vector<std::uint8_t> pixels(64 * 2, 0x40);
        EXPECT_GE(context->StartDocument(name), 0);
        EXPECT_GT(context->StartPage(), 0);
        EXPECT_NE(context->Stretch({0, 0, sheet.Width, sheet.Height}, {21, 2, 64, pixels.data()}),
                  0);
        EXPECT_GT(context->EndPage(), 0);
        return context->EndDocument();
    }
    std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(Documents)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder Folder;
    fs::path Documents = Folder.Path() / "to be" / "made";
    std::vector<fs::path> Shown;
    DesktopPrinters Machine{{.Folder = Documents,
                             .Home = Folder.Path(),
                             .Now =
                                 [] {
                                     return QDateTime({2026, 11, 23}, {10, 15, 30});
                                 },
                             .Show = [this](const fs::path& file) { Shown.push_back(file); }}};
};

TEST_F(PdfPrinterTest, IsThereWithoutAnyPrintService) {
    EXPECT_EQ(Machine.Names(), std::vector<std::string>{"PDF"});
    EXPECT_EQ(Machine.Default(), "PDF");
    EXPECT_FALSE(Machine.Open("another one"));
    PrinterSettings settings;
    settings.Orientation = PrinterSettings::Landscape;
    ASSERT_TRUE(Machine.Open("PDF")->Merge(settings));
    EXPECT_EQ(settings.Colour, PrinterSettings::Coloured);
    const auto sheet = Machine.CreateContext("PDF", settings);
    EXPECT_EQ(sheet->Millimetres().Width, 297);
    EXPECT_EQ(sheet->Millimetres().Height, 210);
    EXPECT_EQ(sheet->Pixels().Width, 7016);
}

TEST_F(PdfPrinterTest, MakesAFileOfEachDocumentAndShowsIt) {
    EXPECT_NE(Print("Trameli", PrinterSettings::Landscape), 0);
    EXPECT_NE(Print("Trameli"), 0);
    EXPECT_NE(Print(".../a\n\"b\"" + std::string(300, 'c')), 0);
    const std::string longName = ("-a -b-" + std::string(300, 'c')).substr(0, 200);
    EXPECT_EQ(Files(), (std::vector<std::string>{longName + " 2026-11-23 10.15.30.pdf",
                                                 "Trameli 2026-11-23 10.15.30 2.pdf",
                                                 "Trameli 2026-11-23 10.15.30.pdf"}));
    ASSERT_EQ(Shown.size(), 3U);
    EXPECT_EQ(Shown[0], Documents / "Trameli 2026-11-23 10.15.30.pdf");
    const std::string page = BytesOf(Shown[0]);
    EXPECT_TRUE(page.starts_with("%PDF-") && page.find("%%EOF") != std::string::npos);
    EXPECT_NE(page.find("/MediaBox [0 0 842"), std::string::npos) << "landscape";
    EXPECT_NE(page.find("/Width 21\n/Height 2"), std::string::npos) << "the picture's own pixels";
}

TEST_F(PdfPrinterTest, PrintsWhatAFormShows) {
    const PixelSize size = Bring().ClientPixels();
    Machine.FormOrientation(PrinterSettings::Landscape);
    Machine.PrintForm(TheForm, "Form");
    while (Shown.empty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const std::string page = BytesOf(Shown[0]);
    EXPECT_NE(page.find("/MediaBox [0 0 842"), std::string::npos);
    EXPECT_NE(page.find("/Width " + std::to_string(size.Width)), std::string::npos);
}

TEST_F(PdfPrinterTest, TakesBackWhatComesTooLate) {
    const auto pdf = std::make_shared<PdfPrinter>(PdfOptions{.Folder = Documents, .Home = {}});
    Handover handover(nullptr, pdf);
    int signs = 0;
    EXPECT_FALSE(handover.Print(pdf->Facts("PDF"), {}, {"Trameli", {{}}},
                                [&signs] { return ++signs == 1; }));
    EXPECT_EQ(signs, 2);
    EXPECT_EQ(Files().size(), 0U);
}

TEST_F(PdfPrinterTest, IsWaitedForNoLongerWhenTheProgramEnds) {
    std::promise<void> over;
    Errands errands;
    QTimer::singleShot(0, [this] { Program.End(); });
    EXPECT_FALSE(errands.Run([ended = over.get_future().share()](const auto&) {
        return ended.wait_for(std::chrono::seconds(20)) == std::future_status::timeout;
    }));
    over.set_value();
}

TEST_F(PdfPrinterTest, LeavesNothingBehindWhenTheDiskIsFull) {
    OutliveFileSizeLimit();
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit full{100, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const int printed = Print("Trameli");
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(printed, 0);
    EXPECT_EQ(Files().size(), 0U);
    EXPECT_EQ(Shown.size(), 0U);
}

}  // namespace
}  // namespace trameli
