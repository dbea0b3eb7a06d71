#include "platform/qt/print_queues.h"

namespace trameli {

struct PrintQueues::Known {
    List Listed;
};

PrintQueues::PrintQueues() : known_(std::make_shared<Known>()) {}

PrintQueues::~PrintQueues() = default;

PrintQueues::List PrintQueues::All() {
    return known_->Listed;
}

PrintQueues::List PrintQueues::LastAll() const {
    return known_->Listed;
}

std::optional<PrinterFacts> PrintQueues::Facts(const std::string&) {
    return std::nullopt;
}

}  // namespace trameli
