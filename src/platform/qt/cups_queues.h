// What the print service is asked for and told. All of this may take seconds.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/printer_facts.h"

namespace trameli {

class CupsLibrary;

/// The queues of the system.
struct QueueList {
    std::vector<std::string> Names;  ///< in the system's order
    std::string Default;             ///< one of them, or empty
};

/// Nothing if there was no answer. Without a print service there are no queues.
std::optional<QueueList> ListQueues(CupsLibrary& cups);

/// What is known of a queue after it was asked for.
struct QueueAnswer {
    bool Answered = false;
    std::optional<PrinterFacts> Facts;  ///< nothing if there is no such queue
};
QueueAnswer AskQueue(CupsLibrary& cups, const std::string& name);

/// A document for a queue.
struct QueueJob {
    std::string Queue;
    std::string Name;
    std::string Pdf;
    std::string Paper;       ///< its key
    std::string ColourWord;  ///< that of PrinterFacts; may be empty
    int Copies = 1;
};

/// Hands a job over; false if the queue does not take it. `progress` is called whenever some of it
/// has gone, and at the end; when it answers false, the job is cancelled.
bool SubmitJob(CupsLibrary& cups, const QueueJob& job, const std::function<bool()>& progress);

}  // namespace trameli
