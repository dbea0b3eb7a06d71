#include "platform/qt/cups_facts.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <initializer_list>

#include "platform/qt/environment.h"

namespace trameli {

namespace {

/// Where a queue does not tell.
constexpr int UsualDotsPerInch = 300;
constexpr double CentimetresPerInch = 2.54;

/// Sizes that differ by less are of the same paper: drivers round them to points.
constexpr int SameSize = 50;  // hundredths of a millimetre

/// Names that stand for a range of sizes, not for a paper.
bool IsRange(const std::string& key) {
    return key.starts_with("custom_min_") || key.starts_with("custom_max_");
}

/// A value of "media-col-database".
Paper PaperFrom(const CupsAnswer& column) {
    const CupsAnswer size = column.Part("media-size");
    Paper paper;
    paper.Width = size.Number("x-dimension");
    paper.Height = size.Number("y-dimension");
    paper.Left = column.Number("media-left-margin");
    paper.Top = column.Number("media-top-margin");
    paper.Right = column.Number("media-right-margin");
    paper.Bottom = column.Number("media-bottom-margin");
    return paper;
}

bool IsSameSize(const Paper& a, const Paper& b) {
    return std::abs(a.Width - b.Width) <= SameSize && std::abs(a.Height - b.Height) <= SameSize;
}

std::vector<Paper> PapersFrom(const CupsLibrary& cups, const CupsAnswer& queue) {
    std::vector<Paper> described;
    for (int i = 0; i < queue.Count("media-col-database"); ++i) {
        described.push_back(PaperFrom(queue.Part("media-col-database", i)));
    }
    std::vector<Paper> papers;
    const std::vector<std::string> keys = queue.Texts("media-supported");
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const pwg_media_t* size = IsRange(keys[i]) ? nullptr : cups.pwgMediaForPWG(keys[i].c_str());
        if (!size) {
            continue;
        }
        Paper paper;
        paper.Key = keys[i];
        paper.Width = size->width;
        paper.Height = size->length;
        // Both lists have the same order, as a rule. The same size can be there twice, the second
        // time printed up to its edges.
        auto found = i < described.size() && IsSameSize(described[i], paper)
                         ? described.begin() + static_cast<std::ptrdiff_t>(i)
                         : std::find_if(described.begin(), described.end(),
                                        [&](const Paper& one) { return IsSameSize(one, paper); });
        if (found != described.end()) {
            paper.Left = found->Left;
            paper.Top = found->Top;
            paper.Right = found->Right;
            paper.Bottom = found->Bottom;
        }
        papers.push_back(paper);
    }
    const std::string own = queue.Text("media-default");
    const auto first = std::find_if(papers.begin(), papers.end(),
                                    [&](const Paper& paper) { return paper.Key == own; });
    if (first != papers.end()) {
        std::rotate(papers.begin(), first, first + 1);
    }
    return papers;
}

/// The first of the words that a queue knows; empty if it knows none.
std::string Word(const std::vector<std::string>& known, std::initializer_list<const char*> words) {
    for (const char* word : words) {
        if (std::find(known.begin(), known.end(), word) != known.end()) {
            return word;
        }
    }
    return {};
}

void ReadResolution(const CupsLibrary& cups, const CupsAnswer& queue, PrinterFacts& facts) {
    facts.DotsPerInchAcross = UsualDotsPerInch;
    facts.DotsPerInchDown = UsualDotsPerInch;
    ipp_attribute_t* found = queue.Find("printer-resolution-default");
    if (!found || cups.ippGetValueTag(found) != IPP_TAG_RESOLUTION) {
        return;
    }
    int down = 0;
    ipp_res_t unit = IPP_RES_PER_INCH;
    int across = cups.ippGetResolution(found, 0, &down, &unit);
    if (unit == IPP_RES_PER_CM) {
        across = static_cast<int>(std::lround(across * CentimetresPerInch));
        down = static_cast<int>(std::lround(down * CentimetresPerInch));
    }
    if (across > 0 && down > 0) {
        facts.DotsPerInchAcross = across;
        facts.DotsPerInchDown = down;
    }
}

}  // namespace

std::vector<const char*> AttributesOfFacts() {
    return {"media-supported",
            "media-default",
            "media-col-database",
            "color-supported",
            "print-color-mode-supported",
            "print-color-mode-default",
            "printer-resolution-default",
            "orientation-requested-default"};
}

PrinterFacts FactsFrom(const CupsLibrary& cups, const CupsAnswer& queue, const std::string& name) {
    PrinterFacts facts;
    facts.Name = name;
    facts.Papers = PapersFrom(cups, queue);
    if (facts.Papers.empty()) {
        facts.Papers = OfficePapers(UsesLetter(LocaleOfPaper()));
    }
    ReadResolution(cups, queue, facts);
    const int orientation = queue.Number("orientation-requested-default");
    if (orientation == IPP_ORIENT_LANDSCAPE || orientation == IPP_ORIENT_REVERSE_LANDSCAPE) {
        facts.OwnOrientation = PrinterSettings::Landscape;
    }
    // A queue without a driver does not know what its printer can do.
    const bool tells = queue.Count("color-supported") > 0;
    facts.CanColour = !tells || queue.Is("color-supported");
    if (tells) {
        const auto words = queue.Texts("print-color-mode-supported");
        facts.GreyWord = Word(words, {"monochrome", "auto-monochrome"});
        facts.ColourWord = Word(words, {"color", "auto"});
    }
    const bool ownGrey = tells && queue.Text("print-color-mode-default") == facts.GreyWord;
    facts.OwnColour =
        facts.CanColour && !ownGrey ? PrinterSettings::Coloured : PrinterSettings::Grey;
    return facts;
}

}  // namespace trameli
