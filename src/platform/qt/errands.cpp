#include "platform/qt/errands.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace trameli {

namespace {

using namespace std::chrono_literals;
using Now = std::chrono::steady_clock;

/// How long nothing may go on until work counts as failed.
constexpr auto Standstill = 30s;
/// How often that is looked at.
constexpr auto Round = 1s;
/// How long the end of the program waits for what is on its way.
constexpr auto Farewell = 2s;

}  // namespace

/// Shared with the threads, which may live longer.
struct Errands::UnderWay {
    std::mutex Mutex;
    std::condition_variable Changed;
    int Count = 0;
    QObject* WindowThread = nullptr;  ///< where answers go; nothing once nobody waits for them

    void Answer(std::function<void(bool)> then, bool result) {
        const std::lock_guard lock(Mutex);
        if (WindowThread) {
            QMetaObject::invokeMethod(
                WindowThread, [then = std::move(then), result] { then(result); },
                Qt::QueuedConnection);
        }
        --Count;
        Changed.notify_all();
    }
};

Errands::Errands() : underWay_(std::make_shared<UnderWay>()) {
    underWay_->WindowThread = &windowThread_;
}

Errands::~Errands() {
    std::unique_lock lock(underWay_->Mutex);
    underWay_->Changed.wait_for(lock, Farewell, [this] { return underWay_->Count == 0; });
    underWay_->WindowThread = nullptr;
}

void Errands::Send(Work work, std::function<void(bool)> then) {
    {
        const std::lock_guard lock(underWay_->Mutex);
        ++underWay_->Count;
    }
    try {
        std::thread([underWay = underWay_, work = std::move(work), then]() mutable {
            bool result = false;
            try {
                result = work([] { return true; });
            } catch (const std::exception&) {
                // Out of memory, say: the work has failed.
            }
            work = nullptr;
            underWay->Answer(std::move(then), result);
        }).detach();
    } catch (const std::system_error&) {
        underWay_->Answer(std::move(then), false);
    }
}

bool Errands::Run(const Work& work) {
    struct Wait {
        QEventLoop* Loop = nullptr;  ///< nothing once nobody waits any more
        bool Result = false;

        /// A sign of the work, which is told whether it is given up. Both ways with the lock: work
        /// that goes on after this has half a minute before it.
        bool Sign() {
            const std::lock_guard lock(mutex_);
            lastSign_ = Now::now();
            return !givenUp_;
        }
        bool GiveUpAtStandstill() {
            const std::lock_guard lock(mutex_);
            givenUp_ = Now::now() - lastSign_ > Standstill;
            return givenUp_;
        }

    private:
        std::mutex mutex_;
        bool givenUp_ = false;
        Now::time_point lastSign_ = Now::now();
    };
    const auto wait = std::make_shared<Wait>();
    // The application's, for `Forms::End` to find it.
    QEventLoop loop(QCoreApplication::instance());
    wait->Loop = &loop;
    const Progress progress = [wait] { return wait->Sign(); };
    Send([work, progress](const Progress&) { return work(progress); },
         [wait](bool result) {
             wait->Result = result;
             if (wait->Loop) {
                 wait->Loop->quit();
             }
         });
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&wait, &loop] {
        if (wait->GiveUpAtStandstill()) {
            loop.quit();
        }
    });
    watch.start(Round);
    loop.exec();
    wait->Loop = nullptr;
    return wait->Result;
}

}  // namespace trameli
