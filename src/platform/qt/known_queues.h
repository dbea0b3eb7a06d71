// What is known of the system's queues.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "platform/qt/cups_queues.h"
#include "platform/qt/printer_facts.h"

namespace trameli {

class CupsLibrary;

/// The last answers of the print service. Any thread can ask and read.
class KnownQueues {
public:
    KnownQueues();
    ~KnownQueues();
    KnownQueues(const KnownQueues&) = delete;
    KnownQueues& operator=(const KnownQueues&) = delete;

    // These may take seconds. False if there was no answer; then all is as it was.
    bool AskForAll();
    bool AskFor(const std::string& queue);
    /// Hands a job over; false if it was not taken.
    bool Submit(const QueueJob& job, const std::function<bool()>& progress);

    QueueList All() const;
    /// Nothing for a queue that there is not.
    std::optional<PrinterFacts> FactsOf(const std::string& queue) const;

private:
    std::unique_ptr<CupsLibrary> cups_;
    mutable std::mutex mutex_;  ///< of what follows
    QueueList all_;
    std::map<std::string, PrinterFacts> facts_;
};

}  // namespace trameli
