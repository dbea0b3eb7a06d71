#include "queues/scheduler.h"

#include <cups/cups.h>
#include <sys/prctl.h>

#include <QLocalSocket>
#include <QTcpSocket>
#include <csignal>
#include <stdexcept>

namespace trameli {

void AskForPrintersAt(const std::filesystem::path& socket) {
    qputenv("CUPS_SERVER", socket.c_str());
    qputenv("CUPS_SERVERROOT", socket.parent_path().c_str());
    qputenv("HOME", socket.parent_path().c_str());
    // By this bus the scheduler, and whoever looks for printers, would meet their neighbours.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/dev/null");
    qunsetenv("PRINTER");
    qunsetenv("LPDEST");
    // The library keeps what it found out at its first call.
    cupsSetServer(nullptr);
}

Scheduler::Scheduler() {
    device_.listen(QHostAddress::LocalHost);
    const std::filesystem::path source = QUEUES_FOLDER;
    const std::filesystem::path& folder = folder_.Path();
    // A scheduler of root's runs its filters as somebody else.
    std::filesystem::permissions(folder, std::filesystem::perms(0755));
    std::filesystem::create_directories(folder / "spool" / "temporary");
    std::filesystem::copy(source / "ppd", folder / "ppd");
    for (const char* name : {"cupsd.conf", "cups-files.conf", "printers.conf"}) {
        QByteArray text = QByteArray::fromStdString(BytesOf(source / name));
        text.replace("@FOLDER@", folder.c_str());
        text.replace("@PORT@", QByteArray::number(device_.serverPort()));
        Write(folder / name, text.toStdString());
    }
    AskForPrintersAt(folder / "socket");

    // Not even a test that is killed leaves it behind.
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString place = QString::fromStdString(folder.string());
    process_.start("/usr/sbin/cupsd",
                   {"-f", "-c", place + "/cupsd.conf", "-s", place + "/cups-files.conf"});
    QLocalSocket visitor;
    for (int left = Patience / 10; !visitor.waitForConnected(0); --left) {
        if (process_.waitForFinished(10) || left == 0) {
            throw std::runtime_error("the scheduler does not start");
        }
        visitor.connectToServer(place + "/socket");
    }
}

Scheduler::~Scheduler() {
    process_.terminate();
    process_.waitForFinished(Patience);
}

std::vector<std::string> Scheduler::Jobs() const {
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    std::vector<std::string> known;
    for (int i = 0; i < count; ++i) {
        known.push_back(std::string(jobs[i].dest) + ": " + jobs[i].title +
                        (jobs[i].state == IPP_JSTATE_CANCELED ? " (cancelled)" : ""));
    }
    cupsFreeJobs(count, jobs);
    return known;
}

QByteArray Scheduler::Delivered() {
    if (!device_.hasPendingConnections() && !device_.waitForNewConnection(Patience)) {
        return {};
    }
    const std::unique_ptr<QTcpSocket> job(device_.nextPendingConnection());
    while (job->waitForReadyRead(Patience)) {
    }
    return job->readAll();
}

}  // namespace trameli
