// What the first window takes time for, done beside the toolkit's start.
#pragma once

#include <future>
#include <thread>

#include "platform/first_sight.h"

namespace trameli {

/// A thread that finds out which fonts the system has, and which of them stand in for letters that
/// another one lacks. The toolkit does so when it needs the first font, and it takes half as long
/// as starting the toolkit. Who needs a font meanwhile waits at the toolkit's lock. Then there is
/// time left to draw a picture to nowhere, by which the code that does it is loaded and linked
/// before it is needed.
class FirstPaint {
public:
    explicit FirstPaint(FirstSight sight);

    /// To be called when fonts and pictures can be used. Without it nothing is drawn.
    void ToolkitStarted() { started_.set_value(); }

private:
    // In this order: the promise goes first, and if it was not kept the thread ends for that.
    std::jthread thread_;
    std::promise<void> started_;
};

}  // namespace trameli
