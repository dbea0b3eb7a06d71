// How long a slow service may hold up the window thread.
#pragma once

#include <algorithm>
#include <chrono>

namespace trameli {

/// A store of waiting time: what is spent comes back slowly, so that many short waits, one after
/// the other, cost no more than one long one. Waiting in vain ends it for a while.
class Patience {
public:
    using Time = std::chrono::steady_clock::time_point;
    using Span = std::chrono::steady_clock::duration;

    /// How long may be waited at most, beginning now; nothing if not at all.
    Span Left(Time now) const {
        if (disappointed_ && now < end_ + Recovery) {
            return Span::zero();
        }
        return std::min<Span>(Most, left_ + (now - end_) * Most.count() / Recovery.count());
    }
    /// Waited from `begin` to `end`, for an answer or in vain.
    void Waited(Time begin, Time end, bool answered) {
        left_ = std::max(Span::zero(), Left(begin) - (end - begin));
        end_ = end;
        disappointed_ = !answered;
    }
    /// The answer came after all.
    void Answered() { disappointed_ = false; }

private:
    /// A little under two seconds, for what else has to be done in those.
    static constexpr std::chrono::milliseconds Most{1800};
    static constexpr std::chrono::milliseconds Recovery{10000};

    Span left_ = Most;
    Time end_{};
    bool disappointed_ = false;
};

}  // namespace trameli
