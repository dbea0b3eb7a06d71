#include "platform/qt/print_queues.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace trameli {

namespace {

using Now = std::chrono::steady_clock;

}  // namespace

/// What became of a question.
struct PrintQueues::Reply {
    std::mutex Mutex;
    std::condition_variable Came;
    bool Over = false;
    bool Answered = false;

    void Arrive(bool answered) {
        const std::lock_guard lock(Mutex);
        Over = true;
        Answered = answered;
        Came.notify_all();
    }
    bool Wait(std::chrono::steady_clock::duration longest) {
        std::unique_lock lock(Mutex);
        Came.wait_for(lock, longest, [this] { return Over; });
        return Answered;
    }
};

void PrintQueues::Ask(Question question) {
    if (awaited_ && awaited_->Wait({})) {
        patience_.Answered();
        awaited_ = nullptr;
    }
    const auto begin = Now::now();
    const auto longest = patience_.Left(begin);
    if (longest <= Patience::Span::zero()) {
        return;
    }
    const auto reply = std::make_shared<Reply>();
    try {
        std::thread([known = known_, question = std::move(question), reply] {
            bool answered = false;
            try {
                answered = question(*known);
            } catch (const std::exception&) {
                // Out of memory, say: no answer.
            }
            reply->Arrive(answered);
        }).detach();
    } catch (const std::system_error&) {
        return;
    }
    const bool answered = reply->Wait(longest);
    patience_.Waited(begin, Now::now(), answered);
    awaited_ = answered ? nullptr : reply;
}

QueueList PrintQueues::All() {
    Ask([](KnownQueues& known) { return known.AskForAll(); });
    return known_->All();
}

std::optional<PrinterFacts> PrintQueues::Look(const std::string& queue) {
    Ask([queue](KnownQueues& known) { return known.AskFor(queue); });
    return known_->FactsOf(queue);
}

std::optional<PrinterFacts> PrintQueues::LastLook(const std::string& queue) {
    auto facts = known_->FactsOf(queue);
    return facts ? std::move(facts) : Look(queue);
}

}  // namespace trameli
