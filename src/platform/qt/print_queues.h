// The queues of the system's print service.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/errands.h"
#include "platform/qt/patience.h"
#include "platform/qt/printer_facts.h"

namespace trameli {

/// Asks the print service in threads of their own and waits for it with `Patience`. What it does
/// not tell in time is taken from its last answer.
class PrintQueues {
public:
    PrintQueues();
    ~PrintQueues();

    struct List {
        std::vector<std::string> Names;  ///< in the system's order
        std::string Default;             ///< empty if there is none
    };
    List All();
    /// Nothing for a queue that there is not.
    std::optional<PrinterFacts> Facts(const std::string& name);
    /// The list as it was told last.
    List LastAll() const;

private:
    struct Known;
    std::shared_ptr<Known> known_;
    Patience patience_;
};

}  // namespace trameli
