// Work that is done beside the window thread.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace trameli {

/// Has work done in threads of their own, each as long as it takes. One that hangs is left behind,
/// so it must share nothing with others but what it keeps alive itself.
class Errands {
public:
    /// Told by the work now and then that it goes on. False if nobody waits for it any more; then
    /// it must come to nothing.
    using Progress = std::function<bool()>;
    using Work = std::function<bool(const Progress&)>;

    Errands();
    /// Waits a moment for what is under way.
    ~Errands();
    Errands(const Errands&) = delete;
    Errands& operator=(const Errands&) = delete;

    /// Starts the work and returns. `then` is called in the window thread with its answer, unless
    /// the program ends before. Without a thread to be had the answer is false.
    void Send(Work work, std::function<void(bool)> then);
    /// Has the work done and serves window events meanwhile. The work's answer, or false if there
    /// was no progress for half a minute, or the program ends; in that case the work goes on as
    /// long as there is time.
    bool Run(const Work& work);

private:
    struct UnderWay;

    std::shared_ptr<UnderWay> underWay_;
    QObject windowThread_;
};

}  // namespace trameli
