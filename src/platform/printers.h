// Printers and what is put on their paper.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/pixel_block.h"

namespace trameli {

class Form;

/// What a printer is told about a job: a value to keep and to hand back. The first three are
/// anybody's to read and write. The rest is for the printer that filled it in; another one takes of
/// it what it can do.
struct PrinterSettings {
    enum Orientations { Portrait = 1, Landscape = 2 };
    enum Colours { Grey = 1, Coloured = 2 };

    int Orientation = 0;  ///< one of Orientations; 0 before any printer has filled it in
    int Copies = 0;
    int Colour = 0;  ///< one of Colours; 0 before any printer has filled it in

    std::string FilledBy;                      ///< name of the printer
    std::map<std::string, std::string> Other;  ///< paper and whatever else it has to be told

    bool operator==(const PrinterSettings&) const = default;
};

/// The texts of the dialog for a printer's settings, in the language of the program.
struct PropertyTexts {
    std::string Title;  ///< the printer's name follows it
    std::string Paper;
    std::string Orientation;
    std::string Portrait;
    std::string Landscape;
    std::string Colour;
    std::string Coloured;
    std::string Grey;
    std::string Copies;
    std::string Ok;
    std::string Cancel;
};

/// An open printer, which can be asked for its settings.
class Printer {
public:
    virtual ~Printer() = default;

    /// Makes of `settings` what the printer can do: what they leave open, and what it cannot do,
    /// becomes its own choice. False if it gave no answer; `settings` are then as they were.
    virtual bool Merge(PrinterSettings& settings) = 0;

    /// Lets the user change `settings` in a dialog over the window in front. True for OK; else
    /// they are as they were. The caller's form may be gone afterwards.
    virtual bool Properties(PrinterSettings& settings, const PropertyTexts& texts) = 0;
};

/// The part of a sheet that can be printed on.
struct SheetSize {
    int Width = 0;
    int Height = 0;
};

/// Pages of one printer with certain settings. A document has its calls in their order; one that is
/// not ended when the context goes is not printed.
class PrintContext {
public:
    virtual ~PrintContext() = default;

    /// In whole millimetres.
    virtual SheetSize Millimetres() const = 0;
    /// The same in the printer's own pixels.
    virtual SheetSize Pixels() const = 0;

    /// Begins a document, under a name for the queue. -1 if that failed.
    virtual int StartDocument(const std::string& name) = 0;
    /// Begins a page. Above 0 if that worked.
    virtual int StartPage() = 0;
    /// Puts the whole of a picture into a rectangle of the sheet, whose upper left corner is 0, 0.
    /// What lies beyond the sheet is lost. Not 0 if that worked.
    virtual int Stretch(const PixelRectangle& where, const PixelBlock& picture) = 0;
    /// Ends the page. Above 0 if that worked.
    virtual int EndPage() = 0;
    /// Hands the document over. Not 0 if it was taken. Window events are served while that takes
    /// its time: the caller's form may be gone afterwards.
    virtual int EndDocument() = 0;
};

/// The service for printers. None of its calls waits longer than some seconds for a printer or for
/// the system's print service. A test records what would be printed, and each step can fail there.
class Printers {
public:
    virtual ~Printers() = default;

    /// The printers that there are just now, in the system's order.
    virtual std::vector<std::string> Names() = 0;
    /// The one that is used unless another one is chosen; empty if there is none.
    virtual std::string Default() = 0;
    /// Nothing if there is no such printer or it cannot be used.
    virtual std::unique_ptr<Printer> Open(const std::string& name) = 0;
    /// Nothing if there is no such printer or it cannot be used.
    virtual std::unique_ptr<PrintContext> CreateContext(const std::string& name,
                                                        const PrinterSettings& settings) = 0;

    /// Which way round `PrintForm` prints, one of PrinterSettings::Orientations, until it is set
    /// again; as the printer has it before.
    virtual void FormOrientation(int orientation) = 0;
    /// Prints what a form shows, without menu bar and frame, on one page of the default printer,
    /// as large as the sheet has room for it in its proportions. Asks nothing, waits for nothing
    /// and tells nobody what fails.
    virtual void PrintForm(const Form& form, const std::string& name) = 0;
};

}  // namespace trameli
