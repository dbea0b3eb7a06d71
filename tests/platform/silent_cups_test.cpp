// A print service that does not answer.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>

#include "platform/qt/desktop_printers.h"
#include "support/stage.h"

namespace trameli {
namespace {

using Now = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

/// Takes connections, and says nothing.
class SilentService {
public:
    explicit SilentService(const std::string& path) {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        bind(handle_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        listen(handle_, SOMAXCONN);
    }
    ~SilentService() { close(handle_); }

private:
    int handle_ = socket(AF_UNIX, SOCK_STREAM, 0);
};

TEST(SilentCups, CostsTwoSecondsInAll) {
    const TemporaryFolder folder;
    const std::string path = folder.Path() / "socket";
    const SilentService service(path);
    qputenv("CUPS_SERVER", QByteArray(path.c_str()));
    {
        DesktopPrinters machine{PdfOptions()};
        const auto begin = Now::now();
        EXPECT_EQ(machine.Default(), "PDF");
        EXPECT_EQ(machine.Names(), std::vector<std::string>{"PDF"});
        EXPECT_FALSE(machine.Open("queue"));
        EXPECT_FALSE(machine.CreateContext("queue", {}));
        EXPECT_GT(Seconds(Now::now() - begin).count(), 1) << "somebody was asked";
        EXPECT_LT(Seconds(Now::now() - begin).count(), 2);
    }
    qunsetenv("CUPS_SERVER");
}

}  // namespace
}  // namespace trameli
