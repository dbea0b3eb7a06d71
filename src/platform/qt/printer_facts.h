// What a printer can do.
#pragma once

#include <string>
#include <vector>

#include "platform/printers.h"
#include "platform/qt/paper.h"

namespace trameli {

/// All that has to be known of a printer to make pages for it.
struct PrinterFacts {
    enum class Kinds {
        Queue,  ///< paper, which goes in with its own side up: pages are turned for it
        Files,  ///< documents for the screen, upright as they are
    };

    std::string Name;
    Kinds Kind = Kinds::Queue;
    std::vector<Paper> Papers;  ///< one at least; the printer's own choice comes first
    int DotsPerInchAcross = 0;
    int DotsPerInchDown = 0;
    bool CanColour = false;
    PrinterSettings::Colours OwnColour = PrinterSettings::Grey;
    PrinterSettings::Orientations OwnOrientation = PrinterSettings::Portrait;
    /// Words by which a job asks for grey or colours; empty if it cannot.
    std::string GreyWord;
    std::string ColourWord;
};

/// The settings with which a printer prints when it is given `wanted`: what those leave open and
/// what it cannot do is its own choice, and of another printer's settings it takes orientation and
/// paper alone.
PrinterSettings Fitting(const PrinterFacts& printer, const PrinterSettings& wanted);

/// The paper of settings that fit the printer.
const Paper& PaperOf(const PrinterFacts& printer, const PrinterSettings& settings);

/// The key of the paper in PrinterSettings::Other.
inline const std::string PaperSetting = "media";

}  // namespace trameli
