// A print system of the test's own.
#pragma once

#include <QProcess>
#include <QTcpServer>
#include <string>
#include <vector>

#include "support/stage.h"

namespace trameli {

/// Has this process ask for printers at a socket and nowhere else: no settings of the machine or
/// its user, no printers that make themselves known in the network.
void AskForPrintersAt(const std::filesystem::path& socket);

/// A scheduler with two queues that deliver to a socket of this process: "Grigia" in PostScript
/// and, by default, "Colorata" in PDF. It has folders of its own, and ends with this process in any
/// case.
class Scheduler {
public:
    Scheduler();
    ~Scheduler();

    /// The jobs so far in their order, "queue: name", and "(cancelled)" behind those that are.
    std::vector<std::string> Jobs() const;
    /// What a queue delivers next; nothing after half a minute of silence.
    QByteArray Delivered();

private:
    static constexpr int Patience = 30000;  // milliseconds

    TemporaryFolder folder_;
    QTcpServer device_;  ///< where the queues deliver
    QProcess process_;
};

}  // namespace trameli
