// Printers without a print system.
#pragma once

#include "platform/no_printers.h"

namespace trameli {

/// Notes what would be printed.
class NotedPrinters : public NoPrinters {};

}  // namespace trameli
