// The queues of the system's print service.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/qt/known_queues.h"
#include "platform/qt/patience.h"

namespace trameli {

/// Asks the print service in threads of their own and waits for it with `Patience`. What it does
/// not tell in time is taken from its last answer.
class PrintQueues {
public:
    QueueList All();
    /// Asks for a queue; nothing if there is none of that name.
    std::optional<PrinterFacts> Look(const std::string& queue);
    /// The same, but a queue that was looked at before, and was there when all were listed, is
    /// taken as it was then.
    std::optional<PrinterFacts> LastLook(const std::string& queue);

    /// What was told last, shared with the threads, which may live longer.
    const std::shared_ptr<KnownQueues>& Known() const { return known_; }

private:
    using Question = std::function<bool(KnownQueues&)>;
    struct Reply;

    void Ask(Question question);

    std::shared_ptr<KnownQueues> known_ = std::make_shared<KnownQueues>();
    Patience patience_;
    std::shared_ptr<Reply> awaited_;  ///< to a question that nobody waits for any more
};

}  // namespace trameli
