#include "platform/qt/known_queues.h"

#include <algorithm>
#include <utility>

#include "platform/qt/cups_library.h"

namespace trameli {

KnownQueues::KnownQueues() : cups_(std::make_unique<CupsLibrary>()) {}

KnownQueues::~KnownQueues() = default;

bool KnownQueues::AskForAll() {
    auto list = ListQueues(*cups_);
    if (!list) {
        return false;
    }
    const std::lock_guard lock(mutex_);
    all_ = std::move(*list);
    std::erase_if(facts_, [this](const auto& entry) {
        return std::find(all_.Names.begin(), all_.Names.end(), entry.first) == all_.Names.end();
    });
    return true;
}

bool KnownQueues::AskFor(const std::string& queue) {
    QueueAnswer answer = AskQueue(*cups_, queue);
    if (!answer.Answered) {
        return false;
    }
    const std::lock_guard lock(mutex_);
    if (answer.Facts) {
        facts_[queue] = std::move(*answer.Facts);
    } else {
        facts_.erase(queue);
    }
    return true;
}

bool KnownQueues::Submit(const QueueJob& job, const std::function<bool()>& progress) {
    return SubmitJob(*cups_, job, progress);
}

QueueList KnownQueues::All() const {
    const std::lock_guard lock(mutex_);
    return all_;
}

std::optional<PrinterFacts> KnownQueues::FactsOf(const std::string& queue) const {
    const std::lock_guard lock(mutex_);
    const auto found = facts_.find(queue);
    return found == facts_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace trameli
