// Printers without a print system.
#pragma once

#include <QImage>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "platform/printers.h"
#include "support/stage.h"

namespace trameli {

/// Notes what would be printed. Each step of a document can be made to fail.
class NotedPrinters final : public Printers {
public:
    /// A printer, with its sheet standing upright.
    struct Model {
        std::string Name;
        int Colour = PrinterSettings::Coloured;  ///< what it has where nothing else is asked
        SheetSize Millimetres{200, 280};
        int PixelsPerMillimetre = 10;
    };
    struct Document {
        std::string Printer;
        PrinterSettings Settings;
        std::string Name;
        std::vector<PixelRectangle> Pictures;  ///< where one was put
        PixelBlock Picture{};                  ///< the last one; its bits lie in Bits
        std::vector<std::uint8_t> Bits;
        int Pages = 0;       ///< that were ended
        bool Ended = false;  ///< it was handed over
    };
    /// A form that was printed as it was.
    struct Form_ {
        std::string Form;
        std::string Name;
        int Orientation;
        QImage Picture;  ///< its window then
    };
    /// What the steps of a document answer, and whether the ones before it work.
    struct Answers {
        bool Open = true;
        bool Context = true;
        bool Merge = true;
        int StartDocument = 1;
        int StartPage = 1;
        int Stretch = 1;
        int EndPage = 1;
        int EndDocument = 1;
    };

    std::vector<Model> Installed{{"Colori"}, {"Grigi", PrinterSettings::Grey}};
    std::string Standard = "Colori";  ///< the default printer
    Answers Answer;
    std::function<void()> During;  ///< called while a document is handed over
    std::function<bool(PrinterSettings&)> DialogAnswers;  ///< the user in the properties dialog
    std::vector<Document> Documents;
    std::vector<Form_> Printed;

    std::vector<std::string> Names() override {
        std::vector<std::string> names;
        for (const Model& model : Installed) {
            names.push_back(model.Name);
        }
        return names;
    }
    std::string Default() override { return Standard; }
    std::unique_ptr<Printer> Open(const std::string& name) override {
        return Answer.Open && Find(name) ? std::make_unique<Opened_>(*this, name) : nullptr;
    }
    std::unique_ptr<PrintContext> CreateContext(const std::string& name,
                                                const PrinterSettings& settings) override {
        return Answer.Context && Find(name) ? std::make_unique<Context>(*this, name, settings)
                                            : nullptr;
    }
    void FormOrientation(int orientation) override { orientation_ = orientation; }
    void PrintForm(const Form& form, const std::string& name) override {
        Printed.push_back({form.Name(), name, orientation_, Shot(form)});
    }

private:
    /// The printer of that name while it is there.
    const Model* Find(const std::string& name) const {
        const auto found = std::find_if(Installed.begin(), Installed.end(),
                                        [&](const Model& model) { return model.Name == name; });
        return found == Installed.end() ? nullptr : &*found;
    }

    struct Opened_ final : Printer {
        Opened_(NotedPrinters& all, std::string name) : All(all), Name(std::move(name)) {}

        bool Merge(PrinterSettings& settings) override {
            const Model* const model = All.Find(Name);
            if (!model || !All.Answer.Merge) {
                return false;
            }
            if (settings.FilledBy != Name) {
                settings.Colour = model->Colour;
                settings.FilledBy = Name;
            }
            settings.Orientation = std::max<int>(settings.Orientation, PrinterSettings::Portrait);
            settings.Copies = std::max(settings.Copies, 1);
            return true;
        }
        bool Properties(PrinterSettings& settings, const PropertyTexts&) override {
            PrinterSettings chosen = settings;
            const bool ok = All.DialogAnswers && All.DialogAnswers(chosen);
            if (ok) {
                settings = chosen;
            }
            return ok;
        }

        NotedPrinters& All;
        std::string Name;
    };

    struct Context final : PrintContext {
        Context(NotedPrinters& all, std::string name, const PrinterSettings& settings)
            : All(all), Name(std::move(name)), Settings(settings) {}

        SheetSize Millimetres() const override {
            const Model* const model = All.Find(Name);
            const SheetSize upright = model ? model->Millimetres : SheetSize();
            return Settings.Orientation == PrinterSettings::Landscape
                       ? SheetSize{upright.Height, upright.Width}
                       : upright;
        }
        SheetSize Pixels() const override {
            const Model* const model = All.Find(Name);
            const int scale = model ? model->PixelsPerMillimetre : 0;
            return {Millimetres().Width * scale, Millimetres().Height * scale};
        }
        int StartDocument(const std::string& document) override {
            if (All.Answer.StartDocument != -1) {
                All.Documents.push_back({Name, Settings, document, {}, {}, {}});
            }
            return All.Answer.StartDocument;
        }
        int StartPage() override { return All.Answer.StartPage; }
        int Stretch(const PixelRectangle& where, const PixelBlock& picture) override {
            Document& document = All.Documents.back();
            document.Pictures.push_back(where);
            document.Picture = picture;
            document.Bits.assign(
                picture.Bits,
                picture.Bits + static_cast<std::ptrdiff_t>(picture.BytesPerRow) * picture.Height);
            return All.Answer.Stretch;
        }
        int EndPage() override {
            All.Documents.back().Pages += All.Answer.EndPage > 0 ? 1 : 0;
            return All.Answer.EndPage;
        }
        int EndDocument() override {
            const std::size_t own = All.Documents.size() - 1;
            if (All.During) {
                All.During();
            }
            const int answer = All.Find(Name) ? All.Answer.EndDocument : 0;
            All.Documents[own].Ended = answer != 0;
            return answer;
        }

        NotedPrinters& All;
        std::string Name;
        PrinterSettings Settings;
    };

    int orientation_ = 0;
};

}  // namespace trameli
